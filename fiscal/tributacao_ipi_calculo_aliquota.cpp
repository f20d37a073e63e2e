#include <fiscal/tributacao_ipi_calculo_aliquota.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_ipi_calculo_aliquota::record {
    optional<decimal> valor_bc_ipi;
    optional<decimal> aliquota_ipi;
};

tributacao_ipi_calculo_aliquota::tributacao_ipi_calculo_aliquota() = default;
tributacao_ipi_calculo_aliquota::tributacao_ipi_calculo_aliquota(
    const tributacao_ipi_calculo_aliquota&) = default;
tributacao_ipi_calculo_aliquota::tributacao_ipi_calculo_aliquota(
    tributacao_ipi_calculo_aliquota&&) = default;
tributacao_ipi_calculo_aliquota&
tributacao_ipi_calculo_aliquota::operator=(const tributacao_ipi_calculo_aliquota&) = default;
tributacao_ipi_calculo_aliquota&
tributacao_ipi_calculo_aliquota::operator=(tributacao_ipi_calculo_aliquota&&) = default;
tributacao_ipi_calculo_aliquota::~tributacao_ipi_calculo_aliquota() = default;

optional<decimal> tributacao_ipi_calculo_aliquota::get_valor_bc_ipi() const {
    return record_->valor_bc_ipi;
}
void tributacao_ipi_calculo_aliquota::set_valor_bc_ipi(const optional<decimal>& value) {
    record_->valor_bc_ipi = value;
}

optional<decimal> tributacao_ipi_calculo_aliquota::get_aliquota_ipi() const {
    return record_->aliquota_ipi;
}
void tributacao_ipi_calculo_aliquota::set_aliquota_ipi(const optional<decimal>& value) {
    record_->aliquota_ipi = value;
}

} // namespace kivo::erp::v12::fiscal
