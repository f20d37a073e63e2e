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

template <> struct map_of<duplicata> {
    using c = duplicata;
    static constexpr entries fields{
        field<"nDup", &c::get_numero_duplicata, &c::set_numero_duplicata>,
        field<"dVenc", &c::get_data_vencimento, &c::set_data_vencimento>,
        field<"vDup", &c::get_valor_duplicata, &c::set_valor_duplicata>,
    };
};

template <> struct map_of<cobranca> {
    using c = cobranca;
    static constexpr entries fields{
        element<"fat">(entries{
            field<"nFat", &c::get_numero_fatura, &c::set_numero_fatura>,
            field<"vOrig", &c::get_valor_original_fatura, &c::set_valor_original_fatura>,
            field<"vDesc", &c::get_valor_desconto, &c::set_valor_desconto>,
            field<"vLiq", &c::get_valor_liquido, &c::set_valor_liquido>,
        }),
        field<"dup", &c::get_duplicatas, &c::set_duplicatas>,
    };
};

template <> struct map_of<transacao_pagamento> {
    using c = transacao_pagamento;
    static constexpr entries fields{
        field<"CNPJPag", &c::get_cnpj, &c::set_cnpj>,
        field<"UFPag", &c::get_uf, &c::set_uf>,
    };
};

template <> struct map_of<transacao_tef> {
    using c = transacao_tef;
    static constexpr entries fields{
        field<"tpIntegra", &c::get_tipo_integracao, &c::set_tipo_integracao, digits(1)>,
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
        field<"tBand", &c::get_bandeira, &c::set_bandeira, digits(2)>,
        field<"cAut", &c::get_numero_autorizacao, &c::set_numero_autorizacao>,
        field<"CNPJReceb", &c::get_cnpj_beneficiario, &c::set_cnpj_beneficiario>,
        field<"idTermPag", &c::get_id_terminal_pagamento, &c::set_id_terminal_pagamento>,
    };
};

template <> struct map_of<detalhes_pagamento> {
    using c = detalhes_pagamento;
    static constexpr entries fields{
        field<"indPag", &c::get_indicador_forma_pagamento, &c::set_indicador_forma_pagamento,
              digits(1)>,
        field<"tPag", &c::get_meio_pagamento, &c::set_meio_pagamento, digits(2) | omit_default>,
        field<"xPag", &c::get_descricao_meio_pagamento, &c::set_descricao_meio_pagamento>,
        field<"vPag", &c::get_valor_pagamento, &c::set_valor_pagamento>,
        field<"dPag", &c::get_data_pagamento, &c::set_data_pagamento>,
        embedded<&c::get_transacao_pagamento, &c::set_transacao_pagamento>,
        field<"card", &c::get_transacao_tef, &c::set_transacao_tef>,
    };
};

template <> struct map_of<informacoes_pagamento> {
    using c = informacoes_pagamento;
    static constexpr entries fields{
        field<"detPag", &c::get_detalhes_pagamento, &c::set_detalhes_pagamento>,
        field<"vTroco", &c::get_valor_total_troco, &c::set_valor_total_troco>,
    };
};

} // namespace kivo::erp::v12::layout
