#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Federal taxes withheld at source (retTrib).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_nfe_retencao_tributos {
public:
    total_nfe_retencao_tributos() noexcept;
    total_nfe_retencao_tributos(const total_nfe_retencao_tributos& other);
    total_nfe_retencao_tributos(total_nfe_retencao_tributos&& other) noexcept;
    total_nfe_retencao_tributos& operator=(const total_nfe_retencao_tributos& other);
    total_nfe_retencao_tributos& operator=(total_nfe_retencao_tributos&& other) noexcept;
    ~total_nfe_retencao_tributos();
    void swap(total_nfe_retencao_tributos& other) noexcept;

    /// PIS withheld, in R$ (vRetPIS).
    optional<decimal> get_valor_pis_retido() const;
    void set_valor_pis_retido(const optional<decimal>& value);

    /// COFINS withheld, in R$ (vRetCOFINS).
    optional<decimal> get_valor_cofins_retido() const;
    void set_valor_cofins_retido(const optional<decimal>& value);

    /// Social contribution on net profit (CSLL) withheld, in R$ (vRetCSLL).
    optional<decimal> get_valor_csll_retido() const;
    void set_valor_csll_retido(const optional<decimal>& value);

    /// Tax base of the income tax withheld (IRRF), in R$ (vBCIRRF).
    optional<decimal> get_valor_base_calculo_irrf() const;
    void set_valor_base_calculo_irrf(const optional<decimal>& value);

    /// Income tax withheld (IRRF), in R$ (vIRRF).
    optional<decimal> get_valor_irrf() const;
    void set_valor_irrf(const optional<decimal>& value);

    /// Base of the social security contribution withheld, in R$ (vBCRetPrev).
    optional<decimal> get_valor_bc_retencao_previdencia() const;
    void set_valor_bc_retencao_previdencia(const optional<decimal>& value);

    /// Social security contribution withheld, in R$ (vRetPrev).
    optional<decimal> get_valor_retencao_previdencia() const;
    void set_valor_retencao_previdencia(const optional<decimal>& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
