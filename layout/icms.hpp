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

/// ICMS00 has no vBCFCP.
struct fcp_of_icms_00 {
    using c = grupo_fcp;
    static constexpr entries fields{
        field<"pFCP", &c::get_percentual, &c::set_percentual>,
        field<"vFCP", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<grupo_tributacao_icms_00> {
    using c = grupo_tributacao_icms_00;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp, fcp_of_icms_00>,
    };
};

template <> struct map_of<grupo_tributacao_icms_02> {
    using c = grupo_tributacao_icms_02;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"qBCMono", &c::get_quantidade_tributada, &c::set_quantidade_tributada>,
        field<"adRemICMS", &c::get_aliquota_ad_rem, &c::set_aliquota_ad_rem>,
        field<"vICMSMono", &c::get_valor_icms, &c::set_valor_icms>,
    };
};

template <> struct map_of<grupo_tributacao_icms_10> {
    using c = grupo_tributacao_icms_10;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp>,
        field<"modBCST", &c::get_modalidade_bc_icms_st, &c::set_modalidade_bc_icms_st, digits(1)>,
        field<"pMVAST", &c::get_percentual_margem_valor_adicionado_icms_st,
              &c::set_percentual_margem_valor_adicionado_icms_st>,
        field<"pRedBCST", &c::get_percentual_reducao_bc_icms_st,
              &c::set_percentual_reducao_bc_icms_st>,
        field<"vBCST", &c::get_valor_bc_icms_st, &c::set_valor_bc_icms_st>,
        field<"pICMSST", &c::get_aliquota_icms_st, &c::set_aliquota_icms_st>,
        field<"vICMSST", &c::get_valor_icms_st, &c::set_valor_icms_st>,
        embedded<&c::get_fcp_st_retido, &c::set_fcp_st_retido>,
    };
};

template <> struct map_of<grupo_tributacao_icms_15> {
    using c = grupo_tributacao_icms_15;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"qBCMono", &c::get_quantidade_tributada, &c::set_quantidade_tributada>,
        field<"adRemICMS", &c::get_aliquota_ad_rem, &c::set_aliquota_ad_rem>,
        field<"vICMSMono", &c::get_valor_icms, &c::set_valor_icms>,
        field<"qBCMonoReten", &c::get_quantidade_tributada_retencao,
              &c::set_quantidade_tributada_retencao>,
        field<"adRemICMSReten", &c::get_aliquota_ad_rem_retencao, &c::set_aliquota_ad_rem_retencao>,
        field<"vICMSMonoReten", &c::get_valor_icms_retencao, &c::set_valor_icms_retencao>,
        embedded<&c::get_reducao_ad_rem, &c::set_reducao_ad_rem>,
    };
};

template <> struct map_of<grupo_tributacao_icms_20> {
    using c = grupo_tributacao_icms_20;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"pRedBC", &c::get_percentual_reducao_bc_icms, &c::set_percentual_reducao_bc_icms>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp>,
        embedded<&c::get_grupo_icms_desonerado, &c::set_grupo_icms_desonerado>,
    };
};

template <> struct map_of<grupo_tributacao_icms_30> {
    using c = grupo_tributacao_icms_30;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"modBCST", &c::get_modalidade_bc_icms_st, &c::set_modalidade_bc_icms_st, digits(1)>,
        field<"pMVAST", &c::get_percentual_margem_valor_adicionado_icms_st,
              &c::set_percentual_margem_valor_adicionado_icms_st>,
        field<"pRedBCST", &c::get_percentual_reducao_bc_icms_st,
              &c::set_percentual_reducao_bc_icms_st>,
        field<"vBCST", &c::get_valor_bc_icms_st, &c::set_valor_bc_icms_st>,
        field<"pICMSST", &c::get_aliquota_icms_st, &c::set_aliquota_icms_st>,
        field<"vICMSST", &c::get_valor_icms_st, &c::set_valor_icms_st>,
        embedded<&c::get_fcp_st_retido, &c::set_fcp_st_retido>,
        embedded<&c::get_grupo_icms_desonerado, &c::set_grupo_icms_desonerado>,
    };
};

template <> struct map_of<grupo_tributacao_icms_40> {
    using c = grupo_tributacao_icms_40;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        embedded<&c::get_grupo_icms_desonerado, &c::set_grupo_icms_desonerado>,
    };
};

/// ICMS51 may lack modBC, whose code 0 is also the default: there it is taken for a code only
/// beside the tax base that it explains.
inline bool has_tax_base_mode(const grupo_tributacao_icms_51& group) {
    return group.get_modalidade_bc_icms() != fiscal::modalidade_bc_icms{} ||
           group.get_valor_bc_icms().has_value();
}

template <> struct map_of<grupo_tributacao_icms_51> {
    using c = grupo_tributacao_icms_51;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        only_if<has_tax_base_mode>(
            field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>),
        field<"pRedBC", &c::get_percentual_reducao_bc_icms, &c::set_percentual_reducao_bc_icms>,
        field<"cBenefRBC", &c::get_codigo_beneficio_fiscal_reducao_bc_icms,
              &c::set_codigo_beneficio_fiscal_reducao_bc_icms>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMSOp", &c::get_valor_icms_operacao, &c::set_valor_icms_operacao>,
        field<"pDif", &c::get_percentual_diferimento, &c::set_percentual_diferimento>,
        field<"vICMSDif", &c::get_valor_icms_diferido, &c::set_valor_icms_diferido>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp>,
    };
};

template <> struct map_of<grupo_tributacao_icms_53> {
    using c = grupo_tributacao_icms_53;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"vICMSMonoDif", &c::get_valor_icms_diferido, &c::set_valor_icms_diferido>,
        field<"qBCMonoDif", &c::get_quantidade_tributada_diferida,
              &c::set_quantidade_tributada_diferida>,
        field<"adRemICMSDif", &c::get_aliquota_ad_rem_diferido, &c::set_aliquota_ad_rem_diferido>,
    };
};

template <> struct map_of<grupo_tributacao_icms_60> {
    using c = grupo_tributacao_icms_60;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        embedded<&c::get_icms_st_retido, &c::set_icms_st_retido>,
        embedded<&c::get_fcp_st_retido_anteriormente, &c::set_fcp_st_retido_anteriormente>,
        embedded<&c::get_informacoes_icms_efetivo, &c::set_informacoes_icms_efetivo>,
    };
};

template <> struct map_of<grupo_tributacao_icms_61> {
    using c = grupo_tributacao_icms_61;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"qBCMonoRet", &c::get_quantidade_tributada_retida,
              &c::set_quantidade_tributada_retida>,
        field<"adRemICMSRet", &c::get_aliquota_ad_rem_retido, &c::set_aliquota_ad_rem_retido>,
        field<"vICMSMonoRet", &c::get_valor_icms_retido, &c::set_valor_icms_retido>,
    };
};

template <> struct map_of<grupo_tributacao_icms_70> {
    using c = grupo_tributacao_icms_70;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"pRedBC", &c::get_percentual_reducao_bc_icms, &c::set_percentual_reducao_bc_icms>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp>,
        field<"modBCST", &c::get_modalidade_bc_icms_st, &c::set_modalidade_bc_icms_st, digits(1)>,
        field<"pMVAST", &c::get_percentual_margem_valor_adicionado_icms_st,
              &c::set_percentual_margem_valor_adicionado_icms_st>,
        field<"pRedBCST", &c::get_percentual_reducao_bc_icms_st,
              &c::set_percentual_reducao_bc_icms_st>,
        field<"vBCST", &c::get_valor_bc_icms_st, &c::set_valor_bc_icms_st>,
        field<"pICMSST", &c::get_aliquota_icms_st, &c::set_aliquota_icms_st>,
        field<"vICMSST", &c::get_valor_icms_st, &c::set_valor_icms_st>,
        embedded<&c::get_fcp_st_retido, &c::set_fcp_st_retido>,
        embedded<&c::get_grupo_icms_desonerado, &c::set_grupo_icms_desonerado>,
    };
};

template <> struct map_of<grupo_tributacao_icms_90> {
    using c = grupo_tributacao_icms_90;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_cst, &c::set_cst, digits(2)>,
        embedded<&c::get_tributacao_normal_icms_90, &c::set_tributacao_normal_icms_90>,
        embedded<&c::get_tributacao_st_icms_90, &c::set_tributacao_st_icms_90>,
        embedded<&c::get_grupo_icms_desonerado, &c::set_grupo_icms_desonerado>,
    };
};

template <> struct map_of<grupo_repasse_icms_st> {
    using c = grupo_repasse_icms_st;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CST", &c::get_tributacao_icms, &c::set_tributacao_icms, digits(2)>,
        field<"vBCSTRet", &c::get_valor_bc_icms_st_retido, &c::set_valor_bc_icms_st_retido>,
        field<"pST", &c::get_aliquota_suportada_consumidor_final,
              &c::set_aliquota_suportada_consumidor_final>,
        field<"vICMSSubstituto", &c::get_valor_icms_proprio_substituto,
              &c::set_valor_icms_proprio_substituto>,
        field<"vICMSSTRet", &c::get_valor_icms_st_retido, &c::set_valor_icms_st_retido>,
        embedded<&c::get_fcp_st_retido_anteriormente, &c::set_fcp_st_retido_anteriormente>,
        field<"vBCSTDest", &c::get_valor_bc_icms_st_destino, &c::set_valor_bc_icms_st_destino>,
        field<"vICMSSTDest", &c::get_valor_icms_st_destino, &c::set_valor_icms_st_destino>,
        embedded<&c::get_informacoes_icms_efetivo, &c::set_informacoes_icms_efetivo>,
    };
};

template <> struct map_of<grupo_tributacao_icms_101> {
    using c = grupo_tributacao_icms_101;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
        field<"pCredSN", &c::get_aliquota_de_credito_sn, &c::set_aliquota_de_credito_sn>,
        field<"vCredICMSSN", &c::get_valor_de_credito_sn, &c::set_valor_de_credito_sn>,
    };
};

template <> struct map_of<grupo_tributacao_icms_102> {
    using c = grupo_tributacao_icms_102;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
    };
};

template <> struct map_of<grupo_tributacao_icms_201> {
    using c = grupo_tributacao_icms_201;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
        field<"modBCST", &c::get_modalidade_bc_icms_st, &c::set_modalidade_bc_icms_st, digits(1)>,
        field<"pMVAST", &c::get_percentual_margem_valor_adicionado_icms_st,
              &c::set_percentual_margem_valor_adicionado_icms_st>,
        field<"pRedBCST", &c::get_percentual_reducao_bc_icms_st,
              &c::set_percentual_reducao_bc_icms_st>,
        field<"vBCST", &c::get_valor_bc_icms_st, &c::set_valor_bc_icms_st>,
        field<"pICMSST", &c::get_aliquota_icms_st, &c::set_aliquota_icms_st>,
        field<"vICMSST", &c::get_valor_icms_st, &c::set_valor_icms_st>,
        embedded<&c::get_fcp_st_retido, &c::set_fcp_st_retido>,
        field<"pCredSN", &c::get_aliquota_de_credito_sn, &c::set_aliquota_de_credito_sn>,
        field<"vCredICMSSN", &c::get_valor_de_credito_sn, &c::set_valor_de_credito_sn>,
    };
};

template <> struct map_of<grupo_tributacao_icms_202> {
    using c = grupo_tributacao_icms_202;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
        field<"modBCST", &c::get_modalidade_bc_icms_st, &c::set_modalidade_bc_icms_st, digits(1)>,
        field<"pMVAST", &c::get_percentual_margem_valor_adicionado_icms_st,
              &c::set_percentual_margem_valor_adicionado_icms_st>,
        field<"pRedBCST", &c::get_percentual_reducao_bc_icms_st,
              &c::set_percentual_reducao_bc_icms_st>,
        field<"vBCST", &c::get_valor_bc_icms_st, &c::set_valor_bc_icms_st>,
        field<"pICMSST", &c::get_aliquota_icms_st, &c::set_aliquota_icms_st>,
        field<"vICMSST", &c::get_valor_icms_st, &c::set_valor_icms_st>,
        embedded<&c::get_fcp_st_retido, &c::set_fcp_st_retido>,
    };
};

template <> struct map_of<grupo_tributacao_icms_500> {
    using c = grupo_tributacao_icms_500;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
        embedded<&c::get_icms_st_retido, &c::set_icms_st_retido>,
        embedded<&c::get_fcp_st_retido_anteriormente, &c::set_fcp_st_retido_anteriormente>,
        embedded<&c::get_informacoes_icms_efetivo, &c::set_informacoes_icms_efetivo>,
    };
};

template <> struct map_of<grupo_tributacao_icms_900> {
    using c = grupo_tributacao_icms_900;
    static constexpr entries fields{
        field<"orig", &c::get_origem_mercadoria, &c::set_origem_mercadoria, digits(1)>,
        field<"CSOSN", &c::get_csosn, &c::set_csosn, digits(3) | omit_default>,
        embedded<&c::get_tributacao_normal_icms_900, &c::set_tributacao_normal_icms_900>,
        embedded<&c::get_tributacao_st_icms_900, &c::set_tributacao_st_icms_900>,
        embedded<&c::get_tributacao_credito_sn_icms_900, &c::set_tributacao_credito_sn_icms_900>,
    };
};

} // namespace kivo::erp::v12::layout
