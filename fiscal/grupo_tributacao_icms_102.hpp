#pragma once

#include <fiscal/csosn.hpp>
#include <fiscal/export.hpp>
#include <fiscal/origem_cst.hpp>

namespace kivo::erp::v12::fiscal {

/// ICMS of the Simples Nacional without credit or charge, CSOSN 102, 103, 300 and 400 (ICMSSN102).
/// In place: the fields stand in the object, nothing is allocated and nothing fails.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_102 {
public:
    grupo_tributacao_icms_102();
    grupo_tributacao_icms_102(const grupo_tributacao_icms_102& other);
    grupo_tributacao_icms_102(grupo_tributacao_icms_102&& other);
    grupo_tributacao_icms_102& operator=(const grupo_tributacao_icms_102& other);
    grupo_tributacao_icms_102& operator=(grupo_tributacao_icms_102&& other);
    ~grupo_tributacao_icms_102();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code of the Simples Nacional (CSOSN).
    csosn get_csosn() const;
    void set_csosn(csosn value);

private:
    origem_cst origem_mercadoria_ = {};
    csosn csosn_ = {};
};

} // namespace kivo::erp::v12::fiscal
