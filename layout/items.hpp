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

template <> struct map_of<adicao> {
    using c = adicao;
    static constexpr entries fields{
        field<"nAdicao", &c::get_numero_adicao, &c::set_numero_adicao, omit_default>,
        field<"nSeqAdic", &c::get_numero_sequencial_da_adicao, &c::set_numero_sequencial_da_adicao>,
        field<"cFabricante", &c::get_codigo_fabricante_estrangeiro,
              &c::set_codigo_fabricante_estrangeiro>,
        field<"vDescDI", &c::get_valor_desconto, &c::set_valor_desconto>,
        field<"nDraw", &c::get_ato_concessorio_drawback, &c::set_ato_concessorio_drawback>,
    };
};

template <> struct map_of<declaracao_importacao> {
    using c = declaracao_importacao;
    static constexpr entries fields{
        field<"nDI", &c::get_numero_documento_importacao, &c::set_numero_documento_importacao>,
        field<"dDI", &c::get_data_registro, &c::set_data_registro>,
        field<"xLocDesemb", &c::get_local_desembaraco, &c::set_local_desembaraco>,
        field<"UFDesemb", &c::get_uf_desembaraco, &c::set_uf_desembaraco>,
        field<"dDesemb", &c::get_data_desembaraco, &c::set_data_desembaraco>,
        field<"tpViaTransp", &c::get_via_transporte, &c::set_via_transporte, omit_default>,
        field<"vAFRMM", &c::get_valor_afrmm, &c::set_valor_afrmm>,
        field<"tpIntermedio", &c::get_forma_intermedio_importacao,
              &c::set_forma_intermedio_importacao, digits(1) | omit_default>,
        one_of<&c::get_documento_importador, &c::set_documento_importador, as<"CNPJ">, as<"CPF">>,
        field<"UFTerceiro", &c::get_uf_importador, &c::set_uf_importador>,
        field<"cExportador", &c::get_codigo_exportador, &c::set_codigo_exportador>,
        field<"adi", &c::get_adicoes, &c::set_adicoes>,
    };
};

template <> struct map_of<grupo_exportacao> {
    using c = grupo_exportacao;
    static constexpr entries fields{
        field<"nDraw", &c::get_numero_ato_concessorio_drawback,
              &c::set_numero_ato_concessorio_drawback>,
        element<"exportInd">(entries{
            field<"nRE", &c::get_numero_registro_exportacao, &c::set_numero_registro_exportacao,
                  digits_up_to(12) | even_empty>,
            field<"chNFe", &c::get_chave_acesso_nfe_recebida, &c::set_chave_acesso_nfe_recebida>,
            field<"qExport", &c::get_quantidade_exportada, &c::set_quantidade_exportada>,
        }),
    };
};

template <> struct map_of<informacoes_rastreabilidade> {
    using c = informacoes_rastreabilidade;
    static constexpr entries fields{
        field<"nLote", &c::numero_lote, &c::set_numero_lote>,
        field<"qLote", &c::quantidade_de_produto_no_lote, &c::set_quantidade_de_produto_no_lote>,
        field<"dFab", &c::data_fabricacao, &c::set_data_fabricacao>,
        field<"dVal", &c::data_validade, &c::set_data_validade>,
        field<"cAgreg", &c::codigo_agregacao, &c::set_codigo_agregacao>,
    };
};

template <> struct map_of<medicamento_isento> {
    using c = medicamento_isento;
    static constexpr entries fields{
        field<"xMotivoIsencao", &c::get_motivo, &c::set_motivo, omit_default>,
    };
};

template <> struct map_of<medicamento> {
    using c = medicamento;
    static constexpr entries fields{
        one_of<&c::get_codigo_anvisa, &c::set_codigo_anvisa, as<"cProdANVISA">,
               marked_by<"cProdANVISA", "ISENTO">>,
        field<"vPMC", &c::get_preco_maximo_consumidor, &c::set_preco_maximo_consumidor>,
    };
};

template <> struct map_of<arma> {
    using c = arma;
    static constexpr entries fields{
        field<"tpArma", &c::get_tipo, &c::set_tipo, digits(1)>,
        field<"nSerie", &c::get_numero_serie_arma, &c::set_numero_serie_arma>,
        field<"nCano", &c::get_numero_serie_cano, &c::set_numero_serie_cano>,
        field<"descr", &c::get_descricao, &c::set_descricao>,
    };
};

template <> struct map_of<informacoes_combustivel_glp> {
    using c = informacoes_combustivel_glp;
    static constexpr entries fields{
        field<"pGLP", &c::get_percentual_derivado_do_petroleo,
              &c::set_percentual_derivado_do_petroleo, omit_default>,
        field<"pGNn", &c::get_percentual_gas_natural_nacional,
              &c::set_percentual_gas_natural_nacional, omit_default>,
        field<"pGNi", &c::get_percentual_gas_natural_importado,
              &c::set_percentual_gas_natural_importado, omit_default>,
        field<"vPart", &c::get_valor_partida, &c::set_valor_partida, omit_default>,
    };
};

template <> struct map_of<informacoes_cide_combustiveis> {
    using c = informacoes_cide_combustiveis;
    static constexpr entries fields{
        field<"qBCProd", &c::get_base_de_calculo, &c::set_base_de_calculo>,
        field<"vAliqProd", &c::get_valor_aliquota, &c::set_valor_aliquota>,
        field<"vCIDE", &c::get_valor_cide, &c::set_valor_cide>,
    };
};

/// Whether the group stands for a fuelling at a pump, and not only for the share of biodiesel.
inline bool is_fuelling(const encerrante_bomba_combustiveis& group) {
    return !group.get_percentual_biodiesel() || group.get_identificacao_bico() != 0 ||
           group.get_identificacao_bomba() || group.get_identificacao_tanque() != 0 ||
           group.get_valor_inicial() != fiscal::decimal() ||
           group.get_valor_final() != fiscal::decimal();
}

template <> struct map_of<encerrante_bomba_combustiveis> {
    using c = encerrante_bomba_combustiveis;
    static constexpr entries fields{
        only_if<&is_fuelling>(element<"encerrante">(entries{
            field<"nBico", &c::get_identificacao_bico, &c::set_identificacao_bico>,
            field<"nBomba", &c::get_identificacao_bomba, &c::set_identificacao_bomba>,
            field<"nTanque", &c::get_identificacao_tanque, &c::set_identificacao_tanque>,
            field<"vEncIni", &c::get_valor_inicial, &c::set_valor_inicial>,
            field<"vEncFin", &c::get_valor_final, &c::set_valor_final>,
        })),
        field<"pBio", &c::get_percentual_biodiesel, &c::set_percentual_biodiesel>,
    };
};

template <> struct map_of<indicador_origem_combustivel> {
    using c = indicador_origem_combustivel;
    static constexpr entries fields{
        field<"indImport", &c::get_indicador_importacao, &c::set_indicador_importacao, digits(1)>,
        field<"cUFOrig", &c::get_codigo_uf, &c::set_codigo_uf, digits(2)>,
        field<"pOrig", &c::get_percentual_originario, &c::set_percentual_originario>,
    };
};

template <> struct map_of<combustiveis> {
    using c = combustiveis;
    static constexpr entries fields{
        field<"cProdANP", &c::get_codigo_produto_anp, &c::set_codigo_produto_anp, digits(9)>,
        field<"descANP", &c::get_descricao_produto_anp, &c::set_descricao_produto_anp>,
        embedded<&c::get_informacoes_glp, &c::set_informacoes_glp>,
        field<"CODIF", &c::get_codigo_autorizacao_codif, &c::set_codigo_autorizacao_codif>,
        field<"qTemp", &c::get_quantidade_faturada_temperatura_ambiente,
              &c::set_quantidade_faturada_temperatura_ambiente>,
        field<"UFCons", &c::get_uf_consumo, &c::set_uf_consumo>,
        field<"CIDE", &c::get_informacoes_cide_combustiveis, &c::set_informacoes_cide_combustiveis>,
        embedded<&c::get_encerrante_bomba_combustiveis, &c::set_encerrante_bomba_combustiveis>,
        field<"origComb", &c::get_indicador_origem_combustivel,
              &c::set_indicador_origem_combustivel>,
    };
};

template <> struct map_of<produto> {
    using c = produto;
    static constexpr entries fields{
        element<"prod">(entries{
            field<"cProd", &c::get_codigo_produto, &c::set_codigo_produto>,
            field<"cEAN", &c::get_codigo_de_barras, &c::set_codigo_de_barras, even_empty>,
            field<"xProd", &c::get_descricao, &c::set_descricao>,
            field<"NCM", &c::get_ncm, &c::set_ncm, digits(2, 8)>,
            field<"CEST", &c::get_cest, &c::set_cest, digits(7)>,
            field<"indEscala", &c::get_indicador_escala_relevante,
                  &c::set_indicador_escala_relevante>,
            field<"CNPJFab", &c::get_cnpj_fabricante, &c::set_cnpj_fabricante>,
            field<"cBenef", &c::get_codigo_beneficio_fiscal_uf, &c::set_codigo_beneficio_fiscal_uf>,
            field<"gCred", &c::get_grupo_credito_presumido, &c::set_grupo_credito_presumido>,
            field<"EXTIPI", &c::get_extipi, &c::set_extipi, digits(2, 3)>,
            field<"CFOP", &c::get_cfop, &c::set_cfop, digits(4)>,
            field<"uCom", &c::get_unidade_comercial, &c::set_unidade_comercial>,
            field<"qCom", &c::get_quantidade_comercial, &c::set_quantidade_comercial>,
            field<"vUnCom", &c::get_valor_unitario_comercial, &c::set_valor_unitario_comercial>,
            field<"vProd", &c::get_valor_total_bruto, &c::set_valor_total_bruto>,
            field<"cEANTrib", &c::get_codigo_de_barras_tributavel,
                  &c::set_codigo_de_barras_tributavel, even_empty>,
            field<"uTrib", &c::get_unidade_tributavel, &c::set_unidade_tributavel>,
            field<"qTrib", &c::get_quantidade_tributavel, &c::set_quantidade_tributavel>,
            field<"vUnTrib", &c::get_valor_unitario_tributavel, &c::set_valor_unitario_tributavel>,
            field<"vFrete", &c::get_valor_frete, &c::set_valor_frete>,
            field<"vSeg", &c::get_valor_seguro, &c::set_valor_seguro>,
            field<"vDesc", &c::get_valor_desconto, &c::set_valor_desconto>,
            field<"vOutro", &c::get_valor_despesas_acessorias, &c::set_valor_despesas_acessorias>,
            field<"indTot", &c::get_indicador_item_compoe_valor_total,
                  &c::set_indicador_item_compoe_valor_total, digits(1)>,
            field<"DI", &c::get_declaracao_importacao, &c::set_declaracao_importacao>,
            field<"detExport", &c::get_grupo_exportacao, &c::set_grupo_exportacao>,
            field<"xPed", &c::get_pedido_ordem_de_compra, &c::set_pedido_ordem_de_compra>,
            field<"nItemPed", &c::get_codigo_do_produto_ordem_de_compra,
                  &c::set_codigo_do_produto_ordem_de_compra>,
            field<"rastro", &c::lista_informacoes_rastreabilidade,
                  &c::set_lista_informacoes_rastreabilidade>,
            exclusive(entries{
                field<"med", &c::get_medicamentos, &c::set_medicamentos>,
                field<"arma", &c::get_armas, &c::set_armas>,
                field<"comb", &c::get_combustiveis, &c::set_combustiveis>,
            }),
        }),
        mandatory_element<"imposto">(entries{
            field<"vTotTrib", &c::get_valor_total_tributos, &c::set_valor_total_tributos>,
            one_of<&c::get_tributacao, &c::set_tributacao,
                   inside<"ICMS", as<"ICMS00">, as<"ICMS10">, as<"ICMS20">, as<"ICMS30">,
                          as<"ICMS40">, as<"ICMS51">, as<"ICMS60">, as<"ICMS70">, as<"ICMS90">,
                          as<"ICMSSN101">, as<"ICMSSN102">, as<"ICMSSN201">, as<"ICMSSN202">,
                          as<"ICMSSN500">, as<"ICMSSN900">, as<"ICMSST">, as<"ICMS02">,
                          as<"ICMS15">, as<"ICMS53">, as<"ICMS61">>,
                   nowhere>,
            field<"IPI", &c::get_tributacao_ipi, &c::set_tributacao_ipi>,
            field<"II", &c::get_tributacao_importacao, &c::set_tributacao_importacao>,
            again(one_of<&c::get_tributacao, &c::set_tributacao, nowhere, as<"ISSQN">>),
            embedded<&c::get_tributacao_pis_cofins, &c::set_tributacao_pis_cofins>,
            field<"ICMSUFDest", &c::get_tributacao_icms_uf_destino,
                  &c::set_tributacao_icms_uf_destino>,
            field<"IS", &c::get_imposto_seletivo, &c::set_imposto_seletivo>,
            field<"IBSCBS", &c::get_ibs_cbs, &c::set_ibs_cbs>,
        }),
        field<"impostoDevol", &c::tributos_devolvidos, &c::set_tributos_devolvidos>,
        field<"infAdProd", &c::get_informacoes_adicionais, &c::set_informacoes_adicionais>,
        field<"vItem", &c::get_total_item, &c::set_total_item>,
    };
};

} // namespace kivo::erp::v12::layout
