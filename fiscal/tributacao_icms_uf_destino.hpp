#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// ICMS shared between the two states of an interstate sale to a final consumer who is no ICMS
/// taxpayer (ICMSUFDest).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_icms_uf_destino {
public:
    tributacao_icms_uf_destino();
    tributacao_icms_uf_destino(const tributacao_icms_uf_destino& other);
    tributacao_icms_uf_destino(tributacao_icms_uf_destino&& other);
    tributacao_icms_uf_destino& operator=(const tributacao_icms_uf_destino& other);
    tributacao_icms_uf_destino& operator=(tributacao_icms_uf_destino&& other);
    ~tributacao_icms_uf_destino();

    /// Tax base in the state of destination, in R$ (vBCUFDest).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// FCP tax base in the state of destination, in R$ (vBCFCPUFDest).
    optional<decimal> get_valor_bc_fcp() const;
    void set_valor_bc_fcp(const optional<decimal>& value);

    /// FCP rate in the state of destination, in percent (pFCPUFDest).
    optional<decimal> get_percentual_fundo_combate_pobreza() const;
    void set_percentual_fundo_combate_pobreza(const optional<decimal>& value);

    /// Internal rate of the state of destination, in percent (pICMSUFDest).
    decimal get_aliquota_interna() const;
    void set_aliquota_interna(const decimal& value);

    /// Interstate rate, in percent: 4.00, 7.00 or 12.00, with two decimal places (pICMSInter).
    decimal get_aliquota_interestadual() const;
    void set_aliquota_interestadual(const decimal& value);

    /// Share of the state of destination, in percent, 100 since 2019 (pICMSInterPart).
    decimal get_percentual_partilha() const;
    void set_percentual_partilha(const decimal& value);

    /// FCP amount due to the state of destination, in R$ (vFCPUFDest).
    optional<decimal> get_valor_icms_fundo_combate_pobreza() const;
    void set_valor_icms_fundo_combate_pobreza(const optional<decimal>& value);

    /// ICMS amount due to the state of destination, in R$ (vICMSUFDest).
    decimal get_valor_icms_uf_destino() const;
    void set_valor_icms_uf_destino(const decimal& value);

    /// ICMS amount due to the sender's state, in R$ (vICMSUFRemet).
    decimal get_valor_icms_uf_remetente() const;
    void set_valor_icms_uf_remetente(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
