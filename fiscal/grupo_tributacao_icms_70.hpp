#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms.hpp>
#include <fiscal/modalidade_bc_icms_st.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp;
class grupo_fcp_st_retido;
class grupo_icms_desonerado;

/// ICMS of goods taxed on a reduced tax base, and also charged by tax substitution, CST 70
/// (ICMS70).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_70 {
public:
    grupo_tributacao_icms_70();
    grupo_tributacao_icms_70(const grupo_tributacao_icms_70& other);
    grupo_tributacao_icms_70(grupo_tributacao_icms_70&& other);
    grupo_tributacao_icms_70& operator=(const grupo_tributacao_icms_70& other);
    grupo_tributacao_icms_70& operator=(grupo_tributacao_icms_70&& other);
    ~grupo_tributacao_icms_70();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// How the tax base is determined (modBC).
    modalidade_bc_icms get_modalidade_bc_icms() const;
    void set_modalidade_bc_icms(modalidade_bc_icms value);

    /// Reduction of the tax base, in percent (pRedBC).
    optional<decimal> get_percentual_reducao_bc_icms() const;
    void set_percentual_reducao_bc_icms(const optional<decimal>& value);

    /// Tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_icms() const;
    void set_valor_bc_icms(const optional<decimal>& value);

    /// Poverty fund (FCP) share (vBCFCP, pFCP, vFCP).
    optional<grupo_fcp> get_fcp() const;
    void set_fcp(const optional<grupo_fcp>& value);

    /// ICMS rate, in percent (pICMS).
    optional<decimal> get_aliquota_icms() const;
    void set_aliquota_icms(const optional<decimal>& value);

    /// ICMS amount, in R$ (vICMS).
    optional<decimal> get_valor_icms() const;
    void set_valor_icms(const optional<decimal>& value);

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
