#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// Electronic transaction of a payment: card, Pix, bank slip and the like (card).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT transacao_tef {
public:
    /// How the payment is tied to the company's system (tpIntegra).
    enum class tipo_integracao : std::uint32_t {
        nao_informado = 0, ///< never set; not a code of the layout
        integrado = 1,     ///< integrated with it, such as TEF or electronic commerce
        nao_integrado = 2, ///< apart from it, such as a simple POS
    };

    /// Card brand (tBand).
    enum class bandeira : std::uint32_t {
        nao_informado = 0,    ///< never set; not a code of the layout
        visa = 1,             ///< Visa
        mastercard = 2,       ///< Mastercard
        american_express = 3, ///< American Express
        sorocred = 4,         ///< Sorocred
        diners_club = 5,      ///< Diners Club
        elo = 6,              ///< Elo
        hipercard = 7,        ///< Hipercard
        aura = 8,             ///< Aura
        cabal = 9,            ///< Cabal
        alelo = 10,           ///< Alelo
        banes_card = 11,      ///< Banes Card
        calcard = 12,         ///< CalCard
        credz = 13,           ///< Credz
        discover = 14,        ///< Discover
        goodcard = 15,        ///< GoodCard
        greencard = 16,       ///< GreenCard
        hiper = 17,           ///< Hiper
        jcb = 18,             ///< JCB
        mais = 19,            ///< Mais
        maxvan = 20,          ///< MaxVan
        policard = 21,        ///< Policard
        rede_compras = 22,    ///< RedeCompras
        sodexo = 23,          ///< Sodexo
        valecard = 24,        ///< ValeCard
        verocheque = 25,      ///< Verocheque
        vr = 26,              ///< VR
        ticket = 27,          ///< Ticket
        outros = 99,          ///< another brand
    };

    transacao_tef();
    transacao_tef(const transacao_tef& other);
    transacao_tef(transacao_tef&& other);
    transacao_tef& operator=(const transacao_tef& other);
    transacao_tef& operator=(transacao_tef&& other);
    ~transacao_tef();

    /// How the payment is tied to the company's system; the layout demands it (tpIntegra).
    optional<tipo_integracao> get_tipo_integracao() const;
    void set_tipo_integracao(const optional<tipo_integracao>& value);

    /// Taxpayer number of the institution that processed the payment (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Card brand (tBand).
    optional<bandeira> get_bandeira() const;
    void set_bandeira(const optional<bandeira>& value);

    /// Authorisation of the transaction, as text, 1 to 128 characters (cAut).
    optional<std::string> get_numero_autorizacao() const;
    void set_numero_autorizacao(const optional<std::string>& value);

    /// Taxpayer number of the payee (CNPJReceb).
    optional<cnpj> get_cnpj_beneficiario() const;
    void set_cnpj_beneficiario(const optional<cnpj>& value);

    /// Payment terminal, 1 to 40 characters (idTermPag).
    optional<std::string> get_id_terminal_pagamento() const;
    void set_id_terminal_pagamento(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
