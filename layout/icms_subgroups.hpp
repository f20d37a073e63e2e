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

template <> struct map_of<grupo_fcp> {
    using c = grupo_fcp;
    static constexpr entries fields{
        field<"vBCFCP", &c::get_valor_bc, &c::set_valor_bc>,
        field<"pFCP", &c::get_percentual, &c::set_percentual>,
        field<"vFCP", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<grupo_fcp_st_retido> {
    using c = grupo_fcp_st_retido;
    static constexpr entries fields{
        field<"vBCFCPST", &c::get_valor_bc, &c::set_valor_bc>,
        field<"pFCPST", &c::get_percentual, &c::set_percentual>,
        field<"vFCPST", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<grupo_fcp_st_retido_anteriormente> {
    using c = grupo_fcp_st_retido_anteriormente;
    static constexpr entries fields{
        field<"vBCFCPSTRet", &c::get_valor_bc, &c::set_valor_bc>,
        field<"pFCPSTRet", &c::get_percentual, &c::set_percentual>,
        field<"vFCPSTRet", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<grupo_icms_desonerado> {
    using c = grupo_icms_desonerado;
    static constexpr entries fields{
        field<"vICMSDeson", &c::get_valor_icms_desonerado, &c::set_valor_icms_desonerado>,
        field<"motDesICMS", &c::get_motivo, &c::set_motivo, omit_default>,
        field<"indDeduzDeson", &c::get_indicador_deducao, &c::set_indicador_deducao, digits(1)>,
    };
};

template <> struct map_of<grupo_icms_st_retido> {
    using c = grupo_icms_st_retido;
    static constexpr entries fields{
        field<"vBCSTRet", &c::get_valor_bc_icms_retido, &c::set_valor_bc_icms_retido>,
        field<"pST", &c::get_aliquota_suportada_consumidor_final,
              &c::set_aliquota_suportada_consumidor_final>,
        field<"vICMSSubstituto", &c::get_valor_icms_proprio_substituto,
              &c::set_valor_icms_proprio_substituto>,
        field<"vICMSSTRet", &c::get_valor_icms_st_retido, &c::set_valor_icms_st_retido>,
    };
};

template <> struct map_of<informacoes_icms_efetivo> {
    using c = informacoes_icms_efetivo;
    static constexpr entries fields{
        field<"pRedBCEfet", &c::get_percentual_reducao_bc, &c::set_percentual_reducao_bc>,
        field<"vBCEfet", &c::get_valor_bc, &c::set_valor_bc>,
        field<"pICMSEfet", &c::get_aliquota, &c::set_aliquota>,
        field<"vICMSEfet", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<grupo_reducao_ad_rem> {
    using c = grupo_reducao_ad_rem;
    static constexpr entries fields{
        field<"pRedAdRem", &c::get_percentual_reducao, &c::set_percentual_reducao>,
        field<"motRedAdRem", &c::get_motivo, &c::set_motivo, digits(1) | omit_default>,
    };
};

template <> struct map_of<tributacao_normal_icms_90> {
    using c = tributacao_normal_icms_90;
    static constexpr entries fields{
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pRedBC", &c::get_percentual_reducao_bc_icms, &c::set_percentual_reducao_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
        embedded<&c::get_fcp, &c::set_fcp>,
    };
};

template <> struct map_of<tributacao_st_icms_90> {
    using c = tributacao_st_icms_90;
    static constexpr entries fields{
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

template <> struct map_of<tributacao_normal_icms_900> {
    using c = tributacao_normal_icms_900;
    static constexpr entries fields{
        field<"modBC", &c::get_modalidade_bc_icms, &c::set_modalidade_bc_icms, digits(1)>,
        field<"vBC", &c::get_valor_bc_icms, &c::set_valor_bc_icms>,
        field<"pRedBC", &c::get_percentual_reducao_bc_icms, &c::set_percentual_reducao_bc_icms>,
        field<"pICMS", &c::get_aliquota_icms, &c::set_aliquota_icms>,
        field<"vICMS", &c::get_valor_icms, &c::set_valor_icms>,
    };
};

template <> struct map_of<tributacao_st_icms_900> {
    using c = tributacao_st_icms_900;
    static constexpr entries fields{
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

template <> struct map_of<tributacao_credito_sn_icms_900> {
    using c = tributacao_credito_sn_icms_900;
    static constexpr entries fields{
        field<"pCredSN", &c::get_aliquota_de_credito_sn, &c::set_aliquota_de_credito_sn>,
        field<"vCredICMSSN", &c::get_valor_de_credito_sn, &c::set_valor_de_credito_sn>,
    };
};

template <> struct map_of<tributacao_icms_uf_destino> {
    using c = tributacao_icms_uf_destino;
    static constexpr entries fields{
        field<"vBCUFDest", &c::get_valor_bc, &c::set_valor_bc>,
        field<"vBCFCPUFDest", &c::get_valor_bc_fcp, &c::set_valor_bc_fcp>,
        field<"pFCPUFDest", &c::get_percentual_fundo_combate_pobreza,
              &c::set_percentual_fundo_combate_pobreza>,
        field<"pICMSUFDest", &c::get_aliquota_interna, &c::set_aliquota_interna>,
        field<"pICMSInter", &c::get_aliquota_interestadual, &c::set_aliquota_interestadual>,
        field<"pICMSInterPart", &c::get_percentual_partilha, &c::set_percentual_partilha>,
        field<"vFCPUFDest", &c::get_valor_icms_fundo_combate_pobreza,
              &c::set_valor_icms_fundo_combate_pobreza>,
        field<"vICMSUFDest", &c::get_valor_icms_uf_destino, &c::set_valor_icms_uf_destino>,
        field<"vICMSUFRemet", &c::get_valor_icms_uf_remetente, &c::set_valor_icms_uf_remetente>,
    };
};

template <> struct map_of<grupo_credito_presumido> {
    using c = grupo_credito_presumido;
    static constexpr entries fields{
        field<"cCredPresumido", &c::get_codigo_beneficio_fiscal, &c::set_codigo_beneficio_fiscal>,
        field<"pCredPresumido", &c::get_percentual_credito_presumido,
              &c::set_percentual_credito_presumido>,
        field<"vCredPresumido", &c::get_valor_credito_presumido, &c::set_valor_credito_presumido>,
    };
};

} // namespace kivo::erp::v12::layout
