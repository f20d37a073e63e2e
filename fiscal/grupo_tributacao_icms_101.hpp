#pragma once

#include <fiscal/csosn.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// ICMS of the Simples Nacional with credit for the buyer, CSOSN 101 (ICMSSN101).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_101 {
public:
    grupo_tributacao_icms_101();
    grupo_tributacao_icms_101(const grupo_tributacao_icms_101& other);
    grupo_tributacao_icms_101(grupo_tributacao_icms_101&& other);
    grupo_tributacao_icms_101& operator=(const grupo_tributacao_icms_101& other);
    grupo_tributacao_icms_101& operator=(grupo_tributacao_icms_101&& other);
    ~grupo_tributacao_icms_101();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code of the Simples Nacional (CSOSN).
    csosn get_csosn() const;
    void set_csosn(csosn value);

    /// Rate of the credit that the buyer may take, in percent (pCredSN).
    optional<decimal> get_aliquota_de_credito_sn() const;
    void set_aliquota_de_credito_sn(const optional<decimal>& value);

    /// Amount of the credit that the buyer may take, in R$ (vCredICMSSN).
    optional<decimal> get_valor_de_credito_sn() const;
    void set_valor_de_credito_sn(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
