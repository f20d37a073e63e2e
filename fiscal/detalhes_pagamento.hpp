#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

class transacao_pagamento;
class transacao_tef;

/// One payment (detPag).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT detalhes_pagamento {
public:
    /// Whether the payment is made at once or on terms (indPag).
    enum class indicador_forma_pagamento : std::uint32_t {
        a_vista = 0, ///< at once
        a_prazo = 1, ///< on terms
    };

    /// Means of payment (tPag).
    enum class meio_pagamento : std::uint32_t {
        nao_informado = 0,             ///< never set; not a code of the layout
        dinheiro = 1,                  ///< cash
        cheque = 2,                    ///< cheque
        cartao_credito = 3,            ///< credit card
        cartao_debito = 4,             ///< debit card
        cartao_da_loja = 5,            ///< the shop's own card and other store credit on terms
        vale_alimentacao = 10,         ///< food voucher
        vale_refeicao = 11,            ///< meal voucher
        vale_presente = 12,            ///< gift voucher
        vale_combustivel = 13,         ///< fuel voucher
        duplicata_mercantil = 14,      ///< trade bill
        boleto_bancario = 15,          ///< bank slip
        deposito_bancario = 16,        ///< bank deposit
        pix_dinamico = 17,             ///< Pix by a dynamic QR code
        transferencia_bancaria = 18,   ///< bank transfer (TED); before May 2026 digital wallets too
        fidelidade_ou_cashback = 19,   ///< loyalty programme, cashback or virtual credit
        pix_estatico = 20,             ///< Pix by a static QR code
        credito_em_loja = 21,          ///< credit that the customer has at the shop
        eletronico_nao_informado = 22, ///< electronic, its data lost by a failure of the equipment
        pix_automatico = 23,           ///< recurring Pix, authorised before; since May 2026
        transferencia_mesmo_banco = 24, ///< transfer inside one bank by TEF; since May 2026
        sem_pagamento = 90,             ///< no payment
        pagamento_posterior = 91, ///< paid after the issue of the invoice; since November 2025
        outros = 99,              ///< other means, described in xPag
    };

    detalhes_pagamento();
    detalhes_pagamento(const detalhes_pagamento& other);
    detalhes_pagamento(detalhes_pagamento&& other);
    detalhes_pagamento& operator=(const detalhes_pagamento& other);
    detalhes_pagamento& operator=(detalhes_pagamento&& other);
    ~detalhes_pagamento();

    /// Whether the payment is made at once or on terms (indPag).
    optional<indicador_forma_pagamento> get_indicador_forma_pagamento() const;
    void set_indicador_forma_pagamento(const optional<indicador_forma_pagamento>& value);

    /// Means of payment (tPag).
    meio_pagamento get_meio_pagamento() const;
    void set_meio_pagamento(meio_pagamento value);

    /// Description of a means that has no code of its own, 2 to 60 characters (xPag).
    optional<std::string> get_descricao_meio_pagamento() const;
    void set_descricao_meio_pagamento(const optional<std::string>& value);

    /// Amount paid, in R$ (vPag).
    decimal get_valor_pagamento() const;
    void set_valor_pagamento(const decimal& value);

    /// Date of payment (dPag).
    optional<date> get_data_pagamento() const;
    void set_data_pagamento(const optional<date>& value);

    /// Establishment that was paid, where it is not the issuer (CNPJPag and UFPag).
    optional<transacao_pagamento> get_transacao_pagamento() const;
    void set_transacao_pagamento(const optional<transacao_pagamento>& value);

    /// Electronic transaction, such as by card or Pix (card).
    optional<transacao_tef> get_transacao_tef() const;
    void set_transacao_tef(const optional<transacao_tef>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
