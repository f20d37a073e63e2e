#pragma once

#include <layout/map.hpp>

#include <fiscal/grupo_credito_presumido.hpp>
#include <fiscal/grupo_fcp.hpp>
#include <fiscal/grupo_fcp_st_retido.hpp>
#include <fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <fiscal/grupo_icms_desonerado.hpp>
#include <fiscal/grupo_icms_st_retido.hpp>
#include <fiscal/grupo_reducao_ad_rem.hpp>
#include <fiscal/informacoes_icms_efetivo.hpp>
#include <fiscal/tributacao_credito_sn_icms_900.hpp>
#include <fiscal/tributacao_icms_uf_destino.hpp>
#include <fiscal/tributacao_normal_icms_90.hpp>
#include <fiscal/tributacao_normal_icms_900.hpp>
#include <fiscal/tributacao_st_icms_90.hpp>
#include <fiscal/tributacao_st_icms_900.hpp>

namespace kivo::erp::v12::layout {

using fiscal::grupo_credito_presumido;
using fiscal::grupo_fcp;
using fiscal::grupo_fcp_st_retido;
using fiscal::grupo_fcp_st_retido_anteriormente;
using fiscal::grupo_icms_desonerado;
using fiscal::grupo_icms_st_retido;
using fiscal::grupo_reducao_ad_rem;
using fiscal::informacoes_icms_efetivo;
using fiscal::tributacao_credito_sn_icms_900;
using fiscal::tributacao_icms_uf_destino;
using fiscal::tributacao_normal_icms_90;
using fiscal::tributacao_normal_icms_900;
using fiscal::tributacao_st_icms_90;
using fiscal::tributacao_st_icms_900;

template <>
inline constexpr auto fields<grupo_fcp> = std::tuple{
    field{"vBCFCP", &grupo_fcp::get_valor_bc, &grupo_fcp::set_valor_bc},
    field{"pFCP", &grupo_fcp::get_percentual, &grupo_fcp::set_percentual},
    field{"vFCP", &grupo_fcp::get_valor, &grupo_fcp::set_valor},
};

template <>
inline constexpr auto fields<grupo_fcp_st_retido> = std::tuple{
    field{"vBCFCPST", &grupo_fcp_st_retido::get_valor_bc, &grupo_fcp_st_retido::set_valor_bc},
    field{"pFCPST", &grupo_fcp_st_retido::get_percentual, &grupo_fcp_st_retido::set_percentual},
    field{"vFCPST", &grupo_fcp_st_retido::get_valor, &grupo_fcp_st_retido::set_valor},
};

template <>
inline constexpr auto fields<grupo_fcp_st_retido_anteriormente> = std::tuple{
    field{"vBCFCPSTRet", &grupo_fcp_st_retido_anteriormente::get_valor_bc,
          &grupo_fcp_st_retido_anteriormente::set_valor_bc},
    field{"pFCPSTRet", &grupo_fcp_st_retido_anteriormente::get_percentual,
          &grupo_fcp_st_retido_anteriormente::set_percentual},
    field{"vFCPSTRet", &grupo_fcp_st_retido_anteriormente::get_valor,
          &grupo_fcp_st_retido_anteriormente::set_valor},
};

template <>
inline constexpr auto fields<grupo_icms_desonerado> = std::tuple{
    field{"vICMSDeson", &grupo_icms_desonerado::get_valor_icms_desonerado,
          &grupo_icms_desonerado::set_valor_icms_desonerado},
    field{"motDesICMS", &grupo_icms_desonerado::get_motivo, &grupo_icms_desonerado::set_motivo,
          or_absent},
    field{"indDeduzDeson", &grupo_icms_desonerado::get_indicador_deducao,
          &grupo_icms_desonerado::set_indicador_deducao, digits(1)},
};

template <>
inline constexpr auto fields<grupo_icms_st_retido> = std::tuple{
    field{"vBCSTRet", &grupo_icms_st_retido::get_valor_bc_icms_retido,
          &grupo_icms_st_retido::set_valor_bc_icms_retido},
    field{"pST", &grupo_icms_st_retido::get_aliquota_suportada_consumidor_final,
          &grupo_icms_st_retido::set_aliquota_suportada_consumidor_final},
    field{"vICMSSubstituto", &grupo_icms_st_retido::get_valor_icms_proprio_substituto,
          &grupo_icms_st_retido::set_valor_icms_proprio_substituto},
    field{"vICMSSTRet", &grupo_icms_st_retido::get_valor_icms_st_retido,
          &grupo_icms_st_retido::set_valor_icms_st_retido},
};

template <>
inline constexpr auto fields<informacoes_icms_efetivo> = std::tuple{
    field{"pRedBCEfet", &informacoes_icms_efetivo::get_percentual_reducao_bc,
          &informacoes_icms_efetivo::set_percentual_reducao_bc},
    field{"vBCEfet", &informacoes_icms_efetivo::get_valor_bc,
          &informacoes_icms_efetivo::set_valor_bc},
    field{"pICMSEfet", &informacoes_icms_efetivo::get_aliquota,
          &informacoes_icms_efetivo::set_aliquota},
    field{"vICMSEfet", &informacoes_icms_efetivo::get_valor, &informacoes_icms_efetivo::set_valor},
};

template <>
inline constexpr auto fields<grupo_reducao_ad_rem> = std::tuple{
    field{"pRedAdRem", &grupo_reducao_ad_rem::get_percentual_reducao,
          &grupo_reducao_ad_rem::set_percentual_reducao},
    field{"motRedAdRem", &grupo_reducao_ad_rem::get_motivo, &grupo_reducao_ad_rem::set_motivo,
          digits(1).or_absent()},
};

template <>
inline constexpr auto fields<tributacao_normal_icms_90> = std::tuple{
    field{"modBC", &tributacao_normal_icms_90::get_modalidade_bc_icms,
          &tributacao_normal_icms_90::set_modalidade_bc_icms, digits(1)},
    field{"vBC", &tributacao_normal_icms_90::get_valor_bc_icms,
          &tributacao_normal_icms_90::set_valor_bc_icms},
    field{"pRedBC", &tributacao_normal_icms_90::get_percentual_reducao_bc_icms,
          &tributacao_normal_icms_90::set_percentual_reducao_bc_icms},
    field{"pICMS", &tributacao_normal_icms_90::get_aliquota_icms,
          &tributacao_normal_icms_90::set_aliquota_icms},
    field{"vICMS", &tributacao_normal_icms_90::get_valor_icms,
          &tributacao_normal_icms_90::set_valor_icms},
    embedded{&tributacao_normal_icms_90::get_fcp, &tributacao_normal_icms_90::set_fcp},
};

template <>
inline constexpr auto fields<tributacao_st_icms_90> = std::tuple{
    field{"modBCST", &tributacao_st_icms_90::get_modalidade_bc_icms_st,
          &tributacao_st_icms_90::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &tributacao_st_icms_90::get_percentual_margem_valor_adicionado_icms_st,
          &tributacao_st_icms_90::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &tributacao_st_icms_90::get_percentual_reducao_bc_icms_st,
          &tributacao_st_icms_90::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &tributacao_st_icms_90::get_valor_bc_icms_st,
          &tributacao_st_icms_90::set_valor_bc_icms_st},
    field{"pICMSST", &tributacao_st_icms_90::get_aliquota_icms_st,
          &tributacao_st_icms_90::set_aliquota_icms_st},
    field{"vICMSST", &tributacao_st_icms_90::get_valor_icms_st,
          &tributacao_st_icms_90::set_valor_icms_st},
    embedded{&tributacao_st_icms_90::get_fcp_st_retido, &tributacao_st_icms_90::set_fcp_st_retido},
};

template <>
inline constexpr auto fields<tributacao_normal_icms_900> = std::tuple{
    field{"modBC", &tributacao_normal_icms_900::get_modalidade_bc_icms,
          &tributacao_normal_icms_900::set_modalidade_bc_icms, digits(1)},
    field{"vBC", &tributacao_normal_icms_900::get_valor_bc_icms,
          &tributacao_normal_icms_900::set_valor_bc_icms},
    field{"pRedBC", &tributacao_normal_icms_900::get_percentual_reducao_bc_icms,
          &tributacao_normal_icms_900::set_percentual_reducao_bc_icms},
    field{"pICMS", &tributacao_normal_icms_900::get_aliquota_icms,
          &tributacao_normal_icms_900::set_aliquota_icms},
    field{"vICMS", &tributacao_normal_icms_900::get_valor_icms,
          &tributacao_normal_icms_900::set_valor_icms},
};

template <>
inline constexpr auto fields<tributacao_st_icms_900> = std::tuple{
    field{"modBCST", &tributacao_st_icms_900::get_modalidade_bc_icms_st,
          &tributacao_st_icms_900::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &tributacao_st_icms_900::get_percentual_margem_valor_adicionado_icms_st,
          &tributacao_st_icms_900::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &tributacao_st_icms_900::get_percentual_reducao_bc_icms_st,
          &tributacao_st_icms_900::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &tributacao_st_icms_900::get_valor_bc_icms_st,
          &tributacao_st_icms_900::set_valor_bc_icms_st},
    field{"pICMSST", &tributacao_st_icms_900::get_aliquota_icms_st,
          &tributacao_st_icms_900::set_aliquota_icms_st},
    field{"vICMSST", &tributacao_st_icms_900::get_valor_icms_st,
          &tributacao_st_icms_900::set_valor_icms_st},
    embedded{&tributacao_st_icms_900::get_fcp_st_retido,
             &tributacao_st_icms_900::set_fcp_st_retido},
};

template <>
inline constexpr auto fields<tributacao_credito_sn_icms_900> = std::tuple{
    field{"pCredSN", &tributacao_credito_sn_icms_900::get_aliquota_de_credito_sn,
          &tributacao_credito_sn_icms_900::set_aliquota_de_credito_sn},
    field{"vCredICMSSN", &tributacao_credito_sn_icms_900::get_valor_de_credito_sn,
          &tributacao_credito_sn_icms_900::set_valor_de_credito_sn},
};

template <>
inline constexpr auto fields<tributacao_icms_uf_destino> = std::tuple{
    field{"vBCUFDest", &tributacao_icms_uf_destino::get_valor_bc,
          &tributacao_icms_uf_destino::set_valor_bc},
    field{"vBCFCPUFDest", &tributacao_icms_uf_destino::get_valor_bc_fcp,
          &tributacao_icms_uf_destino::set_valor_bc_fcp},
    field{"pFCPUFDest", &tributacao_icms_uf_destino::get_percentual_fundo_combate_pobreza,
          &tributacao_icms_uf_destino::set_percentual_fundo_combate_pobreza},
    field{"pICMSUFDest", &tributacao_icms_uf_destino::get_aliquota_interna,
          &tributacao_icms_uf_destino::set_aliquota_interna},
    field{"pICMSInter", &tributacao_icms_uf_destino::get_aliquota_interestadual,
          &tributacao_icms_uf_destino::set_aliquota_interestadual},
    field{"pICMSInterPart", &tributacao_icms_uf_destino::get_percentual_partilha,
          &tributacao_icms_uf_destino::set_percentual_partilha},
    field{"vFCPUFDest", &tributacao_icms_uf_destino::get_valor_icms_fundo_combate_pobreza,
          &tributacao_icms_uf_destino::set_valor_icms_fundo_combate_pobreza},
    field{"vICMSUFDest", &tributacao_icms_uf_destino::get_valor_icms_uf_destino,
          &tributacao_icms_uf_destino::set_valor_icms_uf_destino},
    field{"vICMSUFRemet", &tributacao_icms_uf_destino::get_valor_icms_uf_remetente,
          &tributacao_icms_uf_destino::set_valor_icms_uf_remetente},
};

template <>
inline constexpr auto fields<grupo_credito_presumido> = std::tuple{
    field{"cCredPresumido", &grupo_credito_presumido::get_codigo_beneficio_fiscal,
          &grupo_credito_presumido::set_codigo_beneficio_fiscal},
    field{"pCredPresumido", &grupo_credito_presumido::get_percentual_credito_presumido,
          &grupo_credito_presumido::set_percentual_credito_presumido},
    field{"vCredPresumido", &grupo_credito_presumido::get_valor_credito_presumido,
          &grupo_credito_presumido::set_valor_credito_presumido},
};

} // namespace kivo::erp::v12::layout
