#pragma once

#include <fiscal/csosn.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class tributacao_credito_sn_icms_900;
class tributacao_normal_icms_900;
class tributacao_st_icms_900;

/// ICMS in any other situation of the Simples Nacional, CSOSN 900 (ICMSSN900).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_900 {
public:
    grupo_tributacao_icms_900();
    grupo_tributacao_icms_900(const grupo_tributacao_icms_900& other);
    grupo_tributacao_icms_900(grupo_tributacao_icms_900&& other);
    grupo_tributacao_icms_900& operator=(const grupo_tributacao_icms_900& other);
    grupo_tributacao_icms_900& operator=(grupo_tributacao_icms_900&& other);
    ~grupo_tributacao_icms_900();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code of the Simples Nacional (CSOSN).
    csosn get_csosn() const;
    void set_csosn(csosn value);

    /// The operation's own ICMS (its elements, modBC to vICMS, stand directly in ICMSSN900).
    optional<tributacao_normal_icms_900> get_tributacao_normal_icms_900() const;
    void set_tributacao_normal_icms_900(const optional<tributacao_normal_icms_900>& value);

    /// ICMS by tax substitution (its elements, modBCST to vFCPST, stand directly in ICMSSN900).
    optional<tributacao_st_icms_900> get_tributacao_st_icms_900() const;
    void set_tributacao_st_icms_900(const optional<tributacao_st_icms_900>& value);

    /// Credit that the buyer may take (pCredSN, vCredICMSSN).
    optional<tributacao_credito_sn_icms_900> get_tributacao_credito_sn_icms_900() const;
    void set_tributacao_credito_sn_icms_900(const optional<tributacao_credito_sn_icms_900>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
