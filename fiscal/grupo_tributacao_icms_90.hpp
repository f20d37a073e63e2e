#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_icms_desonerado;
class tributacao_normal_icms_90;
class tributacao_st_icms_90;

/// ICMS in any other situation of the normal regime, CST 90 (ICMS90).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_90 {
public:
    grupo_tributacao_icms_90();
    grupo_tributacao_icms_90(const grupo_tributacao_icms_90& other);
    grupo_tributacao_icms_90(grupo_tributacao_icms_90&& other);
    grupo_tributacao_icms_90& operator=(const grupo_tributacao_icms_90& other);
    grupo_tributacao_icms_90& operator=(grupo_tributacao_icms_90&& other);
    ~grupo_tributacao_icms_90();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// The operation's own ICMS (its elements, modBC to vFCP, stand directly in ICMS90).
    optional<tributacao_normal_icms_90> get_tributacao_normal_icms_90() const;
    void set_tributacao_normal_icms_90(const optional<tributacao_normal_icms_90>& value);

    /// ICMS by tax substitution (its elements, modBCST to vFCPST, stand directly in ICMS90).
    optional<tributacao_st_icms_90> get_tributacao_st_icms_90() const;
    void set_tributacao_st_icms_90(const optional<tributacao_st_icms_90>& value);

    /// ICMS relief and its reason (vICMSDeson, motDesICMS, indDeduzDeson).
    optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const;
    void set_grupo_icms_desonerado(const optional<grupo_icms_desonerado>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
