#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// IPI computed per taxable unit (its element stands in IPITrib).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_ipi_calculo_valor {
public:
    tributacao_ipi_calculo_valor();
    tributacao_ipi_calculo_valor(const tributacao_ipi_calculo_valor& other);
    tributacao_ipi_calculo_valor(tributacao_ipi_calculo_valor&& other);
    tributacao_ipi_calculo_valor& operator=(const tributacao_ipi_calculo_valor& other);
    tributacao_ipi_calculo_valor& operator=(tributacao_ipi_calculo_valor&& other);
    ~tributacao_ipi_calculo_valor();

    /// IPI per taxable unit, in R$ (vUnid).
    optional<decimal> get_valor_unidade_tributavel() const;
    void set_valor_unidade_tributavel(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
