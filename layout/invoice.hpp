#pragma once

#include <layout/document.hpp>
#include <layout/items.hpp>
#include <layout/map.hpp>
#include <layout/parties.hpp>
#include <layout/payment.hpp>
#include <layout/totals.hpp>
#include <layout/transport.hpp>

#include <fiscal/nota_fiscal.hpp>

namespace kivo::erp::v12::layout {

using fiscal::nota_fiscal;

template <>
inline constexpr auto fields<nota_fiscal> = std::tuple{
    field{"@Id", &nota_fiscal::get_chave_44_digitos, &nota_fiscal::set_chave_44_digitos,
          behind("NFe")},
    outside{"@versao"},
    element{
        "ide",
        field{"cUF", &nota_fiscal::get_ibge_uf_emissao, &nota_fiscal::set_ibge_uf_emissao,
              digits(2)},
        field{"cNF", &nota_fiscal::get_codigo_nf, &nota_fiscal::set_codigo_nf, digits(8)},
        field{"natOp", &nota_fiscal::get_natureza_operacao, &nota_fiscal::set_natureza_operacao},
        field{"mod", &nota_fiscal::get_modelo_emissao, &nota_fiscal::set_modelo_emissor},
        field{"serie", &nota_fiscal::get_serie, &nota_fiscal::set_serie},
        field{"nNF", &nota_fiscal::get_numero, &nota_fiscal::set_numero},
        field{"dhEmi", &nota_fiscal::get_data_emissao, &nota_fiscal::set_data_emissao},
        field{"dhSaiEnt", &nota_fiscal::get_data_saida_entrada,
              &nota_fiscal::set_data_saida_entrada},
        field{"tpNF", &nota_fiscal::get_tipo_operacao, &nota_fiscal::set_tipo_operacao, digits(1)},
        field{"idDest", &nota_fiscal::get_indicador_operacao, &nota_fiscal::set_indicador_operacao,
              digits(1).or_absent()},
        field{"cMunFG", &nota_fiscal::get_ibge_municipio_emissao,
              &nota_fiscal::set_ibge_municipio_emissao, digits(7)},
        outside{"tpImp"},
        field{"tpEmis", &nota_fiscal::get_tipo_emissao, &nota_fiscal::set_tipo_emissao},
        outside{"cDV"},
        field{"tpAmb", &nota_fiscal::get_indicador_ambiente, &nota_fiscal::set_indicador_ambiente,
              digits(1).or_absent()},
        field{"finNFe", &nota_fiscal::get_indicador_finalidade_emissao,
              &nota_fiscal::set_indicador_finalidade_emissao, digits(1).or_absent()},
        field{"tpNFDebito", &nota_fiscal::get_tipo_nota_debito, &nota_fiscal::set_tipo_nota_debito,
              digits(2)},
        field{"tpNFCredito", &nota_fiscal::get_tipo_nota_credito,
              &nota_fiscal::set_tipo_nota_credito, digits(2)},
        field{"indFinal", &nota_fiscal::get_operacao_consumidor_final,
              &nota_fiscal::set_operacao_consumidor_final, digits(1)},
        field{"indPres", &nota_fiscal::get_indicador_presenca, &nota_fiscal::set_indicador_presenca,
              digits(1)},
        field{"indIntermed", &nota_fiscal::get_indicador_intermediador,
              &nota_fiscal::set_indicador_intermediador, digits(1)},
        outside{"procEmi"},
        outside{"verProc"},
        field{"dhCont", &nota_fiscal::get_data_contingencia, &nota_fiscal::set_data_contingencia},
        field{"xJust", &nota_fiscal::get_justificativa_entrada_contingencia,
              &nota_fiscal::set_justificativa_entrada_contingencia},
        field{"NFref", &nota_fiscal::get_nfe_referenciadas, &nota_fiscal::set_nfe_referenciadas},
        field{"NFref", &nota_fiscal::get_nf_referenciadas, &nota_fiscal::set_nf_referenciadas},
        field{"NFref", &nota_fiscal::get_nfp_referenciadas, &nota_fiscal::set_nfp_referenciadas},
        field{"NFref", &nota_fiscal::get_cupons_referenciados,
              &nota_fiscal::set_cupons_referenciados}},
    no_element{&nota_fiscal::get_indice_pagamento, &nota_fiscal::set_indice_pagamento},
    field{"emit", &nota_fiscal::get_emitente, &nota_fiscal::set_emitente},
    field{"dest", &nota_fiscal::get_destinatario, &nota_fiscal::set_destinatario},
    field{"entrega", &nota_fiscal::get_local_entrega, &nota_fiscal::set_local_entrega},
    field{"autXML", &nota_fiscal::get_autorizacoes_acesso_xml,
          &nota_fiscal::set_autorizacoes_acesso_xml},
    field{"det", &nota_fiscal::get_produtos, &nota_fiscal::set_produtos, numbered("@nItem")},
    field{"total", &nota_fiscal::get_total_nfe, &nota_fiscal::set_total_nfe},
    field{"transp", &nota_fiscal::get_informacoes_transporte,
          &nota_fiscal::set_informacoes_transporte},
    field{"cobr", &nota_fiscal::get_cobranca, &nota_fiscal::set_cobranca},
    field{"pag", &nota_fiscal::get_informacoes_pagamento, &nota_fiscal::set_informacoes_pagamento},
    field{"infIntermed", &nota_fiscal::get_informacoes_intermediador,
          &nota_fiscal::set_informacoes_intermediador},
    field{"infAdic", &nota_fiscal::get_informacoes_adicionais,
          &nota_fiscal::set_informacoes_adicionais},
    field{"exporta", &nota_fiscal::get_comercio_exterior, &nota_fiscal::set_comercio_exterior},
    field{"infRespTec", &nota_fiscal::get_informacoes_responsavel_tecnico,
          &nota_fiscal::set_informacoes_responsavel_tecnico},
    field{"agropecuario", &nota_fiscal::get_grupo_agropecuario,
          &nota_fiscal::set_grupo_agropecuario},
};

} // namespace kivo::erp::v12::layout
