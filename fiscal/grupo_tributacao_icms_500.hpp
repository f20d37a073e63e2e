#pragma once

#include <fiscal/csosn.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp_st_retido_anteriormente;
class grupo_icms_st_retido;
class informacoes_icms_efetivo;

/// ICMS of the Simples Nacional charged before, by tax substitution or in advance, CSOSN 500
/// (ICMSSN500).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_500 {
public:
    grupo_tributacao_icms_500();
    grupo_tributacao_icms_500(const grupo_tributacao_icms_500& other);
    grupo_tributacao_icms_500(grupo_tributacao_icms_500&& other);
    grupo_tributacao_icms_500& operator=(const grupo_tributacao_icms_500& other);
    grupo_tributacao_icms_500& operator=(grupo_tributacao_icms_500&& other);
    ~grupo_tributacao_icms_500();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code of the Simples Nacional (CSOSN).
    csosn get_csosn() const;
    void set_csosn(csosn value);

    /// ICMS withheld earlier by substitution (vBCSTRet, pST, vICMSSubstituto, vICMSSTRet).
    optional<grupo_icms_st_retido> get_icms_st_retido() const;
    void set_icms_st_retido(const optional<grupo_icms_st_retido>& value);

    /// Poverty fund (FCP) share withheld earlier (vBCFCPSTRet, pFCPSTRet, vFCPSTRet).
    optional<grupo_fcp_st_retido_anteriormente> get_fcp_st_retido_anteriormente() const;
    void set_fcp_st_retido_anteriormente(const optional<grupo_fcp_st_retido_anteriormente>& value);

    /// Effective ICMS (pRedBCEfet, vBCEfet, pICMSEfet, vICMSEfet).
    optional<informacoes_icms_efetivo> get_informacoes_icms_efetivo() const;
    void set_informacoes_icms_efetivo(const optional<informacoes_icms_efetivo>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
