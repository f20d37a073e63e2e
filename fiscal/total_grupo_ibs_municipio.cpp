#include <fiscal/total_grupo_ibs_municipio.hpp>

namespace kivo::erp::v12::fiscal {

struct total_grupo_ibs_municipio::record {
    decimal total_diferimento;
    decimal total_devolucao;
    decimal total;
};

total_grupo_ibs_municipio::total_grupo_ibs_municipio() noexcept = default;
total_grupo_ibs_municipio::total_grupo_ibs_municipio(const total_grupo_ibs_municipio&) = default;
total_grupo_ibs_municipio::total_grupo_ibs_municipio(total_grupo_ibs_municipio&&) noexcept =
    default;
total_grupo_ibs_municipio&
total_grupo_ibs_municipio::operator=(const total_grupo_ibs_municipio&) = default;
total_grupo_ibs_municipio&
total_grupo_ibs_municipio::operator=(total_grupo_ibs_municipio&&) noexcept = default;
total_grupo_ibs_municipio::~total_grupo_ibs_municipio() = default;
void total_grupo_ibs_municipio::swap(total_grupo_ibs_municipio& other) noexcept {
    record_.swap(other.record_);
}

decimal total_grupo_ibs_municipio::get_total_diferimento() const {
    return record_.get(&record::total_diferimento);
}
void total_grupo_ibs_municipio::set_total_diferimento(const decimal& value) {
    record_.set(&record::total_diferimento, value);
}

decimal total_grupo_ibs_municipio::get_total_devolucao() const {
    return record_.get(&record::total_devolucao);
}
void total_grupo_ibs_municipio::set_total_devolucao(const decimal& value) {
    record_.set(&record::total_devolucao, value);
}

decimal total_grupo_ibs_municipio::get_total() const { return record_.get(&record::total); }
void total_grupo_ibs_municipio::set_total(const decimal& value) {
    record_.set(&record::total, value);
}

} // namespace kivo::erp::v12::fiscal
