#include "names.hpp"

#include "language.hpp"

#include <cstddef>

namespace nfe_summary {

namespace {

template <class Code> struct named_code {
    Code code;
    const char* name;
};

template <class Code, std::size_t count>
std::string name_in(const named_code<Code> (&names)[count], Code code) {
    for (const named_code<Code>& known : names) {
        if (known.code == code) {
            return tr(known.name);
        }
    }
    return code == Code() ? "" : say("code {}", static_cast<unsigned>(code));
}

} // namespace

std::string name_of(fiscal::emitente::regime_fiscal regime) {
    using enum fiscal::emitente::regime_fiscal;
    constexpr named_code<fiscal::emitente::regime_fiscal> names[] = {
        {simples_nacional, mark("Simples Nacional")},
        {simples_nacional_excesso_sublimite, mark("Simples Nacional above the sublimit")},
        {regime_normal, mark("normal tax regime")},
        {mei, mark("MEI")},
    };
    return name_in(names, regime);
}

std::string name_of(fiscal::nota_fiscal::tipo_operacao direction) {
    using enum fiscal::nota_fiscal::tipo_operacao;
    constexpr named_code<fiscal::nota_fiscal::tipo_operacao> names[] = {
        {entrada, mark("inbound")},
        {saida, mark("outbound")},
    };
    return name_in(names, direction);
}

std::string name_of(fiscal::nota_fiscal::indicador_operacao destination) {
    using enum fiscal::nota_fiscal::indicador_operacao;
    constexpr named_code<fiscal::nota_fiscal::indicador_operacao> names[] = {
        {interna, mark("within the state")},
        {interestadual, mark("to another state")},
        {exterior, mark("abroad")},
    };
    return name_in(names, destination);
}

std::string name_of(fiscal::nota_fiscal::indicador_finalidade_emissao purpose) {
    using enum fiscal::nota_fiscal::indicador_finalidade_emissao;
    constexpr named_code<fiscal::nota_fiscal::indicador_finalidade_emissao> names[] = {
        {normal, mark("regular invoice")},   {complementar, mark("complementary invoice")},
        {ajuste, mark("adjustment")},        {devolucao, mark("return of goods")},
        {nota_credito, mark("credit note")}, {nota_debito, mark("debit note")},
    };
    return name_in(names, purpose);
}

std::string name_of(fiscal::tipo_emissao emission) {
    using enum fiscal::tipo_emissao;
    constexpr named_code<fiscal::tipo_emissao> names[] = {
        {normal, mark("regular emission")},
        {contingencia_fs_ia, mark("contingency, security form FS-IA")},
        {regime_especial_nff, mark("special regime NFF")},
        {contingencia_epec, mark("contingency EPEC")},
        {contingencia_fs_da, mark("contingency, security form FS-DA")},
        {contingencia_svc_an, mark("contingency SVC-AN")},
        {contingencia_svc_rs, mark("contingency SVC-RS")},
        {contingencia_offline, mark("contingency, offline")},
    };
    return name_in(names, emission);
}

std::string name_of(fiscal::informacoes_transporte::modalidade_frete freight) {
    using enum fiscal::informacoes_transporte::modalidade_frete;
    constexpr named_code<fiscal::informacoes_transporte::modalidade_frete> names[] = {
        {por_conta_do_remetente, mark("by the sender (CIF)")},
        {por_conta_do_destinatario, mark("by the recipient (FOB)")},
        {por_conta_de_terceiros, mark("by a third party")},
        {proprio_do_remetente, mark("the sender's own vehicle")},
        {proprio_do_destinatario, mark("the recipient's own vehicle")},
        {sem_transporte, mark("without transport")},
    };
    return name_in(names, freight);
}

std::string name_of(fiscal::detalhes_pagamento::meio_pagamento means) {
    using enum fiscal::detalhes_pagamento::meio_pagamento;
    constexpr named_code<fiscal::detalhes_pagamento::meio_pagamento> names[] = {
        {dinheiro, mark("cash")},
        {cheque, mark("cheque")},
        {cartao_credito, mark("credit card")},
        {cartao_debito, mark("debit card")},
        {cartao_da_loja, mark("store card")},
        {vale_alimentacao, mark("food voucher")},
        {vale_refeicao, mark("meal voucher")},
        {vale_presente, mark("gift voucher")},
        {vale_combustivel, mark("fuel voucher")},
        {duplicata_mercantil, mark("trade bill")},
        {boleto_bancario, mark("bank slip")},
        {deposito_bancario, mark("bank deposit")},
        {pix_dinamico, mark("Pix (dynamic)")},
        {transferencia_bancaria, mark("bank transfer")},
        {fidelidade_ou_cashback, mark("loyalty or cashback")},
        {pix_estatico, mark("Pix (static)")},
        {credito_em_loja, mark("store credit")},
        {eletronico_nao_informado, mark("electronic, not told")},
        {pix_automatico, mark("Pix (recurring)")},
        {transferencia_mesmo_banco, mark("transfer within the bank")},
        {sem_pagamento, mark("no payment")},
        {pagamento_posterior, mark("paid later")},
        {outros, mark("other means")},
    };
    return name_in(names, means);
}

std::string name_of(fiscal::detalhes_pagamento::indicador_forma_pagamento terms) {
    using enum fiscal::detalhes_pagamento::indicador_forma_pagamento;
    constexpr named_code<fiscal::detalhes_pagamento::indicador_forma_pagamento> names[] = {
        {a_vista, mark("at once")},
        {a_prazo, mark("on terms")},
    };
    return name_in(names, terms);
}

} // namespace nfe_summary
