#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

class grupo_fcp;

/// ICMS deferred, in whole or in part, CST 51 (ICMS51).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_51 {
public:
    grupo_tributacao_icms_51();
    grupo_tributacao_icms_51(const grupo_tributacao_icms_51& other);
    grupo_tributacao_icms_51(grupo_tributacao_icms_51&& other);
    grupo_tributacao_icms_51& operator=(const grupo_tributacao_icms_51& other);
    grupo_tributacao_icms_51& operator=(grupo_tributacao_icms_51&& other);
    ~grupo_tributacao_icms_51();

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

    /// ICMS amount as it would be without the deferral, in R$ (vICMSOp).
    optional<decimal> get_valor_icms_operacao() const;
    void set_valor_icms_operacao(const optional<decimal>& value);

    /// Deferred share of the amount, in percent (pDif).
    optional<decimal> get_percentual_diferimento() const;
    void set_percentual_diferimento(const optional<decimal>& value);

    /// Deferred ICMS amount, in R$ (vICMSDif).
    optional<decimal> get_valor_icms_diferido() const;
    void set_valor_icms_diferido(const optional<decimal>& value);

    /// ICMS amount still due, without the deferred one, in R$ (vICMS).
    optional<decimal> get_valor_icms() const;
    void set_valor_icms(const optional<decimal>& value);

    /// Poverty fund (FCP) share (vBCFCP, pFCP, vFCP).
    optional<grupo_fcp> get_fcp() const;
    void set_fcp(const optional<grupo_fcp>& value);

    /// Tax benefit code of the reduction of the tax base, 8 or 10 characters (cBenefRBC).
    optional<std::string> get_codigo_beneficio_fiscal_reducao_bc_icms() const;
    void set_codigo_beneficio_fiscal_reducao_bc_icms(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
