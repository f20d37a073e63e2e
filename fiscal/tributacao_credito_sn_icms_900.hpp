#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// ICMS credit that the Simples Nacional leaves to the buyer, under CSOSN 900 (its elements stand
/// in ICMSSN900).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_credito_sn_icms_900 {
public:
    tributacao_credito_sn_icms_900();
    tributacao_credito_sn_icms_900(const tributacao_credito_sn_icms_900& other);
    tributacao_credito_sn_icms_900(tributacao_credito_sn_icms_900&& other);
    tributacao_credito_sn_icms_900& operator=(const tributacao_credito_sn_icms_900& other);
    tributacao_credito_sn_icms_900& operator=(tributacao_credito_sn_icms_900&& other);
    ~tributacao_credito_sn_icms_900();

    /// Rate of the credit, in percent (pCredSN).
    decimal get_aliquota_de_credito_sn() const;
    void set_aliquota_de_credito_sn(const decimal& value);

    /// Amount of the credit, in R$ (vCredICMSSN).
    decimal get_valor_de_credito_sn() const;
    void set_valor_de_credito_sn(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
