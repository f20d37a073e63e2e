#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_fcp_st_retido_anteriormente;
class informacoes_icms_efetivo;

/// ICMS withheld earlier by tax substitution, passed on to the state of destination, CST 41 and 60
/// (ICMSST).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_repasse_icms_st {
public:
    grupo_repasse_icms_st();
    grupo_repasse_icms_st(const grupo_repasse_icms_st& other);
    grupo_repasse_icms_st(grupo_repasse_icms_st&& other);
    grupo_repasse_icms_st& operator=(const grupo_repasse_icms_st& other);
    grupo_repasse_icms_st& operator=(grupo_repasse_icms_st&& other);
    ~grupo_repasse_icms_st();

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(const origem_cst& value);

    /// Situation code (CST).
    cst get_tributacao_icms() const;
    void set_tributacao_icms(const cst& value);

    /// Tax base of the ICMS withheld for the state of origin, in R$ (vBCSTRet).
    decimal get_valor_bc_icms_st_retido() const;
    void set_valor_bc_icms_st_retido(const decimal& value);

    /// Rate borne by the final consumer, FCP included, in percent (pST).
    optional<decimal> get_aliquota_suportada_consumidor_final() const;
    void set_aliquota_suportada_consumidor_final(const optional<decimal>& value);

    /// The substitute's own ICMS amount, in R$ (vICMSSubstituto).
    optional<decimal> get_valor_icms_proprio_substituto() const;
    void set_valor_icms_proprio_substituto(const optional<decimal>& value);

    /// ICMS amount withheld for the state of origin, in R$ (vICMSSTRet).
    decimal get_valor_icms_st_retido() const;
    void set_valor_icms_st_retido(const decimal& value);

    /// Tax base of the ICMS due to the state of destination, in R$ (vBCSTDest).
    decimal get_valor_bc_icms_st_destino() const;
    void set_valor_bc_icms_st_destino(const decimal& value);

    /// ICMS amount due to the state of destination, in R$ (vICMSSTDest).
    decimal get_valor_icms_st_destino() const;
    void set_valor_icms_st_destino(const decimal& value);

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
