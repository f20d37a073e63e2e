#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// ICMS withheld by tax substitution in an earlier operation (its elements stand in ICMS60 and
/// ICMSSN500).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_icms_st_retido {
public:
    grupo_icms_st_retido();
    grupo_icms_st_retido(const grupo_icms_st_retido& other);
    grupo_icms_st_retido(grupo_icms_st_retido&& other);
    grupo_icms_st_retido& operator=(const grupo_icms_st_retido& other);
    grupo_icms_st_retido& operator=(grupo_icms_st_retido&& other);
    ~grupo_icms_st_retido();

    /// Tax base of the ICMS withheld, in R$ (vBCSTRet).
    decimal get_valor_bc_icms_retido() const;
    void set_valor_bc_icms_retido(const decimal& value);

    /// Rate borne by the final consumer, FCP included, in percent (pST).
    decimal get_aliquota_suportada_consumidor_final() const;
    void set_aliquota_suportada_consumidor_final(const decimal& value);

    /// Own ICMS amount of the tax substitute, in R$ (vICMSSubstituto).
    optional<decimal> get_valor_icms_proprio_substituto() const;
    void set_valor_icms_proprio_substituto(const optional<decimal>& value);

    /// ICMS amount withheld, in R$ (vICMSSTRet).
    decimal get_valor_icms_st_retido() const;
    void set_valor_icms_st_retido(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
