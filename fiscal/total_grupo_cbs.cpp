#include <fiscal/total_grupo_cbs.hpp>

namespace kivo::erp::v12::fiscal {

struct total_grupo_cbs::record {
    decimal total_diferimento;
    decimal total_devolucao_tributos;
    decimal total_cbs;
    decimal total_cred_pres;
    decimal total_cred_pres_sus;
};

total_grupo_cbs::total_grupo_cbs() noexcept = default;
total_grupo_cbs::total_grupo_cbs(const total_grupo_cbs&) = default;
total_grupo_cbs::total_grupo_cbs(total_grupo_cbs&&) noexcept = default;
total_grupo_cbs& total_grupo_cbs::operator=(const total_grupo_cbs&) = default;
total_grupo_cbs& total_grupo_cbs::operator=(total_grupo_cbs&&) noexcept = default;
total_grupo_cbs::~total_grupo_cbs() = default;
void total_grupo_cbs::swap(total_grupo_cbs& other) noexcept { record_.swap(other.record_); }

decimal total_grupo_cbs::get_total_diferimento() const {
    return record_.get(&record::total_diferimento);
}
void total_grupo_cbs::set_total_diferimento(const decimal& value) {
    record_.set(&record::total_diferimento, value);
}

decimal total_grupo_cbs::get_total_devolucao_tributos() const {
    return record_.get(&record::total_devolucao_tributos);
}
void total_grupo_cbs::set_total_devolucao_tributos(const decimal& value) {
    record_.set(&record::total_devolucao_tributos, value);
}

decimal total_grupo_cbs::get_total_cbs() const { return record_.get(&record::total_cbs); }
void total_grupo_cbs::set_total_cbs(const decimal& value) {
    record_.set(&record::total_cbs, value);
}

decimal total_grupo_cbs::get_total_cred_pres() const {
    return record_.get(&record::total_cred_pres);
}
void total_grupo_cbs::set_total_cred_pres(const decimal& value) {
    record_.set(&record::total_cred_pres, value);
}

decimal total_grupo_cbs::get_total_cred_pres_sus() const {
    return record_.get(&record::total_cred_pres_sus);
}
void total_grupo_cbs::set_total_cred_pres_sus(const decimal& value) {
    record_.set(&record::total_cred_pres_sus, value);
}

} // namespace kivo::erp::v12::fiscal
