#pragma once

#include <layout/icms_subgroups.hpp>
#include <layout/map.hpp>

#include <fiscal/grupo_repasse_icms_st.hpp>
#include <fiscal/grupo_tributacao_icms_00.hpp>
#include <fiscal/grupo_tributacao_icms_02.hpp>
#include <fiscal/grupo_tributacao_icms_10.hpp>
#include <fiscal/grupo_tributacao_icms_101.hpp>
#include <fiscal/grupo_tributacao_icms_102.hpp>
#include <fiscal/grupo_tributacao_icms_15.hpp>
#include <fiscal/grupo_tributacao_icms_20.hpp>
#include <fiscal/grupo_tributacao_icms_201.hpp>
#include <fiscal/grupo_tributacao_icms_202.hpp>
#include <fiscal/grupo_tributacao_icms_30.hpp>
#include <fiscal/grupo_tributacao_icms_40.hpp>
#include <fiscal/grupo_tributacao_icms_500.hpp>
#include <fiscal/grupo_tributacao_icms_51.hpp>
#include <fiscal/grupo_tributacao_icms_53.hpp>
#include <fiscal/grupo_tributacao_icms_60.hpp>
#include <fiscal/grupo_tributacao_icms_61.hpp>
#include <fiscal/grupo_tributacao_icms_70.hpp>
#include <fiscal/grupo_tributacao_icms_90.hpp>
#include <fiscal/grupo_tributacao_icms_900.hpp>
#include <fiscal/modalidade_bc_icms.hpp>

namespace kivo::erp::v12::layout {

using fiscal::grupo_repasse_icms_st;
using fiscal::grupo_tributacao_icms_00;
using fiscal::grupo_tributacao_icms_02;
using fiscal::grupo_tributacao_icms_10;
using fiscal::grupo_tributacao_icms_101;
using fiscal::grupo_tributacao_icms_102;
using fiscal::grupo_tributacao_icms_15;
using fiscal::grupo_tributacao_icms_20;
using fiscal::grupo_tributacao_icms_201;
using fiscal::grupo_tributacao_icms_202;
using fiscal::grupo_tributacao_icms_30;
using fiscal::grupo_tributacao_icms_40;
using fiscal::grupo_tributacao_icms_500;
using fiscal::grupo_tributacao_icms_51;
using fiscal::grupo_tributacao_icms_53;
using fiscal::grupo_tributacao_icms_60;
using fiscal::grupo_tributacao_icms_61;
using fiscal::grupo_tributacao_icms_70;
using fiscal::grupo_tributacao_icms_90;
using fiscal::grupo_tributacao_icms_900;

template <>
inline constexpr auto fields<grupo_tributacao_icms_00> = std::tuple{
    field{"orig", &grupo_tributacao_icms_00::get_origem_mercadoria,
          &grupo_tributacao_icms_00::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_00::get_cst, &grupo_tributacao_icms_00::set_cst, digits(2)},
    field{"modBC", &grupo_tributacao_icms_00::get_modalidade_bc_icms,
          &grupo_tributacao_icms_00::set_modalidade_bc_icms, digits(1)},
    field{"vBC", &grupo_tributacao_icms_00::get_valor_bc_icms,
          &grupo_tributacao_icms_00::set_valor_bc_icms},
    field{"pICMS", &grupo_tributacao_icms_00::get_aliquota_icms,
          &grupo_tributacao_icms_00::set_aliquota_icms},
    field{"vICMS", &grupo_tributacao_icms_00::get_valor_icms,
          &grupo_tributacao_icms_00::set_valor_icms},
    embedded{&grupo_tributacao_icms_00::get_fcp, &grupo_tributacao_icms_00::set_fcp, "vBCFCP"},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_02> = std::tuple{
    field{"orig", &grupo_tributacao_icms_02::get_origem_mercadoria,
          &grupo_tributacao_icms_02::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_02::get_cst, &grupo_tributacao_icms_02::set_cst, digits(2)},
    field{"qBCMono", &grupo_tributacao_icms_02::get_quantidade_tributada,
          &grupo_tributacao_icms_02::set_quantidade_tributada},
    field{"adRemICMS", &grupo_tributacao_icms_02::get_aliquota_ad_rem,
          &grupo_tributacao_icms_02::set_aliquota_ad_rem},
    field{"vICMSMono", &grupo_tributacao_icms_02::get_valor_icms,
          &grupo_tributacao_icms_02::set_valor_icms},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_10> = std::tuple{
    field{"orig", &grupo_tributacao_icms_10::get_origem_mercadoria,
          &grupo_tributacao_icms_10::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_10::get_cst, &grupo_tributacao_icms_10::set_cst, digits(2)},
    field{"modBC", &grupo_tributacao_icms_10::get_modalidade_bc_icms,
          &grupo_tributacao_icms_10::set_modalidade_bc_icms, digits(1)},
    field{"vBC", &grupo_tributacao_icms_10::get_valor_bc_icms,
          &grupo_tributacao_icms_10::set_valor_bc_icms},
    field{"pICMS", &grupo_tributacao_icms_10::get_aliquota_icms,
          &grupo_tributacao_icms_10::set_aliquota_icms},
    field{"vICMS", &grupo_tributacao_icms_10::get_valor_icms,
          &grupo_tributacao_icms_10::set_valor_icms},
    embedded{&grupo_tributacao_icms_10::get_fcp, &grupo_tributacao_icms_10::set_fcp},
    field{"modBCST", &grupo_tributacao_icms_10::get_modalidade_bc_icms_st,
          &grupo_tributacao_icms_10::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &grupo_tributacao_icms_10::get_percentual_margem_valor_adicionado_icms_st,
          &grupo_tributacao_icms_10::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &grupo_tributacao_icms_10::get_percentual_reducao_bc_icms_st,
          &grupo_tributacao_icms_10::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &grupo_tributacao_icms_10::get_valor_bc_icms_st,
          &grupo_tributacao_icms_10::set_valor_bc_icms_st},
    field{"pICMSST", &grupo_tributacao_icms_10::get_aliquota_icms_st,
          &grupo_tributacao_icms_10::set_aliquota_icms_st},
    field{"vICMSST", &grupo_tributacao_icms_10::get_valor_icms_st,
          &grupo_tributacao_icms_10::set_valor_icms_st},
    embedded{&grupo_tributacao_icms_10::get_fcp_st_retido,
             &grupo_tributacao_icms_10::set_fcp_st_retido},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_15> = std::tuple{
    field{"orig", &grupo_tributacao_icms_15::get_origem_mercadoria,
          &grupo_tributacao_icms_15::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_15::get_cst, &grupo_tributacao_icms_15::set_cst, digits(2)},
    field{"qBCMono", &grupo_tributacao_icms_15::get_quantidade_tributada,
          &grupo_tributacao_icms_15::set_quantidade_tributada},
    field{"adRemICMS", &grupo_tributacao_icms_15::get_aliquota_ad_rem,
          &grupo_tributacao_icms_15::set_aliquota_ad_rem},
    field{"vICMSMono", &grupo_tributacao_icms_15::get_valor_icms,
          &grupo_tributacao_icms_15::set_valor_icms},
    field{"qBCMonoReten", &grupo_tributacao_icms_15::get_quantidade_tributada_retencao,
          &grupo_tributacao_icms_15::set_quantidade_tributada_retencao},
    field{"adRemICMSReten", &grupo_tributacao_icms_15::get_aliquota_ad_rem_retencao,
          &grupo_tributacao_icms_15::set_aliquota_ad_rem_retencao},
    field{"vICMSMonoReten", &grupo_tributacao_icms_15::get_valor_icms_retencao,
          &grupo_tributacao_icms_15::set_valor_icms_retencao},
    embedded{&grupo_tributacao_icms_15::get_reducao_ad_rem,
             &grupo_tributacao_icms_15::set_reducao_ad_rem},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_20> = std::tuple{
    field{"orig", &grupo_tributacao_icms_20::get_origem_mercadoria,
          &grupo_tributacao_icms_20::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_20::get_cst, &grupo_tributacao_icms_20::set_cst, digits(2)},
    field{"modBC", &grupo_tributacao_icms_20::get_modalidade_bc_icms,
          &grupo_tributacao_icms_20::set_modalidade_bc_icms, digits(1)},
    field{"pRedBC", &grupo_tributacao_icms_20::get_percentual_reducao_bc_icms,
          &grupo_tributacao_icms_20::set_percentual_reducao_bc_icms},
    field{"vBC", &grupo_tributacao_icms_20::get_valor_bc_icms,
          &grupo_tributacao_icms_20::set_valor_bc_icms},
    field{"pICMS", &grupo_tributacao_icms_20::get_aliquota_icms,
          &grupo_tributacao_icms_20::set_aliquota_icms},
    field{"vICMS", &grupo_tributacao_icms_20::get_valor_icms,
          &grupo_tributacao_icms_20::set_valor_icms},
    embedded{&grupo_tributacao_icms_20::get_fcp, &grupo_tributacao_icms_20::set_fcp},
    embedded{&grupo_tributacao_icms_20::get_grupo_icms_desonerado,
             &grupo_tributacao_icms_20::set_grupo_icms_desonerado},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_30> = std::tuple{
    field{"orig", &grupo_tributacao_icms_30::get_origem_mercadoria,
          &grupo_tributacao_icms_30::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_30::get_cst, &grupo_tributacao_icms_30::set_cst, digits(2)},
    field{"modBCST", &grupo_tributacao_icms_30::get_modalidade_bc_icms_st,
          &grupo_tributacao_icms_30::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &grupo_tributacao_icms_30::get_percentual_margem_valor_adicionado_icms_st,
          &grupo_tributacao_icms_30::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &grupo_tributacao_icms_30::get_percentual_reducao_bc_icms_st,
          &grupo_tributacao_icms_30::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &grupo_tributacao_icms_30::get_valor_bc_icms_st,
          &grupo_tributacao_icms_30::set_valor_bc_icms_st},
    field{"pICMSST", &grupo_tributacao_icms_30::get_aliquota_icms_st,
          &grupo_tributacao_icms_30::set_aliquota_icms_st},
    field{"vICMSST", &grupo_tributacao_icms_30::get_valor_icms_st,
          &grupo_tributacao_icms_30::set_valor_icms_st},
    embedded{&grupo_tributacao_icms_30::get_fcp_st_retido,
             &grupo_tributacao_icms_30::set_fcp_st_retido},
    embedded{&grupo_tributacao_icms_30::get_grupo_icms_desonerado,
             &grupo_tributacao_icms_30::set_grupo_icms_desonerado},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_40> = std::tuple{
    field{"orig", &grupo_tributacao_icms_40::get_origem_mercadoria,
          &grupo_tributacao_icms_40::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_40::get_cst, &grupo_tributacao_icms_40::set_cst, digits(2)},
    embedded{&grupo_tributacao_icms_40::get_grupo_icms_desonerado,
             &grupo_tributacao_icms_40::set_grupo_icms_desonerado},
};

/// ICMS51 may lack modBC, whose code 0 is also the default: there it is taken for a code only
/// beside the tax base that it explains.
inline bool has_tax_base_mode(const grupo_tributacao_icms_51& group) {
    return group.get_modalidade_bc_icms() != fiscal::modalidade_bc_icms{} ||
           group.get_valor_bc_icms().has_value();
}

template <>
inline constexpr auto fields<grupo_tributacao_icms_51> = std::tuple{
    field{"orig", &grupo_tributacao_icms_51::get_origem_mercadoria,
          &grupo_tributacao_icms_51::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_51::get_cst, &grupo_tributacao_icms_51::set_cst, digits(2)},
    only_if{has_tax_base_mode, field{"modBC", &grupo_tributacao_icms_51::get_modalidade_bc_icms,
                                     &grupo_tributacao_icms_51::set_modalidade_bc_icms, digits(1)}},
    field{"pRedBC", &grupo_tributacao_icms_51::get_percentual_reducao_bc_icms,
          &grupo_tributacao_icms_51::set_percentual_reducao_bc_icms},
    field{"cBenefRBC", &grupo_tributacao_icms_51::get_codigo_beneficio_fiscal_reducao_bc_icms,
          &grupo_tributacao_icms_51::set_codigo_beneficio_fiscal_reducao_bc_icms},
    field{"vBC", &grupo_tributacao_icms_51::get_valor_bc_icms,
          &grupo_tributacao_icms_51::set_valor_bc_icms},
    field{"pICMS", &grupo_tributacao_icms_51::get_aliquota_icms,
          &grupo_tributacao_icms_51::set_aliquota_icms},
    field{"vICMSOp", &grupo_tributacao_icms_51::get_valor_icms_operacao,
          &grupo_tributacao_icms_51::set_valor_icms_operacao},
    field{"pDif", &grupo_tributacao_icms_51::get_percentual_diferimento,
          &grupo_tributacao_icms_51::set_percentual_diferimento},
    field{"vICMSDif", &grupo_tributacao_icms_51::get_valor_icms_diferido,
          &grupo_tributacao_icms_51::set_valor_icms_diferido},
    field{"vICMS", &grupo_tributacao_icms_51::get_valor_icms,
          &grupo_tributacao_icms_51::set_valor_icms},
    embedded{&grupo_tributacao_icms_51::get_fcp, &grupo_tributacao_icms_51::set_fcp},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_53> = std::tuple{
    field{"orig", &grupo_tributacao_icms_53::get_origem_mercadoria,
          &grupo_tributacao_icms_53::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_53::get_cst, &grupo_tributacao_icms_53::set_cst, digits(2)},
    field{"vICMSMonoDif", &grupo_tributacao_icms_53::get_valor_icms_diferido,
          &grupo_tributacao_icms_53::set_valor_icms_diferido},
    field{"qBCMonoDif", &grupo_tributacao_icms_53::get_quantidade_tributada_diferida,
          &grupo_tributacao_icms_53::set_quantidade_tributada_diferida},
    field{"adRemICMSDif", &grupo_tributacao_icms_53::get_aliquota_ad_rem_diferido,
          &grupo_tributacao_icms_53::set_aliquota_ad_rem_diferido},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_60> = std::tuple{
    field{"orig", &grupo_tributacao_icms_60::get_origem_mercadoria,
          &grupo_tributacao_icms_60::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_60::get_cst, &grupo_tributacao_icms_60::set_cst, digits(2)},
    embedded{&grupo_tributacao_icms_60::get_icms_st_retido,
             &grupo_tributacao_icms_60::set_icms_st_retido},
    embedded{&grupo_tributacao_icms_60::get_fcp_st_retido_anteriormente,
             &grupo_tributacao_icms_60::set_fcp_st_retido_anteriormente},
    embedded{&grupo_tributacao_icms_60::get_informacoes_icms_efetivo,
             &grupo_tributacao_icms_60::set_informacoes_icms_efetivo},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_61> = std::tuple{
    field{"orig", &grupo_tributacao_icms_61::get_origem_mercadoria,
          &grupo_tributacao_icms_61::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_61::get_cst, &grupo_tributacao_icms_61::set_cst, digits(2)},
    field{"qBCMonoRet", &grupo_tributacao_icms_61::get_quantidade_tributada_retida,
          &grupo_tributacao_icms_61::set_quantidade_tributada_retida},
    field{"adRemICMSRet", &grupo_tributacao_icms_61::get_aliquota_ad_rem_retido,
          &grupo_tributacao_icms_61::set_aliquota_ad_rem_retido},
    field{"vICMSMonoRet", &grupo_tributacao_icms_61::get_valor_icms_retido,
          &grupo_tributacao_icms_61::set_valor_icms_retido},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_70> = std::tuple{
    field{"orig", &grupo_tributacao_icms_70::get_origem_mercadoria,
          &grupo_tributacao_icms_70::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_70::get_cst, &grupo_tributacao_icms_70::set_cst, digits(2)},
    field{"modBC", &grupo_tributacao_icms_70::get_modalidade_bc_icms,
          &grupo_tributacao_icms_70::set_modalidade_bc_icms, digits(1)},
    field{"pRedBC", &grupo_tributacao_icms_70::get_percentual_reducao_bc_icms,
          &grupo_tributacao_icms_70::set_percentual_reducao_bc_icms},
    field{"vBC", &grupo_tributacao_icms_70::get_valor_bc_icms,
          &grupo_tributacao_icms_70::set_valor_bc_icms},
    field{"pICMS", &grupo_tributacao_icms_70::get_aliquota_icms,
          &grupo_tributacao_icms_70::set_aliquota_icms},
    field{"vICMS", &grupo_tributacao_icms_70::get_valor_icms,
          &grupo_tributacao_icms_70::set_valor_icms},
    embedded{&grupo_tributacao_icms_70::get_fcp, &grupo_tributacao_icms_70::set_fcp},
    field{"modBCST", &grupo_tributacao_icms_70::get_modalidade_bc_icms_st,
          &grupo_tributacao_icms_70::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &grupo_tributacao_icms_70::get_percentual_margem_valor_adicionado_icms_st,
          &grupo_tributacao_icms_70::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &grupo_tributacao_icms_70::get_percentual_reducao_bc_icms_st,
          &grupo_tributacao_icms_70::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &grupo_tributacao_icms_70::get_valor_bc_icms_st,
          &grupo_tributacao_icms_70::set_valor_bc_icms_st},
    field{"pICMSST", &grupo_tributacao_icms_70::get_aliquota_icms_st,
          &grupo_tributacao_icms_70::set_aliquota_icms_st},
    field{"vICMSST", &grupo_tributacao_icms_70::get_valor_icms_st,
          &grupo_tributacao_icms_70::set_valor_icms_st},
    embedded{&grupo_tributacao_icms_70::get_fcp_st_retido,
             &grupo_tributacao_icms_70::set_fcp_st_retido},
    embedded{&grupo_tributacao_icms_70::get_grupo_icms_desonerado,
             &grupo_tributacao_icms_70::set_grupo_icms_desonerado},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_90> = std::tuple{
    field{"orig", &grupo_tributacao_icms_90::get_origem_mercadoria,
          &grupo_tributacao_icms_90::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_tributacao_icms_90::get_cst, &grupo_tributacao_icms_90::set_cst, digits(2)},
    embedded{&grupo_tributacao_icms_90::get_tributacao_normal_icms_90,
             &grupo_tributacao_icms_90::set_tributacao_normal_icms_90},
    embedded{&grupo_tributacao_icms_90::get_tributacao_st_icms_90,
             &grupo_tributacao_icms_90::set_tributacao_st_icms_90},
    embedded{&grupo_tributacao_icms_90::get_grupo_icms_desonerado,
             &grupo_tributacao_icms_90::set_grupo_icms_desonerado},
};

template <>
inline constexpr auto fields<grupo_repasse_icms_st> = std::tuple{
    field{"orig", &grupo_repasse_icms_st::get_origem_mercadoria,
          &grupo_repasse_icms_st::set_origem_mercadoria, digits(1)},
    field{"CST", &grupo_repasse_icms_st::get_tributacao_icms,
          &grupo_repasse_icms_st::set_tributacao_icms, digits(2)},
    field{"vBCSTRet", &grupo_repasse_icms_st::get_valor_bc_icms_st_retido,
          &grupo_repasse_icms_st::set_valor_bc_icms_st_retido},
    field{"pST", &grupo_repasse_icms_st::get_aliquota_suportada_consumidor_final,
          &grupo_repasse_icms_st::set_aliquota_suportada_consumidor_final},
    field{"vICMSSubstituto", &grupo_repasse_icms_st::get_valor_icms_proprio_substituto,
          &grupo_repasse_icms_st::set_valor_icms_proprio_substituto},
    field{"vICMSSTRet", &grupo_repasse_icms_st::get_valor_icms_st_retido,
          &grupo_repasse_icms_st::set_valor_icms_st_retido},
    embedded{&grupo_repasse_icms_st::get_fcp_st_retido_anteriormente,
             &grupo_repasse_icms_st::set_fcp_st_retido_anteriormente},
    field{"vBCSTDest", &grupo_repasse_icms_st::get_valor_bc_icms_st_destino,
          &grupo_repasse_icms_st::set_valor_bc_icms_st_destino},
    field{"vICMSSTDest", &grupo_repasse_icms_st::get_valor_icms_st_destino,
          &grupo_repasse_icms_st::set_valor_icms_st_destino},
    embedded{&grupo_repasse_icms_st::get_informacoes_icms_efetivo,
             &grupo_repasse_icms_st::set_informacoes_icms_efetivo},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_101> = std::tuple{
    field{"orig", &grupo_tributacao_icms_101::get_origem_mercadoria,
          &grupo_tributacao_icms_101::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_101::get_csosn, &grupo_tributacao_icms_101::set_csosn,
          digits(3).or_absent()},
    field{"pCredSN", &grupo_tributacao_icms_101::get_aliquota_de_credito_sn,
          &grupo_tributacao_icms_101::set_aliquota_de_credito_sn},
    field{"vCredICMSSN", &grupo_tributacao_icms_101::get_valor_de_credito_sn,
          &grupo_tributacao_icms_101::set_valor_de_credito_sn},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_102> = std::tuple{
    field{"orig", &grupo_tributacao_icms_102::get_origem_mercadoria,
          &grupo_tributacao_icms_102::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_102::get_csosn, &grupo_tributacao_icms_102::set_csosn,
          digits(3).or_absent()},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_201> = std::tuple{
    field{"orig", &grupo_tributacao_icms_201::get_origem_mercadoria,
          &grupo_tributacao_icms_201::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_201::get_csosn, &grupo_tributacao_icms_201::set_csosn,
          digits(3).or_absent()},
    field{"modBCST", &grupo_tributacao_icms_201::get_modalidade_bc_icms_st,
          &grupo_tributacao_icms_201::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &grupo_tributacao_icms_201::get_percentual_margem_valor_adicionado_icms_st,
          &grupo_tributacao_icms_201::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &grupo_tributacao_icms_201::get_percentual_reducao_bc_icms_st,
          &grupo_tributacao_icms_201::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &grupo_tributacao_icms_201::get_valor_bc_icms_st,
          &grupo_tributacao_icms_201::set_valor_bc_icms_st},
    field{"pICMSST", &grupo_tributacao_icms_201::get_aliquota_icms_st,
          &grupo_tributacao_icms_201::set_aliquota_icms_st},
    field{"vICMSST", &grupo_tributacao_icms_201::get_valor_icms_st,
          &grupo_tributacao_icms_201::set_valor_icms_st},
    embedded{&grupo_tributacao_icms_201::get_fcp_st_retido,
             &grupo_tributacao_icms_201::set_fcp_st_retido},
    field{"pCredSN", &grupo_tributacao_icms_201::get_aliquota_de_credito_sn,
          &grupo_tributacao_icms_201::set_aliquota_de_credito_sn},
    field{"vCredICMSSN", &grupo_tributacao_icms_201::get_valor_de_credito_sn,
          &grupo_tributacao_icms_201::set_valor_de_credito_sn},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_202> = std::tuple{
    field{"orig", &grupo_tributacao_icms_202::get_origem_mercadoria,
          &grupo_tributacao_icms_202::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_202::get_csosn, &grupo_tributacao_icms_202::set_csosn,
          digits(3).or_absent()},
    field{"modBCST", &grupo_tributacao_icms_202::get_modalidade_bc_icms_st,
          &grupo_tributacao_icms_202::set_modalidade_bc_icms_st, digits(1)},
    field{"pMVAST", &grupo_tributacao_icms_202::get_percentual_margem_valor_adicionado_icms_st,
          &grupo_tributacao_icms_202::set_percentual_margem_valor_adicionado_icms_st},
    field{"pRedBCST", &grupo_tributacao_icms_202::get_percentual_reducao_bc_icms_st,
          &grupo_tributacao_icms_202::set_percentual_reducao_bc_icms_st},
    field{"vBCST", &grupo_tributacao_icms_202::get_valor_bc_icms_st,
          &grupo_tributacao_icms_202::set_valor_bc_icms_st},
    field{"pICMSST", &grupo_tributacao_icms_202::get_aliquota_icms_st,
          &grupo_tributacao_icms_202::set_aliquota_icms_st},
    field{"vICMSST", &grupo_tributacao_icms_202::get_valor_icms_st,
          &grupo_tributacao_icms_202::set_valor_icms_st},
    embedded{&grupo_tributacao_icms_202::get_fcp_st_retido,
             &grupo_tributacao_icms_202::set_fcp_st_retido},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_500> = std::tuple{
    field{"orig", &grupo_tributacao_icms_500::get_origem_mercadoria,
          &grupo_tributacao_icms_500::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_500::get_csosn, &grupo_tributacao_icms_500::set_csosn,
          digits(3).or_absent()},
    embedded{&grupo_tributacao_icms_500::get_icms_st_retido,
             &grupo_tributacao_icms_500::set_icms_st_retido},
    embedded{&grupo_tributacao_icms_500::get_fcp_st_retido_anteriormente,
             &grupo_tributacao_icms_500::set_fcp_st_retido_anteriormente},
    embedded{&grupo_tributacao_icms_500::get_informacoes_icms_efetivo,
             &grupo_tributacao_icms_500::set_informacoes_icms_efetivo},
};

template <>
inline constexpr auto fields<grupo_tributacao_icms_900> = std::tuple{
    field{"orig", &grupo_tributacao_icms_900::get_origem_mercadoria,
          &grupo_tributacao_icms_900::set_origem_mercadoria, digits(1)},
    field{"CSOSN", &grupo_tributacao_icms_900::get_csosn, &grupo_tributacao_icms_900::set_csosn,
          digits(3).or_absent()},
    embedded{&grupo_tributacao_icms_900::get_tributacao_normal_icms_900,
             &grupo_tributacao_icms_900::set_tributacao_normal_icms_900},
    embedded{&grupo_tributacao_icms_900::get_tributacao_st_icms_900,
             &grupo_tributacao_icms_900::set_tributacao_st_icms_900},
    embedded{&grupo_tributacao_icms_900::get_tributacao_credito_sn_icms_900,
             &grupo_tributacao_icms_900::set_tributacao_credito_sn_icms_900},
};

} // namespace kivo::erp::v12::layout
