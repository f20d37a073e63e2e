#include <fiscal/tributacao_ipi_calculo_valor.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_ipi_calculo_valor::record {
    optional<decimal> valor_unidade_tributavel;
};

tributacao_ipi_calculo_valor::tributacao_ipi_calculo_valor() = default;
tributacao_ipi_calculo_valor::tributacao_ipi_calculo_valor(const tributacao_ipi_calculo_valor&) =
    default;
tributacao_ipi_calculo_valor::tributacao_ipi_calculo_valor(tributacao_ipi_calculo_valor&&) =
    default;
tributacao_ipi_calculo_valor&
tributacao_ipi_calculo_valor::operator=(const tributacao_ipi_calculo_valor&) = default;
tributacao_ipi_calculo_valor&
tributacao_ipi_calculo_valor::operator=(tributacao_ipi_calculo_valor&&) = default;
tributacao_ipi_calculo_valor::~tributacao_ipi_calculo_valor() = default;

optional<decimal> tributacao_ipi_calculo_valor::get_valor_unidade_tributavel() const {
    return record_->valor_unidade_tributavel;
}
void tributacao_ipi_calculo_valor::set_valor_unidade_tributavel(const optional<decimal>& value) {
    record_->valor_unidade_tributavel = value;
}

} // namespace kivo::erp::v12::fiscal
