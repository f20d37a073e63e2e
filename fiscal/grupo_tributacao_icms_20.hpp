#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp;
class grupo_icms_desonerado;

/// ICMS of goods taxed on a reduced tax base, CST 20 (ICMS20).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_20 {
public:
    grupo_tributacao_icms_20();
    grupo_tributacao_icms_20(const grupo_tributacao_icms_20& other);
    grupo_tributacao_icms_20(grupo_tributacao_icms_20&& other);
    grupo_tributacao_icms_20& operator=(const grupo_tributacao_icms_20& other);
    grupo_tributacao_icms_20& operator=(grupo_tributacao_icms_20&& other);
    ~grupo_tributacao_icms_20();

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

    /// ICMS rate, in percent (pICMS).
    optional<decimal> get_aliquota_icms() const;
    void set_aliquota_icms(const optional<decimal>& value);

    /// ICMS amount, in R$ (vICMS).
    optional<decimal> get_valor_icms() const;
    void set_valor_icms(const optional<decimal>& value);

    /// Poverty fund (FCP) share (vBCFCP, pFCP, vFCP).
    optional<grupo_fcp> get_fcp() const;
    void set_fcp(const optional<grupo_fcp>& value);

    /// ICMS relief and its reason (vICMSDeson, motDesICMS, indDeduzDeson).
    optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const;
    void set_grupo_icms_desonerado(const optional<grupo_icms_desonerado>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
