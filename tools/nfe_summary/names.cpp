#include "names.hpp"

#include <fmt/format.h>

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
            return known.name;
        }
    }
    return code == Code() ? "" : fmt::format("code {}", static_cast<unsigned>(code));
}

} // namespace

std::string name_of(fiscal::emitente::regime_fiscal regime) {
    using enum fiscal::emitente::regime_fiscal;
    constexpr named_code<fiscal::emitente::regime_fiscal> names[] = {
        {simples_nacional, "Simples Nacional"},
        {simples_nacional_excesso_sublimite, "Simples Nacional above the sublimit"},
        {regime_normal, "normal tax regime"},
        {mei, "MEI"},
    };
    return name_in(names, regime);
}

std::string name_of(fiscal::nota_fiscal::tipo_operacao direction) {
    using enum fiscal::nota_fiscal::tipo_operacao;
    constexpr named_code<fiscal::nota_fiscal::tipo_operacao> names[] = {
        {entrada, "inbound"},
        {saida, "outbound"},
    };
    return name_in(names, direction);
}

std::string name_of(fiscal::nota_fiscal::indicador_operacao destination) {
    using enum fiscal::nota_fiscal::indicador_operacao;
    constexpr named_code<fiscal::nota_fiscal::indicador_operacao> names[] = {
        {interna, "within the state"},
        {interestadual, "to another state"},
        {exterior, "abroad"},
    };
    return name_in(names, destination);
}

std::string name_of(fiscal::nota_fiscal::indicador_finalidade_emissao purpose) {
    using enum fiscal::nota_fiscal::indicador_finalidade_emissao;
    constexpr named_code<fiscal::nota_fiscal::indicador_finalidade_emissao> names[] = {
        {normal, "regular invoice"},   {complementar, "complementary invoice"},
        {ajuste, "adjustment"},        {devolucao, "return of goods"},
        {nota_credito, "credit note"}, {nota_debito, "debit note"},
    };
    return name_in(names, purpose);
}

std::string name_of(fiscal::tipo_emissao emission) {
    using enum fiscal::tipo_emissao;
    constexpr named_code<fiscal::tipo_emissao> names[] = {
        {normal, "regular"},
        {contingencia_fs_ia, "contingency, security form FS-IA"},
        {regime_especial_nff, "special regime NFF"},
        {contingencia_epec, "contingency EPEC"},
        {contingencia_fs_da, "contingency, security form FS-DA"},
        {contingencia_svc_an, "contingency SVC-AN"},
        {contingencia_svc_rs, "contingency SVC-RS"},
        {contingencia_offline, "contingency, offline"},
    };
    return name_in(names, emission);
}

std::string name_of(fiscal::informacoes_transporte::modalidade_frete freight) {
    using enum fiscal::informacoes_transporte::modalidade_frete;
    constexpr named_code<fiscal::informacoes_transporte::modalidade_frete> names[] = {
        {por_conta_do_remetente, "by the sender (CIF)"},
        {por_conta_do_destinatario, "by the recipient (FOB)"},
        {por_conta_de_terceiros, "by a third party"},
        {proprio_do_remetente, "the sender's own vehicle"},
        {proprio_do_destinatario, "the recipient's own vehicle"},
        {sem_transporte, "none"},
    };
    return name_in(names, freight);
}

std::string name_of(fiscal::detalhes_pagamento::meio_pagamento means) {
    using enum fiscal::detalhes_pagamento::meio_pagamento;
    constexpr named_code<fiscal::detalhes_pagamento::meio_pagamento> names[] = {
        {dinheiro, "cash"},
        {cheque, "cheque"},
        {cartao_credito, "credit card"},
        {cartao_debito, "debit card"},
        {cartao_da_loja, "store card"},
        {vale_alimentacao, "food voucher"},
        {vale_refeicao, "meal voucher"},
        {vale_presente, "gift voucher"},
        {vale_combustivel, "fuel voucher"},
        {duplicata_mercantil, "trade bill"},
        {boleto_bancario, "bank slip"},
        {deposito_bancario, "bank deposit"},
        {pix_dinamico, "Pix (dynamic)"},
        {transferencia_bancaria, "bank transfer"},
        {fidelidade_ou_cashback, "loyalty or cashback"},
        {pix_estatico, "Pix (static)"},
        {credito_em_loja, "store credit"},
        {eletronico_nao_informado, "electronic, not told"},
        {pix_automatico, "Pix (recurring)"},
        {transferencia_mesmo_banco, "transfer within the bank"},
        {sem_pagamento, "no payment"},
        {pagamento_posterior, "paid later"},
        {outros, "other"},
    };
    return name_in(names, means);
}

std::string name_of(fiscal::detalhes_pagamento::indicador_forma_pagamento terms) {
    using enum fiscal::detalhes_pagamento::indicador_forma_pagamento;
    constexpr named_code<fiscal::detalhes_pagamento::indicador_forma_pagamento> names[] = {
        {a_vista, "at once"},
        {a_prazo, "on terms"},
    };
    return name_in(names, terms);
}

} // namespace nfe_summary
