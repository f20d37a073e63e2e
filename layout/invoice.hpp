#pragma once

#include <layout/document.hpp>
#include <layout/items.hpp>
#include <layout/map.hpp>
#include <layout/outside_texts.hpp>
#include <layout/parties.hpp>
#include <layout/payment.hpp>
#include <layout/totals.hpp>
#include <layout/transport.hpp>

#include <fiscal/nota_fiscal.hpp>

#include <string>

namespace kivo::erp::v12::layout {

using fiscal::nota_fiscal;

/// The printed form of a consumer invoice is a form of its own.
inline std::string printed_form(const nota_fiscal& invoice) {
    return invoice.get_modelo_emissao() == "65" ? "4" : "1";
}

/// The last digit of the key checks it.
inline std::string check_digit(const nota_fiscal& invoice) {
    const std::string key = invoice.get_chave_44_digitos();
    return key.empty() ? std::string() : key.substr(key.size() - 1);
}

template <> struct map_of<nota_fiscal> {
    using c = nota_fiscal;
    static constexpr entries fields{
        behind<"@Id", &c::get_chave_44_digitos, &c::set_chave_44_digitos, "NFe">,
        outside<"@versao", &outside_texts::versao>,
        element<"ide">(entries{
            field<"cUF", &c::get_ibge_uf_emissao, &c::set_ibge_uf_emissao, digits(2)>,
            field<"cNF", &c::get_codigo_nf, &c::set_codigo_nf, digits(8)>,
            field<"natOp", &c::get_natureza_operacao, &c::set_natureza_operacao>,
            field<"mod", &c::get_modelo_emissao, &c::set_modelo_emissor>,
            field<"serie", &c::get_serie, &c::set_serie>,
            field<"nNF", &c::get_numero, &c::set_numero>,
            field<"dhEmi", &c::get_data_emissao, &c::set_data_emissao>,
            field<"dhSaiEnt", &c::get_data_saida_entrada, &c::set_data_saida_entrada>,
            field<"tpNF", &c::get_tipo_operacao, &c::set_tipo_operacao, digits(1)>,
            field<"idDest", &c::get_indicador_operacao, &c::set_indicador_operacao,
                  digits(1) | omit_default>,
            field<"cMunFG", &c::get_ibge_municipio_emissao, &c::set_ibge_municipio_emissao,
                  digits(7)>,
            outside<"tpImp", &outside_texts::tp_imp, &printed_form>,
            field<"tpEmis", &c::get_tipo_emissao, &c::set_tipo_emissao>,
            outside<"cDV", &outside_texts::c_dv, &check_digit>,
            field<"tpAmb", &c::get_indicador_ambiente, &c::set_indicador_ambiente,
                  digits(1) | omit_default>,
            field<"finNFe", &c::get_indicador_finalidade_emissao,
                  &c::set_indicador_finalidade_emissao, digits(1) | omit_default>,
            field<"tpNFDebito", &c::get_tipo_nota_debito, &c::set_tipo_nota_debito, digits(2)>,
            field<"tpNFCredito", &c::get_tipo_nota_credito, &c::set_tipo_nota_credito, digits(2)>,
            field<"indFinal", &c::get_operacao_consumidor_final, &c::set_operacao_consumidor_final,
                  digits(1)>,
            field<"indPres", &c::get_indicador_presenca, &c::set_indicador_presenca, digits(1)>,
            field<"indIntermed", &c::get_indicador_intermediador, &c::set_indicador_intermediador,
                  digits(1)>,
            outside<"procEmi", &outside_texts::proc_emi>,
            outside<"verProc", &outside_texts::ver_proc>,
            field<"dhCont", &c::get_data_contingencia, &c::set_data_contingencia>,
            field<"xJust", &c::get_justificativa_entrada_contingencia,
                  &c::set_justificativa_entrada_contingencia>,
            sorted_by_content<"NFref">(entries{
                list<&c::get_nfe_referenciadas, &c::set_nfe_referenciadas>,
                list<&c::get_nf_referenciadas, &c::set_nf_referenciadas>,
                list<&c::get_nfp_referenciadas, &c::set_nfp_referenciadas>,
                list<&c::get_cupons_referenciados, &c::set_cupons_referenciados>,
            }),
        }),
        no_element<&c::get_indice_pagamento, &c::set_indice_pagamento>,
        field<"emit", &c::get_emitente, &c::set_emitente>,
        field<"dest", &c::get_destinatario, &c::set_destinatario>,
        field<"entrega", &c::get_local_entrega, &c::set_local_entrega>,
        field<"autXML", &c::get_autorizacoes_acesso_xml, &c::set_autorizacoes_acesso_xml>,
        numbered<"det", &c::get_produtos, &c::set_produtos, "@nItem">,
        field<"total", &c::get_total_nfe, &c::set_total_nfe>,
        field<"transp", &c::get_informacoes_transporte, &c::set_informacoes_transporte>,
        field<"cobr", &c::get_cobranca, &c::set_cobranca>,
        field<"pag", &c::get_informacoes_pagamento, &c::set_informacoes_pagamento>,
        field<"infIntermed", &c::get_informacoes_intermediador, &c::set_informacoes_intermediador>,
        field<"infAdic", &c::get_informacoes_adicionais, &c::set_informacoes_adicionais>,
        field<"exporta", &c::get_comercio_exterior, &c::set_comercio_exterior>,
        field<"infRespTec", &c::get_informacoes_responsavel_tecnico,
              &c::set_informacoes_responsavel_tecnico>,
        field<"agropecuario", &c::get_grupo_agropecuario, &c::set_grupo_agropecuario>,
    };
};

} // namespace kivo::erp::v12::layout
