#pragma once

#include "samples.hpp"

#include <cstddef>
#include <numeric>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

/// In which order the records hold the fields. Copies and assignments walk it, and so do their
/// failures: it shows in what an assignment that failed leaves behind.
namespace kivo::erp::v12::fiscal {

class combustiveis;
class destinatario;
class emitente;
class endereco;
class grupo_repasse_icms_st;
class grupo_tributacao_icms_53;
class informacoes_pagamento;
class nota_fiscal;
class produto;
class total_nfe_icms;
class tributacao_ipi;
class tributacao_normal_icms_90;
class tributacao_normal_icms_900;

} // namespace kivo::erp::v12::fiscal

namespace kivo::tests {

namespace detail {

using namespace erp::v12::fiscal;

/// The fields of a record, in its order; without an entry here, it has that of the layout map.
template <class Class> inline constexpr std::string_view record_order{};
template <>
inline constexpr std::string_view record_order<combustiveis> =
    "codigo_produto_anp descricao_produto_anp codigo_autorizacao_codif "
    "quantidade_faturada_temperatura_ambiente uf_consumo informacoes_glp "
    "informacoes_cide_combustiveis encerrante_bomba_combustiveis indicador_origem_combustivel";
template <>
inline constexpr std::string_view record_order<destinatario> =
    "indicador_de_ie cnpj cpf razao_social endereco telefone email ie indicador_estrangeiro "
    "inscricao_suframa";
template <>
inline constexpr std::string_view record_order<emitente> =
    "cnpj razao_social nome_fantasia endereco telefone ie iest regime_fiscal inscricao_municipal "
    "cnae";
template <>
inline constexpr std::string_view record_order<endereco> =
    "cep logradouro numero_endereco complemento bairro pais ibge_municipio uf nome_municipio "
    "ibge_pais";
template <>
inline constexpr std::string_view record_order<grupo_repasse_icms_st> =
    "origem_mercadoria tributacao_icms valor_bc_icms_st_retido aliquota_suportada_consumidor_final "
    "valor_icms_proprio_substituto valor_icms_st_retido valor_bc_icms_st_destino "
    "valor_icms_st_destino fcp_st_retido_anteriormente informacoes_icms_efetivo";
template <>
inline constexpr std::string_view record_order<grupo_tributacao_icms_53> =
    "origem_mercadoria cst quantidade_tributada_diferida aliquota_ad_rem_diferido "
    "valor_icms_diferido";
template <>
inline constexpr std::string_view record_order<informacoes_pagamento> =
    "valor_total_troco detalhes_pagamento";
template <>
inline constexpr std::string_view record_order<nota_fiscal> =
    "modelo_emissao serie numero chave_44_digitos data_saida_entrada data_emissao ibge_uf_emissao "
    "ibge_municipio_emissao indice_pagamento operacao_consumidor_final codigo_nf tipo_operacao "
    "indicador_operacao natureza_operacao indicador_presenca indicador_intermediador "
    "indicador_finalidade_emissao tipo_nota_debito tipo_nota_credito indicador_ambiente produtos "
    "total_nfe destinatario emitente nfe_referenciadas nf_referenciadas nfp_referenciadas "
    "cupons_referenciados informacoes_transporte informacoes_pagamento cobranca "
    "informacoes_adicionais comercio_exterior tipo_emissao justificativa_entrada_contingencia "
    "data_contingencia local_entrega autorizacoes_acesso_xml informacoes_responsavel_tecnico "
    "informacoes_intermediador grupo_agropecuario";
template <>
inline constexpr std::string_view record_order<produto> =
    "codigo_produto codigo_de_barras descricao ncm cfop cest extipi indicador_escala_relevante "
    "cnpj_fabricante codigo_beneficio_fiscal_uf unidade_comercial quantidade_comercial "
    "valor_unitario_comercial valor_total_bruto codigo_de_barras_tributavel unidade_tributavel "
    "quantidade_tributavel valor_unitario_tributavel valor_frete valor_desconto "
    "valor_despesas_acessorias indicador_item_compoe_valor_total pedido_ordem_de_compra "
    "codigo_do_produto_ordem_de_compra valor_total_tributos informacoes_adicionais "
    "declaracao_importacao tributacao_ipi tributacao_importacao tributacao_pis_cofins "
    "tributacao_icms_uf_destino produto_especifico grupo_exportacao valor_seguro "
    "lista_informacoes_rastreabilidade grupo_credito_presumido tributos_devolvidos tributacao "
    "imposto_seletivo ibs_cbs total_item";
template <>
inline constexpr std::string_view record_order<total_nfe_icms> =
    "total_seguro total_desonerado total_fcp total_ipi total_ipi_devolvido "
    "total_imposto_de_importacao total_da_nota total_dos_tributos_do_item total_base_st "
    "total_base_normal total_icms_normal valor_total_dos_produtos_da_nota total_retido "
    "total_fcp_retido total_fcp_retido_anteriormente total_despesas_acessorias total_frete "
    "valor_total_do_desconto_da_nota total_imposto_pis total_imposto_confins total_fecop "
    "total_icms_fcp total_icms_destino total_icms_remetente "
    "total_quantidade_tributada_icms_monofasico total_icms_monofasico "
    "total_quantidade_tributada_icms_monofasico_retencao total_icms_monofasico_retencao "
    "total_quantidade_tributada_icms_monofasico_retido total_icms_monofasico_retido";
template <>
inline constexpr std::string_view record_order<tributacao_ipi> =
    "classe_enquadramento_ipi_cigarros_bebidas cnpj_produtor codigo_selo_controle_ipi "
    "quantidade_selo_controle codigo_enquadramento_ipi classe_enquadramento_ipi cst_ipi "
    "tributacao_ipi_calculo_aliquota tributacao_ipi_calculo_valor valor_ipi";
template <>
inline constexpr std::string_view record_order<tributacao_normal_icms_90> =
    "modalidade_bc_icms percentual_reducao_bc_icms valor_bc_icms aliquota_icms valor_icms fcp";
template <>
inline constexpr std::string_view record_order<tributacao_normal_icms_900> =
    "modalidade_bc_icms percentual_reducao_bc_icms valor_bc_icms aliquota_icms valor_icms";

} // namespace detail

/// Whether an accessor pair reaches the field of this name in a record.
constexpr bool reaches(std::string_view getter, std::string_view field) {
    if (getter.starts_with("get_")) {
        getter.remove_prefix(4);
    }
    if (field.starts_with("grupo_") && !getter.starts_with("grupo_")) {
        field.remove_prefix(6);
    }
    // three kinds of goods stand in one field of an item
    const bool of_a_kind =
        getter == "medicamentos" || getter == "armas" || getter == "combustiveis";
    return getter == field || (of_a_kind && field == "produto_especifico");
}

/// The indices of getters, in the order of these fields; without any, in their own.
inline std::vector<std::size_t> in_order(const std::vector<std::string_view>& getters,
                                         std::string_view fields) {
    std::vector<std::size_t> result;
    std::istringstream names{std::string(fields)};
    for (std::string name; names >> name;) {
        for (std::size_t index = 0; index < getters.size(); ++index) {
            if (reaches(getters[index], name)) {
                result.push_back(index);
            }
        }
    }
    if (result.empty()) {
        result.resize(getters.size());
        std::iota(result.begin(), result.end(), std::size_t(0));
    }
    return result;
}

/// The indices of `for_each_field`, in record order.
template <class Class> std::vector<std::size_t> fields_in_record_order() {
    return in_order(of_class<Class>::getter_names(), detail::record_order<Class>);
}

} // namespace kivo::tests
