#pragma once

#include <layout/ibs_cbs.hpp>
#include <layout/icms.hpp>
#include <layout/map.hpp>
#include <layout/other_taxes.hpp>

#include <fiscal/produto.hpp>

namespace kivo::erp::v12::layout {

using fiscal::adicao;
using fiscal::arma;
using fiscal::combustiveis;
using fiscal::declaracao_importacao;
using fiscal::encerrante_bomba_combustiveis;
using fiscal::grupo_exportacao;
using fiscal::indicador_origem_combustivel;
using fiscal::informacoes_cide_combustiveis;
using fiscal::informacoes_combustivel_glp;
using fiscal::informacoes_rastreabilidade;
using fiscal::medicamento;
using fiscal::medicamento_isento;
using fiscal::produto;

template <>
inline constexpr auto fields<adicao> = std::tuple{
    field{"nAdicao", &adicao::get_numero_adicao, &adicao::set_numero_adicao, or_absent},
    field{"nSeqAdic", &adicao::get_numero_sequencial_da_adicao,
          &adicao::set_numero_sequencial_da_adicao},
    field{"cFabricante", &adicao::get_codigo_fabricante_estrangeiro,
          &adicao::set_codigo_fabricante_estrangeiro},
    field{"vDescDI", &adicao::get_valor_desconto, &adicao::set_valor_desconto},
    field{"nDraw", &adicao::get_ato_concessorio_drawback, &adicao::set_ato_concessorio_drawback},
};

template <>
inline constexpr auto fields<declaracao_importacao> = std::tuple{
    field{"nDI", &declaracao_importacao::get_numero_documento_importacao,
          &declaracao_importacao::set_numero_documento_importacao},
    field{"dDI", &declaracao_importacao::get_data_registro,
          &declaracao_importacao::set_data_registro},
    field{"xLocDesemb", &declaracao_importacao::get_local_desembaraco,
          &declaracao_importacao::set_local_desembaraco},
    field{"UFDesemb", &declaracao_importacao::get_uf_desembaraco,
          &declaracao_importacao::set_uf_desembaraco},
    field{"dDesemb", &declaracao_importacao::get_data_desembaraco,
          &declaracao_importacao::set_data_desembaraco},
    field{"tpViaTransp", &declaracao_importacao::get_via_transporte,
          &declaracao_importacao::set_via_transporte, or_absent},
    field{"vAFRMM", &declaracao_importacao::get_valor_afrmm,
          &declaracao_importacao::set_valor_afrmm},
    field{"tpIntermedio", &declaracao_importacao::get_forma_intermedio_importacao,
          &declaracao_importacao::set_forma_intermedio_importacao, digits(1).or_absent()},
    one_of{&declaracao_importacao::get_documento_importador,
           &declaracao_importacao::set_documento_importador, "CNPJ", "CPF"},
    field{"UFTerceiro", &declaracao_importacao::get_uf_importador,
          &declaracao_importacao::set_uf_importador},
    field{"cExportador", &declaracao_importacao::get_codigo_exportador,
          &declaracao_importacao::set_codigo_exportador},
    field{"adi", &declaracao_importacao::get_adicoes, &declaracao_importacao::set_adicoes},
};

template <>
inline constexpr auto fields<grupo_exportacao> = std::tuple{
    field{"nDraw", &grupo_exportacao::get_numero_ato_concessorio_drawback,
          &grupo_exportacao::set_numero_ato_concessorio_drawback},
    element{"exportInd",
            field{"nRE", &grupo_exportacao::get_numero_registro_exportacao,
                  &grupo_exportacao::set_numero_registro_exportacao, digits(12)},
            field{"chNFe", &grupo_exportacao::get_chave_acesso_nfe_recebida,
                  &grupo_exportacao::set_chave_acesso_nfe_recebida},
            field{"qExport", &grupo_exportacao::get_quantidade_exportada,
                  &grupo_exportacao::set_quantidade_exportada}},
};

template <>
inline constexpr auto fields<informacoes_rastreabilidade> = std::tuple{
    field{"nLote", &informacoes_rastreabilidade::numero_lote,
          &informacoes_rastreabilidade::set_numero_lote},
    field{"qLote", &informacoes_rastreabilidade::quantidade_de_produto_no_lote,
          &informacoes_rastreabilidade::set_quantidade_de_produto_no_lote},
    field{"dFab", &informacoes_rastreabilidade::data_fabricacao,
          &informacoes_rastreabilidade::set_data_fabricacao},
    field{"dVal", &informacoes_rastreabilidade::data_validade,
          &informacoes_rastreabilidade::set_data_validade},
    field{"cAgreg", &informacoes_rastreabilidade::codigo_agregacao,
          &informacoes_rastreabilidade::set_codigo_agregacao},
};

template <>
inline constexpr auto fields<medicamento_isento> = std::tuple{
    constant{"cProdANVISA", "ISENTO"},
    field{"xMotivoIsencao", &medicamento_isento::get_motivo, &medicamento_isento::set_motivo,
          or_absent},
};

template <>
inline constexpr auto fields<medicamento> = std::tuple{
    one_of{&medicamento::get_codigo_anvisa, &medicamento::set_codigo_anvisa, "cProdANVISA", here},
    field{"vPMC", &medicamento::get_preco_maximo_consumidor,
          &medicamento::set_preco_maximo_consumidor},
};

template <>
inline constexpr auto fields<arma> = std::tuple{
    field{"tpArma", &arma::get_tipo, &arma::set_tipo, digits(1)},
    field{"nSerie", &arma::get_numero_serie_arma, &arma::set_numero_serie_arma},
    field{"nCano", &arma::get_numero_serie_cano, &arma::set_numero_serie_cano},
    field{"descr", &arma::get_descricao, &arma::set_descricao},
};

template <>
inline constexpr auto fields<informacoes_combustivel_glp> = std::tuple{
    field{"pGLP", &informacoes_combustivel_glp::get_percentual_derivado_do_petroleo,
          &informacoes_combustivel_glp::set_percentual_derivado_do_petroleo, or_absent},
    field{"pGNn", &informacoes_combustivel_glp::get_percentual_gas_natural_nacional,
          &informacoes_combustivel_glp::set_percentual_gas_natural_nacional, or_absent},
    field{"pGNi", &informacoes_combustivel_glp::get_percentual_gas_natural_importado,
          &informacoes_combustivel_glp::set_percentual_gas_natural_importado, or_absent},
    field{"vPart", &informacoes_combustivel_glp::get_valor_partida,
          &informacoes_combustivel_glp::set_valor_partida, or_absent},
};

template <>
inline constexpr auto fields<informacoes_cide_combustiveis> = std::tuple{
    field{"qBCProd", &informacoes_cide_combustiveis::get_base_de_calculo,
          &informacoes_cide_combustiveis::set_base_de_calculo},
    field{"vAliqProd", &informacoes_cide_combustiveis::get_valor_aliquota,
          &informacoes_cide_combustiveis::set_valor_aliquota},
    field{"vCIDE", &informacoes_cide_combustiveis::get_valor_cide,
          &informacoes_cide_combustiveis::set_valor_cide},
};

/// Whether the group stands for a fuelling at a pump, and not only for the share of biodiesel.
inline bool is_fuelling(const encerrante_bomba_combustiveis& group) {
    return !group.get_percentual_biodiesel() || group.get_identificacao_bico() != 0 ||
           group.get_identificacao_bomba() || group.get_identificacao_tanque() != 0 ||
           group.get_valor_inicial() != fiscal::decimal() ||
           group.get_valor_final() != fiscal::decimal();
}

template <>
inline constexpr auto fields<encerrante_bomba_combustiveis> = std::tuple{
    only_if{&is_fuelling,
            element{"encerrante",
                    field{"nBico", &encerrante_bomba_combustiveis::get_identificacao_bico,
                          &encerrante_bomba_combustiveis::set_identificacao_bico},
                    field{"nBomba", &encerrante_bomba_combustiveis::get_identificacao_bomba,
                          &encerrante_bomba_combustiveis::set_identificacao_bomba},
                    field{"nTanque", &encerrante_bomba_combustiveis::get_identificacao_tanque,
                          &encerrante_bomba_combustiveis::set_identificacao_tanque},
                    field{"vEncIni", &encerrante_bomba_combustiveis::get_valor_inicial,
                          &encerrante_bomba_combustiveis::set_valor_inicial},
                    field{"vEncFin", &encerrante_bomba_combustiveis::get_valor_final,
                          &encerrante_bomba_combustiveis::set_valor_final}}},
    field{"pBio", &encerrante_bomba_combustiveis::get_percentual_biodiesel,
          &encerrante_bomba_combustiveis::set_percentual_biodiesel},
};

template <>
inline constexpr auto fields<indicador_origem_combustivel> = std::tuple{
    field{"indImport", &indicador_origem_combustivel::get_indicador_importacao,
          &indicador_origem_combustivel::set_indicador_importacao, digits(1)},
    field{"cUFOrig", &indicador_origem_combustivel::get_codigo_uf,
          &indicador_origem_combustivel::set_codigo_uf, digits(2)},
    field{"pOrig", &indicador_origem_combustivel::get_percentual_originario,
          &indicador_origem_combustivel::set_percentual_originario},
};

template <>
inline constexpr auto fields<combustiveis> = std::tuple{
    field{"cProdANP", &combustiveis::get_codigo_produto_anp, &combustiveis::set_codigo_produto_anp,
          digits(9)},
    field{"descANP", &combustiveis::get_descricao_produto_anp,
          &combustiveis::set_descricao_produto_anp},
    embedded{&combustiveis::get_informacoes_glp, &combustiveis::set_informacoes_glp},
    field{"CODIF", &combustiveis::get_codigo_autorizacao_codif,
          &combustiveis::set_codigo_autorizacao_codif},
    field{"qTemp", &combustiveis::get_quantidade_faturada_temperatura_ambiente,
          &combustiveis::set_quantidade_faturada_temperatura_ambiente},
    field{"UFCons", &combustiveis::get_uf_consumo, &combustiveis::set_uf_consumo},
    field{"CIDE", &combustiveis::get_informacoes_cide_combustiveis,
          &combustiveis::set_informacoes_cide_combustiveis},
    embedded{&combustiveis::get_encerrante_bomba_combustiveis,
             &combustiveis::set_encerrante_bomba_combustiveis},
    field{"origComb", &combustiveis::get_indicador_origem_combustivel,
          &combustiveis::set_indicador_origem_combustivel},
};

template <>
inline constexpr auto fields<produto> = std::tuple{
    element{
        "prod",
        field{"cProd", &produto::get_codigo_produto, &produto::set_codigo_produto},
        field{"cEAN", &produto::get_codigo_de_barras, &produto::set_codigo_de_barras, or_empty},
        field{"xProd", &produto::get_descricao, &produto::set_descricao},
        field{"NCM", &produto::get_ncm, &produto::set_ncm, digits(2, 8)},
        field{"CEST", &produto::get_cest, &produto::set_cest, digits(7)},
        field{"indEscala", &produto::get_indicador_escala_relevante,
              &produto::set_indicador_escala_relevante},
        field{"CNPJFab", &produto::get_cnpj_fabricante, &produto::set_cnpj_fabricante},
        field{"cBenef", &produto::get_codigo_beneficio_fiscal_uf,
              &produto::set_codigo_beneficio_fiscal_uf},
        field{"gCred", &produto::get_grupo_credito_presumido,
              &produto::set_grupo_credito_presumido},
        field{"EXTIPI", &produto::get_extipi, &produto::set_extipi, digits(2, 3)},
        field{"CFOP", &produto::get_cfop, &produto::set_cfop, digits(4)},
        field{"uCom", &produto::get_unidade_comercial, &produto::set_unidade_comercial},
        field{"qCom", &produto::get_quantidade_comercial, &produto::set_quantidade_comercial},
        field{"vUnCom", &produto::get_valor_unitario_comercial,
              &produto::set_valor_unitario_comercial},
        field{"vProd", &produto::get_valor_total_bruto, &produto::set_valor_total_bruto},
        field{"cEANTrib", &produto::get_codigo_de_barras_tributavel,
              &produto::set_codigo_de_barras_tributavel, or_empty},
        field{"uTrib", &produto::get_unidade_tributavel, &produto::set_unidade_tributavel},
        field{"qTrib", &produto::get_quantidade_tributavel, &produto::set_quantidade_tributavel},
        field{"vUnTrib", &produto::get_valor_unitario_tributavel,
              &produto::set_valor_unitario_tributavel},
        field{"vFrete", &produto::get_valor_frete, &produto::set_valor_frete},
        field{"vSeg", &produto::get_valor_seguro, &produto::set_valor_seguro},
        field{"vDesc", &produto::get_valor_desconto, &produto::set_valor_desconto},
        field{"vOutro", &produto::get_valor_despesas_acessorias,
              &produto::set_valor_despesas_acessorias},
        field{"indTot", &produto::get_indicador_item_compoe_valor_total,
              &produto::set_indicador_item_compoe_valor_total, digits(1)},
        field{"DI", &produto::get_declaracao_importacao, &produto::set_declaracao_importacao},
        field{"detExport", &produto::get_grupo_exportacao, &produto::set_grupo_exportacao},
        field{"xPed", &produto::get_pedido_ordem_de_compra, &produto::set_pedido_ordem_de_compra},
        field{"nItemPed", &produto::get_codigo_do_produto_ordem_de_compra,
              &produto::set_codigo_do_produto_ordem_de_compra},
        field{"rastro", &produto::lista_informacoes_rastreabilidade,
              &produto::set_lista_informacoes_rastreabilidade},
        field{"med", &produto::get_medicamentos, &produto::set_medicamentos},
        field{"arma", &produto::get_armas, &produto::set_armas},
        field{"comb", &produto::get_combustiveis, &produto::set_combustiveis}},
    element{
        "imposto",
        field{"vTotTrib", &produto::get_valor_total_tributos, &produto::set_valor_total_tributos},
        one_of{&produto::get_tributacao, &produto::set_tributacao,
               inside{"ICMS",      "ICMS00",    "ICMS10",    "ICMS20",    "ICMS30",    "ICMS40",
                      "ICMS51",    "ICMS60",    "ICMS70",    "ICMS90",    "ICMSSN101", "ICMSSN102",
                      "ICMSSN201", "ICMSSN202", "ICMSSN500", "ICMSSN900", "ICMSST",    "ICMS02",
                      "ICMS15",    "ICMS53",    "ICMS61"},
               nowhere},
        field{"IPI", &produto::get_tributacao_ipi, &produto::set_tributacao_ipi},
        field{"II", &produto::get_tributacao_importacao, &produto::set_tributacao_importacao},
        again{one_of{&produto::get_tributacao, &produto::set_tributacao, nowhere, "ISSQN"}},
        embedded{&produto::get_tributacao_pis_cofins, &produto::set_tributacao_pis_cofins},
        field{"ICMSUFDest", &produto::get_tributacao_icms_uf_destino,
              &produto::set_tributacao_icms_uf_destino},
        field{"IS", &produto::get_imposto_seletivo, &produto::set_imposto_seletivo},
        field{"IBSCBS", &produto::get_ibs_cbs, &produto::set_ibs_cbs}},
    field{"impostoDevol", &produto::tributos_devolvidos, &produto::set_tributos_devolvidos},
    field{"infAdProd", &produto::get_informacoes_adicionais, &produto::set_informacoes_adicionais},
    field{"vItem", &produto::get_total_item, &produto::set_total_item},
};

} // namespace kivo::erp::v12::layout
