#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms_st.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp_st_retido;

/// ICMS withheld by tax substitution under CST 90 (its elements stand in ICMS90).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_st_icms_90 {
public:
    tributacao_st_icms_90();
    tributacao_st_icms_90(const tributacao_st_icms_90& other);
    tributacao_st_icms_90(tributacao_st_icms_90&& other);
    tributacao_st_icms_90& operator=(const tributacao_st_icms_90& other);
    tributacao_st_icms_90& operator=(tributacao_st_icms_90&& other);
    ~tributacao_st_icms_90();

    /// How the tax base of the substitution is determined (modBCST).
    modalidade_bc_icms_st get_modalidade_bc_icms_st() const;
    void set_modalidade_bc_icms_st(modalidade_bc_icms_st value);

    /// Value-added margin of the tax substitution, in percent (pMVAST).
    optional<decimal> get_percentual_margem_valor_adicionado_icms_st() const;
    void set_percentual_margem_valor_adicionado_icms_st(const optional<decimal>& value);

    /// Reduction of the tax base, in percent (pRedBCST).
    optional<decimal> get_percentual_reducao_bc_icms_st() const;
    void set_percentual_reducao_bc_icms_st(const optional<decimal>& value);

    /// Tax base, in R$ (vBCST).
    optional<decimal> get_valor_bc_icms_st() const;
    void set_valor_bc_icms_st(const optional<decimal>& value);

    /// Rate, in percent (pICMSST).
    optional<decimal> get_aliquota_icms_st() const;
    void set_aliquota_icms_st(const optional<decimal>& value);

    /// Amount withheld, in R$ (vICMSST).
    optional<decimal> get_valor_icms_st() const;
    void set_valor_icms_st(const optional<decimal>& value);

    /// Poverty fund share withheld by tax substitution (vBCFCPST, pFCPST, vFCPST).
    optional<grupo_fcp_st_retido> get_fcp_st_retido() const;
    void set_fcp_st_retido(const optional<grupo_fcp_st_retido>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
