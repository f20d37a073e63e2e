#pragma once

#include <layout/map.hpp>

#include <fiscal/cobranca.hpp>
#include <fiscal/detalhes_pagamento.hpp>
#include <fiscal/duplicata.hpp>
#include <fiscal/informacoes_pagamento.hpp>
#include <fiscal/transacao_pagamento.hpp>
#include <fiscal/transacao_tef.hpp>

namespace kivo::erp::v12::layout {

using fiscal::cobranca;
using fiscal::detalhes_pagamento;
using fiscal::duplicata;
using fiscal::informacoes_pagamento;
using fiscal::transacao_pagamento;
using fiscal::transacao_tef;

template <>
inline constexpr auto fields<duplicata> = std::tuple{
    field{"nDup", &duplicata::get_numero_duplicata, &duplicata::set_numero_duplicata},
    field{"dVenc", &duplicata::get_data_vencimento, &duplicata::set_data_vencimento},
    field{"vDup", &duplicata::get_valor_duplicata, &duplicata::set_valor_duplicata},
};

template <>
inline constexpr auto fields<cobranca> = std::tuple{
    element{
        "fat", field{"nFat", &cobranca::get_numero_fatura, &cobranca::set_numero_fatura},
        field{"vOrig", &cobranca::get_valor_original_fatura, &cobranca::set_valor_original_fatura},
        field{"vDesc", &cobranca::get_valor_desconto, &cobranca::set_valor_desconto},
        field{"vLiq", &cobranca::get_valor_liquido, &cobranca::set_valor_liquido}},
    field{"dup", &cobranca::get_duplicatas, &cobranca::set_duplicatas},
};

template <>
inline constexpr auto fields<transacao_pagamento> = std::tuple{
    field{"CNPJPag", &transacao_pagamento::get_cnpj, &transacao_pagamento::set_cnpj},
    field{"UFPag", &transacao_pagamento::get_uf, &transacao_pagamento::set_uf},
};

template <>
inline constexpr auto fields<transacao_tef> = std::tuple{
    field{"tpIntegra", &transacao_tef::get_tipo_integracao, &transacao_tef::set_tipo_integracao,
          digits(1)},
    field{"CNPJ", &transacao_tef::get_cnpj, &transacao_tef::set_cnpj},
    field{"tBand", &transacao_tef::get_bandeira, &transacao_tef::set_bandeira, digits(2)},
    field{"cAut", &transacao_tef::get_numero_autorizacao, &transacao_tef::set_numero_autorizacao},
    field{"CNPJReceb", &transacao_tef::get_cnpj_beneficiario,
          &transacao_tef::set_cnpj_beneficiario},
    field{"idTermPag", &transacao_tef::get_id_terminal_pagamento,
          &transacao_tef::set_id_terminal_pagamento},
};

template <>
inline constexpr auto fields<detalhes_pagamento> = std::tuple{
    field{"indPag", &detalhes_pagamento::get_indicador_forma_pagamento,
          &detalhes_pagamento::set_indicador_forma_pagamento, digits(1)},
    field{"tPag", &detalhes_pagamento::get_meio_pagamento, &detalhes_pagamento::set_meio_pagamento,
          digits(2).or_absent()},
    field{"xPag", &detalhes_pagamento::get_descricao_meio_pagamento,
          &detalhes_pagamento::set_descricao_meio_pagamento},
    field{"vPag", &detalhes_pagamento::get_valor_pagamento,
          &detalhes_pagamento::set_valor_pagamento},
    field{"dPag", &detalhes_pagamento::get_data_pagamento, &detalhes_pagamento::set_data_pagamento},
    embedded{&detalhes_pagamento::get_transacao_pagamento,
             &detalhes_pagamento::set_transacao_pagamento},
    field{"card", &detalhes_pagamento::get_transacao_tef, &detalhes_pagamento::set_transacao_tef},
};

template <>
inline constexpr auto fields<informacoes_pagamento> = std::tuple{
    field{"detPag", &informacoes_pagamento::get_detalhes_pagamento,
          &informacoes_pagamento::set_detalhes_pagamento},
    field{"vTroco", &informacoes_pagamento::get_valor_total_troco,
          &informacoes_pagamento::set_valor_total_troco},
};

} // namespace kivo::erp::v12::layout
