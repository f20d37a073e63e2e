#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// IPI computed by rate (its elements stand in IPITrib).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_ipi_calculo_aliquota {
public:
    tributacao_ipi_calculo_aliquota();
    tributacao_ipi_calculo_aliquota(const tributacao_ipi_calculo_aliquota& other);
    tributacao_ipi_calculo_aliquota(tributacao_ipi_calculo_aliquota&& other);
    tributacao_ipi_calculo_aliquota& operator=(const tributacao_ipi_calculo_aliquota& other);
    tributacao_ipi_calculo_aliquota& operator=(tributacao_ipi_calculo_aliquota&& other);
    ~tributacao_ipi_calculo_aliquota();

    /// IPI tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_ipi() const;
    void set_valor_bc_ipi(const optional<decimal>& value);

    /// IPI rate, in percent (pIPI).
    optional<decimal> get_aliquota_ipi() const;
    void set_aliquota_ipi(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
