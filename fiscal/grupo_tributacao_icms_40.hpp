#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_icms_desonerado;

/// ICMS of goods exempt, not taxed or with the tax suspended, CST 40, 41 and 50 (ICMS40).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_40 {
public:
    grupo_tributacao_icms_40();
    grupo_tributacao_icms_40(const grupo_tributacao_icms_40& other);
    grupo_tributacao_icms_40(grupo_tributacao_icms_40&& other);
    grupo_tributacao_icms_40& operator=(const grupo_tributacao_icms_40& other);
    grupo_tributacao_icms_40& operator=(grupo_tributacao_icms_40&& other);
    ~grupo_tributacao_icms_40();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// ICMS relief and its reason (vICMSDeson, motDesICMS, indDeduzDeson).
    optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const;
    void set_grupo_icms_desonerado(const optional<grupo_icms_desonerado>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
