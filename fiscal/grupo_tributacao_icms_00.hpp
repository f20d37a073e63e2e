#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp;

/// ICMS of goods taxed in full, CST 00 (ICMS00).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_00 {
public:
    grupo_tributacao_icms_00();
    grupo_tributacao_icms_00(const grupo_tributacao_icms_00& other);
    grupo_tributacao_icms_00(grupo_tributacao_icms_00&& other);
    grupo_tributacao_icms_00& operator=(const grupo_tributacao_icms_00& other);
    grupo_tributacao_icms_00& operator=(grupo_tributacao_icms_00&& other);
    ~grupo_tributacao_icms_00();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// How the tax base is determined (modBC).
    modalidade_bc_icms get_modalidade_bc_icms() const;
    void set_modalidade_bc_icms(modalidade_bc_icms value);

    /// Tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_icms() const;
    void set_valor_bc_icms(const optional<decimal>& value);

    /// ICMS rate, in percent (pICMS).
    optional<decimal> get_aliquota_icms() const;
    void set_aliquota_icms(const optional<decimal>& value);

    /// ICMS amount, in R$ (vICMS).
    optional<decimal> get_valor_icms() const;
    void set_valor_icms(const optional<decimal>& value);

    /// Poverty fund (FCP) share, whose tax base has no element here (pFCP, vFCP).
    optional<grupo_fcp> get_fcp() const;
    void set_fcp(const optional<grupo_fcp>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
