#pragma once

#include <layout/map.hpp>

#include <fiscal/grupo_cbs_cred_pres.hpp>
#include <fiscal/grupo_cred_pres.hpp>
#include <fiscal/grupo_diferimento_monofasica.hpp>
#include <fiscal/grupo_ibs_cbs.hpp>
#include <fiscal/grupo_ibs_cbs_monofasico.hpp>
#include <fiscal/grupo_ibs_cred_pres.hpp>
#include <fiscal/grupo_ibs_municipio.hpp>
#include <fiscal/grupo_ibs_uf.hpp>
#include <fiscal/grupo_informacoes_cbs.hpp>
#include <fiscal/grupo_informacoes_devolucao.hpp>
#include <fiscal/grupo_informacoes_diferimento.hpp>
#include <fiscal/grupo_informacoes_reducao.hpp>
#include <fiscal/grupo_monofasica_retencao.hpp>
#include <fiscal/grupo_monofasica_retida.hpp>
#include <fiscal/grupo_monofasico_padrao.hpp>
#include <fiscal/grupo_tributacao_regular.hpp>
#include <fiscal/ibs_cbs.hpp>
#include <fiscal/imposto_seletivo.hpp>
#include <fiscal/sequencia_cred_pres.hpp>
#include <fiscal/sequencia_ibs_cbs.hpp>
#include <fiscal/tributavel_imposto_seletivo.hpp>
#include <fiscal/valor_imposto_seletivo.hpp>

namespace kivo::erp::v12::layout {

using fiscal::grupo_cbs_cred_pres;
using fiscal::grupo_cred_pres;
using fiscal::grupo_diferimento_monofasica;
using fiscal::grupo_ibs_cbs;
using fiscal::grupo_ibs_cbs_monofasico;
using fiscal::grupo_ibs_cred_pres;
using fiscal::grupo_ibs_municipio;
using fiscal::grupo_ibs_uf;
using fiscal::grupo_informacoes_cbs;
using fiscal::grupo_informacoes_devolucao;
using fiscal::grupo_informacoes_diferimento;
using fiscal::grupo_informacoes_reducao;
using fiscal::grupo_monofasica_retencao;
using fiscal::grupo_monofasica_retida;
using fiscal::grupo_monofasico_padrao;
using fiscal::grupo_tributacao_regular;
using fiscal::ibs_cbs;
using fiscal::imposto_seletivo;
using fiscal::sequencia_cred_pres;
using fiscal::sequencia_ibs_cbs;
using fiscal::tributavel_imposto_seletivo;
using fiscal::valor_imposto_seletivo;

template <>
inline constexpr auto fields<grupo_informacoes_diferimento> = std::tuple{
    field{"pDif", &grupo_informacoes_diferimento::get_percentual_diferimento,
          &grupo_informacoes_diferimento::set_percentual_diferimento},
    field{"vDif", &grupo_informacoes_diferimento::get_valor_diferimento,
          &grupo_informacoes_diferimento::set_valor_diferimento},
};

template <>
inline constexpr auto fields<grupo_informacoes_devolucao> = std::tuple{
    field{"vDevTrib", &grupo_informacoes_devolucao::get_valor_tributo_devolvido,
          &grupo_informacoes_devolucao::set_valor_tributo_devolvido},
};

template <>
inline constexpr auto fields<grupo_informacoes_reducao> = std::tuple{
    field{"pRedAliq", &grupo_informacoes_reducao::get_percentual_reducao_aliquota,
          &grupo_informacoes_reducao::set_percentual_reducao_aliquota},
    field{"pAliqEfet", &grupo_informacoes_reducao::get_aliquota_efetiva,
          &grupo_informacoes_reducao::set_aliquota_efetiva},
};

template <>
inline constexpr auto fields<grupo_ibs_uf> = std::tuple{
    field{"pIBSUF", &grupo_ibs_uf::get_aliquota_ibs, &grupo_ibs_uf::set_aliquota_ibs},
    field{"gDif", &grupo_ibs_uf::get_informacoes_diferimento,
          &grupo_ibs_uf::set_informacoes_diferimento},
    field{"gDevTrib", &grupo_ibs_uf::get_informacoes_devolucao,
          &grupo_ibs_uf::set_informacoes_devolucao},
    field{"gRed", &grupo_ibs_uf::get_informacoes_reducao, &grupo_ibs_uf::set_informacoes_reducao},
    field{"vIBSUF", &grupo_ibs_uf::get_valor_ibs, &grupo_ibs_uf::set_valor_ibs},
};

template <>
inline constexpr auto fields<grupo_ibs_municipio> = std::tuple{
    field{"pIBSMun", &grupo_ibs_municipio::get_aliquota_ibs,
          &grupo_ibs_municipio::set_aliquota_ibs},
    field{"gDif", &grupo_ibs_municipio::get_informacoes_diferimento,
          &grupo_ibs_municipio::set_informacoes_diferimento},
    field{"gDevTrib", &grupo_ibs_municipio::get_informacoes_devolucao,
          &grupo_ibs_municipio::set_informacoes_devolucao},
    field{"gRed", &grupo_ibs_municipio::get_informacoes_reducao,
          &grupo_ibs_municipio::set_informacoes_reducao},
    field{"vIBSMun", &grupo_ibs_municipio::get_valor_ibs, &grupo_ibs_municipio::set_valor_ibs},
};

template <>
inline constexpr auto fields<grupo_informacoes_cbs> = std::tuple{
    field{"pCBS", &grupo_informacoes_cbs::get_aliquota_cbs,
          &grupo_informacoes_cbs::set_aliquota_cbs},
    field{"gDif", &grupo_informacoes_cbs::get_informacoes_diferimento,
          &grupo_informacoes_cbs::set_informacoes_diferimento},
    field{"gDevTrib", &grupo_informacoes_cbs::get_informacoes_devolucao,
          &grupo_informacoes_cbs::set_informacoes_devolucao},
    field{"gRed", &grupo_informacoes_cbs::get_informacoes_reducao,
          &grupo_informacoes_cbs::set_informacoes_reducao},
    field{"vCBS", &grupo_informacoes_cbs::get_valor_cbs, &grupo_informacoes_cbs::set_valor_cbs},
};

template <>
inline constexpr auto fields<grupo_tributacao_regular> = std::tuple{
    field{"CSTReg", &grupo_tributacao_regular::get_codigo_situacao_tributaria,
          &grupo_tributacao_regular::set_codigo_situacao_tributaria, digits(3)},
    field{"cClassTribReg", &grupo_tributacao_regular::get_codigo_classificacao_tributaria,
          &grupo_tributacao_regular::set_codigo_classificacao_tributaria, digits(6)},
    field{"pAliqEfetRegIBSUF", &grupo_tributacao_regular::get_valor_aliquota_ibs_uf,
          &grupo_tributacao_regular::set_valor_aliquota_ibs_uf},
    field{"vTribRegIBSUF", &grupo_tributacao_regular::get_valor_tributo_ibs_uf,
          &grupo_tributacao_regular::set_valor_tributo_ibs_uf},
    field{"pAliqEfetRegIBSMun", &grupo_tributacao_regular::get_valor_aliquota_ibs_municipio,
          &grupo_tributacao_regular::set_valor_aliquota_ibs_municipio},
    field{"vTribRegIBSMun", &grupo_tributacao_regular::get_valor_tributo_ibs_municipio,
          &grupo_tributacao_regular::set_valor_tributo_ibs_municipio},
    field{"pAliqEfetRegCBS", &grupo_tributacao_regular::get_valor_aliquota_cbs,
          &grupo_tributacao_regular::set_valor_aliquota_cbs},
    field{"vTribRegCBS", &grupo_tributacao_regular::get_valor_tributo_cbs,
          &grupo_tributacao_regular::set_valor_tributo_cbs},
};

template <>
inline constexpr auto fields<grupo_ibs_cbs> = std::tuple{
    field{"vBC", &grupo_ibs_cbs::get_valor_base_calculo, &grupo_ibs_cbs::set_valor_base_calculo},
    field{"gIBSUF", &grupo_ibs_cbs::get_ibs_uf, &grupo_ibs_cbs::set_ibs_uf},
    field{"gIBSMun", &grupo_ibs_cbs::get_ibs_municipio, &grupo_ibs_cbs::set_ibs_municipio},
    field{"vIBS", &grupo_ibs_cbs::get_valor_ibs, &grupo_ibs_cbs::set_valor_ibs},
    field{"gCBS", &grupo_ibs_cbs::get_informacoes_cbs, &grupo_ibs_cbs::set_informacoes_cbs},
    field{"gTribRegular", &grupo_ibs_cbs::get_tributacao_regular,
          &grupo_ibs_cbs::set_tributacao_regular},
};

template <>
inline constexpr auto fields<grupo_monofasico_padrao> = std::tuple{
    field{"qBCMono", &grupo_monofasico_padrao::get_quantidade_tributada,
          &grupo_monofasico_padrao::set_quantidade_tributada},
    field{"adRemIBS", &grupo_monofasico_padrao::get_aliquota_ibs,
          &grupo_monofasico_padrao::set_aliquota_ibs},
    field{"adRemCBS", &grupo_monofasico_padrao::get_aliquota_cbs,
          &grupo_monofasico_padrao::set_aliquota_cbs},
    field{"vIBSMono", &grupo_monofasico_padrao::get_valor_ibs_monofasico,
          &grupo_monofasico_padrao::set_valor_ibs_monofasico},
    field{"vCBSMono", &grupo_monofasico_padrao::get_valor_cbs_monofasico,
          &grupo_monofasico_padrao::set_valor_cbs_monofasico},
};

template <>
inline constexpr auto fields<grupo_monofasica_retencao> = std::tuple{
    field{"qBCMonoReten", &grupo_monofasica_retencao::get_quantidade_tributada,
          &grupo_monofasica_retencao::set_quantidade_tributada},
    field{"adRemIBSReten", &grupo_monofasica_retencao::get_aliquota_ibs,
          &grupo_monofasica_retencao::set_aliquota_ibs},
    field{"vIBSMonoReten", &grupo_monofasica_retencao::get_valor_ibs_monofasico,
          &grupo_monofasica_retencao::set_valor_ibs_monofasico},
    field{"adRemCBSReten", &grupo_monofasica_retencao::get_aliquota_cbs,
          &grupo_monofasica_retencao::set_aliquota_cbs},
    field{"vCBSMonoReten", &grupo_monofasica_retencao::get_valor_cbs_monofasico,
          &grupo_monofasica_retencao::set_valor_cbs_monofasico},
};

template <>
inline constexpr auto fields<grupo_monofasica_retida> = std::tuple{
    field{"qBCMonoRet", &grupo_monofasica_retida::get_quantidade_tributada,
          &grupo_monofasica_retida::set_quantidade_tributada},
    field{"adRemIBSRet", &grupo_monofasica_retida::get_aliquota_ibs,
          &grupo_monofasica_retida::set_aliquota_ibs},
    field{"vIBSMonoRet", &grupo_monofasica_retida::get_valor_ibs_monofasico,
          &grupo_monofasica_retida::set_valor_ibs_monofasico},
    field{"adRemCBSRet", &grupo_monofasica_retida::get_aliquota_cbs,
          &grupo_monofasica_retida::set_aliquota_cbs},
    field{"vCBSMonoRet", &grupo_monofasica_retida::get_valor_cbs_monofasico,
          &grupo_monofasica_retida::set_valor_cbs_monofasico},
};

template <>
inline constexpr auto fields<grupo_diferimento_monofasica> = std::tuple{
    field{"pDifIBS", &grupo_diferimento_monofasica::get_percentual_ibs_diferido,
          &grupo_diferimento_monofasica::set_percentual_ibs_diferido},
    field{"vIBSMonoDif", &grupo_diferimento_monofasica::get_valor_ibs_diferido,
          &grupo_diferimento_monofasica::set_valor_ibs_diferido},
    field{"pDifCBS", &grupo_diferimento_monofasica::get_percentual_cbs_diferido,
          &grupo_diferimento_monofasica::set_percentual_cbs_diferido},
    field{"vCBSMonoDif", &grupo_diferimento_monofasica::get_valor_cbs_diferido,
          &grupo_diferimento_monofasica::set_valor_cbs_diferido},
};

template <>
inline constexpr auto fields<grupo_ibs_cbs_monofasico> = std::tuple{
    field{"gMonoPadrao", &grupo_ibs_cbs_monofasico::get_grupo_monofasico_padrao,
          &grupo_ibs_cbs_monofasico::set_grupo_monofasico_padrao},
    field{"gMonoReten", &grupo_ibs_cbs_monofasico::get_monofasica_retencao,
          &grupo_ibs_cbs_monofasico::set_grupo_monofasica_retencao},
    field{"gMonoRet", &grupo_ibs_cbs_monofasico::get_monofasica_retida,
          &grupo_ibs_cbs_monofasico::set_grupo_monofasica_retida},
    field{"gMonoDif", &grupo_ibs_cbs_monofasico::get_grupo_diferimento_monofasica,
          &grupo_ibs_cbs_monofasico::set_grupo_diferimento_monofasica},
    field{"vTotIBSMonoItem", &grupo_ibs_cbs_monofasico::get_valor_total_ibs_monofasico,
          &grupo_ibs_cbs_monofasico::set_valor_total_ibs_monofasico},
    field{"vTotCBSMonoItem", &grupo_ibs_cbs_monofasico::get_valor_total_cbs_monofasico,
          &grupo_ibs_cbs_monofasico::set_valor_total_cbs_monofasico},
};

template <>
inline constexpr auto fields<grupo_ibs_cred_pres> = std::tuple{
    no_element{&grupo_ibs_cred_pres::get_codigo_classificacao,
               &grupo_ibs_cred_pres::set_codigo_classificacao},
    field{"pCredPres", &grupo_ibs_cred_pres::get_percentual_credito_presumido,
          &grupo_ibs_cred_pres::set_percentual_credito_presumido},
    one_of{&grupo_ibs_cred_pres::get_valor_credito_presumido,
           &grupo_ibs_cred_pres::set_valor_credito_presumido, "vCredPres", "vCredPresCondSus"},
};

template <>
inline constexpr auto fields<grupo_cbs_cred_pres> = std::tuple{
    no_element{&grupo_cbs_cred_pres::get_codigo_classificacao,
               &grupo_cbs_cred_pres::set_codigo_classificacao},
    field{"pCredPres", &grupo_cbs_cred_pres::get_percentual_credito_presumido,
          &grupo_cbs_cred_pres::set_percentual_credito_presumido},
    one_of{&grupo_cbs_cred_pres::get_valor_credito_presumido,
           &grupo_cbs_cred_pres::set_valor_credito_presumido, "vCredPres", "vCredPresCondSus"},
};

template <>
inline constexpr auto fields<grupo_cred_pres> = std::tuple{
    field{"vBCCredPres", &grupo_cred_pres::get_valor_base_calculo,
          &grupo_cred_pres::set_valor_base_calculo},
    field{"cCredPres", &grupo_cred_pres::get_codigo, &grupo_cred_pres::set_codigo, digits(2)},
    field{"gIBSCredPres", &grupo_cred_pres::get_ibs_cred_pres, &grupo_cred_pres::set_ibs_cred_pres},
    field{"gCBSCredPres", &grupo_cred_pres::get_cbs_cred_pres, &grupo_cred_pres::set_cbs_cred_pres},
};

template <>
inline constexpr auto fields<sequencia_ibs_cbs> = std::tuple{
    one_of{&sequencia_ibs_cbs::get_grupo_ibs_cbs, &sequencia_ibs_cbs::set_grupo_ibs_cbs, "gIBSCBS",
           "gIBSCBSMono"},
};

template <>
inline constexpr auto fields<sequencia_cred_pres> = std::tuple{
    one_of{&sequencia_cred_pres::get_grupo_cred_pres, &sequencia_cred_pres::set_grupo_cred_pres,
           nowhere, "gCredPresOper"},
};

template <>
inline constexpr auto fields<ibs_cbs> = std::tuple{
    field{"CST", &ibs_cbs::get_codigo_situacao_tributaria, &ibs_cbs::set_codigo_situacao_tributaria,
          digits(3)},
    field{"cClassTrib", &ibs_cbs::get_codigo_classificacao_tributaria,
          &ibs_cbs::set_codigo_classificacao_tributaria, digits(6)},
    embedded{&ibs_cbs::get_sequencia_ibs_cbs, &ibs_cbs::set_sequencia_ibs_cbs},
    embedded{&ibs_cbs::get_sequencia_cred_pres, &ibs_cbs::set_sequencia_cred_pres},
};

template <>
inline constexpr auto fields<tributavel_imposto_seletivo> = std::tuple{
    field{"uTrib", &tributavel_imposto_seletivo::get_unidade_medida_tributavel,
          &tributavel_imposto_seletivo::set_unidade_medida_tributavel},
    field{"qTrib", &tributavel_imposto_seletivo::get_quantidade_tributavel,
          &tributavel_imposto_seletivo::set_quantidade_tributavel},
};

template <>
inline constexpr auto fields<valor_imposto_seletivo> = std::tuple{
    field{"vBCIS", &valor_imposto_seletivo::get_valor_base_calculo,
          &valor_imposto_seletivo::set_valor_base_calculo},
    field{"pIS", &valor_imposto_seletivo::get_aliquota, &valor_imposto_seletivo::set_aliquota},
    field{"pISEspec", &valor_imposto_seletivo::get_aliquota_especifica,
          &valor_imposto_seletivo::set_aliquota_especifica},
    embedded{&valor_imposto_seletivo::get_tributavel, &valor_imposto_seletivo::set_tributavel},
    field{"vIS", &valor_imposto_seletivo::get_valor, &valor_imposto_seletivo::set_valor},
};

template <>
inline constexpr auto fields<imposto_seletivo> = std::tuple{
    field{"CSTIS", &imposto_seletivo::get_codigo_situacao_tributaria,
          &imposto_seletivo::set_codigo_situacao_tributaria, digits(3)},
    field{"cClassTribIS", &imposto_seletivo::get_codigo_classificacao_tributaria,
          &imposto_seletivo::set_codigo_classificacao_tributaria, digits(6)},
    embedded{&imposto_seletivo::get_valor_imposto, &imposto_seletivo::set_valor_imposto},
};

} // namespace kivo::erp::v12::layout
