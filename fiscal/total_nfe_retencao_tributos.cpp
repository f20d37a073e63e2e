#include <fiscal/total_nfe_retencao_tributos.hpp>

namespace kivo::erp::v12::fiscal {

struct total_nfe_retencao_tributos::record {
    optional<decimal> valor_pis_retido;
    optional<decimal> valor_cofins_retido;
    optional<decimal> valor_csll_retido;
    optional<decimal> valor_base_calculo_irrf;
    optional<decimal> valor_irrf;
    optional<decimal> valor_bc_retencao_previdencia;
    optional<decimal> valor_retencao_previdencia;
};

total_nfe_retencao_tributos::total_nfe_retencao_tributos() noexcept = default;
total_nfe_retencao_tributos::total_nfe_retencao_tributos(const total_nfe_retencao_tributos&) =
    default;
total_nfe_retencao_tributos::total_nfe_retencao_tributos(total_nfe_retencao_tributos&&) noexcept =
    default;
total_nfe_retencao_tributos&
total_nfe_retencao_tributos::operator=(const total_nfe_retencao_tributos&) = default;
total_nfe_retencao_tributos&
total_nfe_retencao_tributos::operator=(total_nfe_retencao_tributos&&) noexcept = default;
total_nfe_retencao_tributos::~total_nfe_retencao_tributos() = default;
void total_nfe_retencao_tributos::swap(total_nfe_retencao_tributos& other) noexcept {
    record_.swap(other.record_);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_pis_retido() const {
    return record_.get(&record::valor_pis_retido);
}
void total_nfe_retencao_tributos::set_valor_pis_retido(const optional<decimal>& value) {
    record_.set(&record::valor_pis_retido, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_cofins_retido() const {
    return record_.get(&record::valor_cofins_retido);
}
void total_nfe_retencao_tributos::set_valor_cofins_retido(const optional<decimal>& value) {
    record_.set(&record::valor_cofins_retido, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_csll_retido() const {
    return record_.get(&record::valor_csll_retido);
}
void total_nfe_retencao_tributos::set_valor_csll_retido(const optional<decimal>& value) {
    record_.set(&record::valor_csll_retido, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_base_calculo_irrf() const {
    return record_.get(&record::valor_base_calculo_irrf);
}
void total_nfe_retencao_tributos::set_valor_base_calculo_irrf(const optional<decimal>& value) {
    record_.set(&record::valor_base_calculo_irrf, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_irrf() const {
    return record_.get(&record::valor_irrf);
}
void total_nfe_retencao_tributos::set_valor_irrf(const optional<decimal>& value) {
    record_.set(&record::valor_irrf, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_bc_retencao_previdencia() const {
    return record_.get(&record::valor_bc_retencao_previdencia);
}
void total_nfe_retencao_tributos::set_valor_bc_retencao_previdencia(
    const optional<decimal>& value) {
    record_.set(&record::valor_bc_retencao_previdencia, value);
}

optional<decimal> total_nfe_retencao_tributos::get_valor_retencao_previdencia() const {
    return record_.get(&record::valor_retencao_previdencia);
}
void total_nfe_retencao_tributos::set_valor_retencao_previdencia(const optional<decimal>& value) {
    record_.set(&record::valor_retencao_previdencia, value);
}

} // namespace kivo::erp::v12::fiscal
