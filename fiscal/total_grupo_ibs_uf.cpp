#include <fiscal/total_grupo_ibs_uf.hpp>

namespace kivo::erp::v12::fiscal {

struct total_grupo_ibs_uf::record {
    decimal total_diferimento;
    decimal total_devolucao;
    decimal total;
};

total_grupo_ibs_uf::total_grupo_ibs_uf() noexcept = default;
total_grupo_ibs_uf::total_grupo_ibs_uf(const total_grupo_ibs_uf&) = default;
total_grupo_ibs_uf::total_grupo_ibs_uf(total_grupo_ibs_uf&&) noexcept = default;
total_grupo_ibs_uf& total_grupo_ibs_uf::operator=(const total_grupo_ibs_uf&) = default;
total_grupo_ibs_uf& total_grupo_ibs_uf::operator=(total_grupo_ibs_uf&&) noexcept = default;
total_grupo_ibs_uf::~total_grupo_ibs_uf() = default;
void total_grupo_ibs_uf::swap(total_grupo_ibs_uf& other) noexcept { record_.swap(other.record_); }

decimal total_grupo_ibs_uf::get_total_diferimento() const {
    return record_.get(&record::total_diferimento);
}
void total_grupo_ibs_uf::set_total_diferimento(const decimal& value) {
    record_.set(&record::total_diferimento, value);
}

decimal total_grupo_ibs_uf::get_total_devolucao() const {
    return record_.get(&record::total_devolucao);
}
void total_grupo_ibs_uf::set_total_devolucao(const decimal& value) {
    record_.set(&record::total_devolucao, value);
}

decimal total_grupo_ibs_uf::get_total() const { return record_.get(&record::total); }
void total_grupo_ibs_uf::set_total(const decimal& value) { record_.set(&record::total, value); }

} // namespace kivo::erp::v12::fiscal
