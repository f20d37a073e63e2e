#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms_st.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp_st_retido;
class grupo_icms_desonerado;

/// ICMS of goods exempt or not taxed, but charged by tax substitution, CST 30 (ICMS30).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_30 {
public:
    grupo_tributacao_icms_30();
    grupo_tributacao_icms_30(const grupo_tributacao_icms_30& other);
    grupo_tributacao_icms_30(grupo_tributacao_icms_30&& other);
    grupo_tributacao_icms_30& operator=(const grupo_tributacao_icms_30& other);
    grupo_tributacao_icms_30& operator=(grupo_tributacao_icms_30&& other);
    ~grupo_tributacao_icms_30();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// How the tax base of the substitution is determined (modBCST).
    modalidade_bc_icms_st get_modalidade_bc_icms_st() const;
    void set_modalidade_bc_icms_st(modalidade_bc_icms_st value);

    /// Value-added margin in the tax base of the substitution, in percent (pMVAST).
    optional<decimal> get_percentual_margem_valor_adicionado_icms_st() const;
    void set_percentual_margem_valor_adicionado_icms_st(const optional<decimal>& value);

    /// Reduction of the tax base of the substitution, in percent (pRedBCST).
    optional<decimal> get_percentual_reducao_bc_icms_st() const;
    void set_percentual_reducao_bc_icms_st(const optional<decimal>& value);

    /// Tax base of the substitution, in R$ (vBCST).
    optional<decimal> get_valor_bc_icms_st() const;
    void set_valor_bc_icms_st(const optional<decimal>& value);

    /// ICMS rate of the substitution, in percent (pICMSST).
    optional<decimal> get_aliquota_icms_st() const;
    void set_aliquota_icms_st(const optional<decimal>& value);

    /// ICMS amount withheld by substitution, in R$ (vICMSST).
    optional<decimal> get_valor_icms_st() const;
    void set_valor_icms_st(const optional<decimal>& value);

    /// Poverty fund (FCP) share withheld by substitution (vBCFCPST, pFCPST, vFCPST).
    optional<grupo_fcp_st_retido> get_fcp_st_retido() const;
    void set_fcp_st_retido(const optional<grupo_fcp_st_retido>& value);

    /// ICMS relief and its reason (vICMSDeson, motDesICMS, indDeduzDeson).
    optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const;
    void set_grupo_icms_desonerado(const optional<grupo_icms_desonerado>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
