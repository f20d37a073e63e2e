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

template <> struct map_of<grupo_informacoes_diferimento> {
    using c = grupo_informacoes_diferimento;
    static constexpr entries fields{
        field<"pDif", &c::get_percentual_diferimento, &c::set_percentual_diferimento>,
        field<"vDif", &c::get_valor_diferimento, &c::set_valor_diferimento>,
    };
};

template <> struct map_of<grupo_informacoes_devolucao> {
    using c = grupo_informacoes_devolucao;
    static constexpr entries fields{
        field<"vDevTrib", &c::get_valor_tributo_devolvido, &c::set_valor_tributo_devolvido>,
    };
};

template <> struct map_of<grupo_informacoes_reducao> {
    using c = grupo_informacoes_reducao;
    static constexpr entries fields{
        field<"pRedAliq", &c::get_percentual_reducao_aliquota, &c::set_percentual_reducao_aliquota>,
        field<"pAliqEfet", &c::get_aliquota_efetiva, &c::set_aliquota_efetiva>,
    };
};

template <> struct map_of<grupo_ibs_uf> {
    using c = grupo_ibs_uf;
    static constexpr entries fields{
        field<"pIBSUF", &c::get_aliquota_ibs, &c::set_aliquota_ibs>,
        field<"gDif", &c::get_informacoes_diferimento, &c::set_informacoes_diferimento>,
        field<"gDevTrib", &c::get_informacoes_devolucao, &c::set_informacoes_devolucao>,
        field<"gRed", &c::get_informacoes_reducao, &c::set_informacoes_reducao>,
        field<"vIBSUF", &c::get_valor_ibs, &c::set_valor_ibs>,
    };
};

template <> struct map_of<grupo_ibs_municipio> {
    using c = grupo_ibs_municipio;
    static constexpr entries fields{
        field<"pIBSMun", &c::get_aliquota_ibs, &c::set_aliquota_ibs>,
        field<"gDif", &c::get_informacoes_diferimento, &c::set_informacoes_diferimento>,
        field<"gDevTrib", &c::get_informacoes_devolucao, &c::set_informacoes_devolucao>,
        field<"gRed", &c::get_informacoes_reducao, &c::set_informacoes_reducao>,
        field<"vIBSMun", &c::get_valor_ibs, &c::set_valor_ibs>,
    };
};

template <> struct map_of<grupo_informacoes_cbs> {
    using c = grupo_informacoes_cbs;
    static constexpr entries fields{
        field<"pCBS", &c::get_aliquota_cbs, &c::set_aliquota_cbs>,
        field<"gDif", &c::get_informacoes_diferimento, &c::set_informacoes_diferimento>,
        field<"gDevTrib", &c::get_informacoes_devolucao, &c::set_informacoes_devolucao>,
        field<"gRed", &c::get_informacoes_reducao, &c::set_informacoes_reducao>,
        field<"vCBS", &c::get_valor_cbs, &c::set_valor_cbs>,
    };
};

template <> struct map_of<grupo_tributacao_regular> {
    using c = grupo_tributacao_regular;
    static constexpr entries fields{
        field<"CSTReg", &c::get_codigo_situacao_tributaria, &c::set_codigo_situacao_tributaria,
              digits(3)>,
        field<"cClassTribReg", &c::get_codigo_classificacao_tributaria,
              &c::set_codigo_classificacao_tributaria, digits(6)>,
        field<"pAliqEfetRegIBSUF", &c::get_valor_aliquota_ibs_uf, &c::set_valor_aliquota_ibs_uf>,
        field<"vTribRegIBSUF", &c::get_valor_tributo_ibs_uf, &c::set_valor_tributo_ibs_uf>,
        field<"pAliqEfetRegIBSMun", &c::get_valor_aliquota_ibs_municipio,
              &c::set_valor_aliquota_ibs_municipio>,
        field<"vTribRegIBSMun", &c::get_valor_tributo_ibs_municipio,
              &c::set_valor_tributo_ibs_municipio>,
        field<"pAliqEfetRegCBS", &c::get_valor_aliquota_cbs, &c::set_valor_aliquota_cbs>,
        field<"vTribRegCBS", &c::get_valor_tributo_cbs, &c::set_valor_tributo_cbs>,
    };
};

template <> struct map_of<grupo_ibs_cbs> {
    using c = grupo_ibs_cbs;
    static constexpr entries fields{
        field<"vBC", &c::get_valor_base_calculo, &c::set_valor_base_calculo>,
        field<"gIBSUF", &c::get_ibs_uf, &c::set_ibs_uf>,
        field<"gIBSMun", &c::get_ibs_municipio, &c::set_ibs_municipio>,
        field<"vIBS", &c::get_valor_ibs, &c::set_valor_ibs>,
        field<"gCBS", &c::get_informacoes_cbs, &c::set_informacoes_cbs>,
        field<"gTribRegular", &c::get_tributacao_regular, &c::set_tributacao_regular>,
    };
};

template <> struct map_of<grupo_monofasico_padrao> {
    using c = grupo_monofasico_padrao;
    static constexpr entries fields{
        field<"qBCMono", &c::get_quantidade_tributada, &c::set_quantidade_tributada>,
        field<"adRemIBS", &c::get_aliquota_ibs, &c::set_aliquota_ibs>,
        field<"adRemCBS", &c::get_aliquota_cbs, &c::set_aliquota_cbs>,
        field<"vIBSMono", &c::get_valor_ibs_monofasico, &c::set_valor_ibs_monofasico>,
        field<"vCBSMono", &c::get_valor_cbs_monofasico, &c::set_valor_cbs_monofasico>,
    };
};

template <> struct map_of<grupo_monofasica_retencao> {
    using c = grupo_monofasica_retencao;
    static constexpr entries fields{
        field<"qBCMonoReten", &c::get_quantidade_tributada, &c::set_quantidade_tributada>,
        field<"adRemIBSReten", &c::get_aliquota_ibs, &c::set_aliquota_ibs>,
        field<"vIBSMonoReten", &c::get_valor_ibs_monofasico, &c::set_valor_ibs_monofasico>,
        field<"adRemCBSReten", &c::get_aliquota_cbs, &c::set_aliquota_cbs>,
        field<"vCBSMonoReten", &c::get_valor_cbs_monofasico, &c::set_valor_cbs_monofasico>,
    };
};

template <> struct map_of<grupo_monofasica_retida> {
    using c = grupo_monofasica_retida;
    static constexpr entries fields{
        field<"qBCMonoRet", &c::get_quantidade_tributada, &c::set_quantidade_tributada>,
        field<"adRemIBSRet", &c::get_aliquota_ibs, &c::set_aliquota_ibs>,
        field<"vIBSMonoRet", &c::get_valor_ibs_monofasico, &c::set_valor_ibs_monofasico>,
        field<"adRemCBSRet", &c::get_aliquota_cbs, &c::set_aliquota_cbs>,
        field<"vCBSMonoRet", &c::get_valor_cbs_monofasico, &c::set_valor_cbs_monofasico>,
    };
};

template <> struct map_of<grupo_diferimento_monofasica> {
    using c = grupo_diferimento_monofasica;
    static constexpr entries fields{
        field<"pDifIBS", &c::get_percentual_ibs_diferido, &c::set_percentual_ibs_diferido>,
        field<"vIBSMonoDif", &c::get_valor_ibs_diferido, &c::set_valor_ibs_diferido>,
        field<"pDifCBS", &c::get_percentual_cbs_diferido, &c::set_percentual_cbs_diferido>,
        field<"vCBSMonoDif", &c::get_valor_cbs_diferido, &c::set_valor_cbs_diferido>,
    };
};

template <> struct map_of<grupo_ibs_cbs_monofasico> {
    using c = grupo_ibs_cbs_monofasico;
    static constexpr entries fields{
        field<"gMonoPadrao", &c::get_grupo_monofasico_padrao, &c::set_grupo_monofasico_padrao>,
        field<"gMonoReten", &c::get_monofasica_retencao, &c::set_grupo_monofasica_retencao>,
        field<"gMonoRet", &c::get_monofasica_retida, &c::set_grupo_monofasica_retida>,
        field<"gMonoDif", &c::get_grupo_diferimento_monofasica,
              &c::set_grupo_diferimento_monofasica>,
        field<"vTotIBSMonoItem", &c::get_valor_total_ibs_monofasico,
              &c::set_valor_total_ibs_monofasico>,
        field<"vTotCBSMonoItem", &c::get_valor_total_cbs_monofasico,
              &c::set_valor_total_cbs_monofasico>,
    };
};

template <> struct map_of<grupo_ibs_cred_pres> {
    using c = grupo_ibs_cred_pres;
    static constexpr entries fields{
        no_element<&c::get_codigo_classificacao, &c::set_codigo_classificacao>,
        field<"pCredPres", &c::get_percentual_credito_presumido,
              &c::set_percentual_credito_presumido>,
        one_of<&c::get_valor_credito_presumido, &c::set_valor_credito_presumido, as<"vCredPres">,
               as<"vCredPresCondSus">>,
    };
};

template <> struct map_of<grupo_cbs_cred_pres> {
    using c = grupo_cbs_cred_pres;
    static constexpr entries fields{
        no_element<&c::get_codigo_classificacao, &c::set_codigo_classificacao>,
        field<"pCredPres", &c::get_percentual_credito_presumido,
              &c::set_percentual_credito_presumido>,
        one_of<&c::get_valor_credito_presumido, &c::set_valor_credito_presumido, as<"vCredPres">,
               as<"vCredPresCondSus">>,
    };
};

template <> struct map_of<grupo_cred_pres> {
    using c = grupo_cred_pres;
    static constexpr entries fields{
        field<"vBCCredPres", &c::get_valor_base_calculo, &c::set_valor_base_calculo>,
        field<"cCredPres", &c::get_codigo, &c::set_codigo, digits(2)>,
        field<"gIBSCredPres", &c::get_ibs_cred_pres, &c::set_ibs_cred_pres>,
        field<"gCBSCredPres", &c::get_cbs_cred_pres, &c::set_cbs_cred_pres>,
    };
};

template <> struct map_of<sequencia_ibs_cbs> {
    using c = sequencia_ibs_cbs;
    static constexpr entries fields{
        one_of<&c::get_grupo_ibs_cbs, &c::set_grupo_ibs_cbs, as<"gIBSCBS">, as<"gIBSCBSMono">>,
    };
};

template <> struct map_of<sequencia_cred_pres> {
    using c = sequencia_cred_pres;
    static constexpr entries fields{
        one_of<&c::get_grupo_cred_pres, &c::set_grupo_cred_pres, nowhere, as<"gCredPresOper">>,
    };
};

template <> struct map_of<ibs_cbs> {
    using c = ibs_cbs;
    static constexpr entries fields{
        field<"CST", &c::get_codigo_situacao_tributaria, &c::set_codigo_situacao_tributaria,
              digits(3)>,
        field<"cClassTrib", &c::get_codigo_classificacao_tributaria,
              &c::set_codigo_classificacao_tributaria, digits(6)>,
        embedded<&c::get_sequencia_ibs_cbs, &c::set_sequencia_ibs_cbs>,
        embedded<&c::get_sequencia_cred_pres, &c::set_sequencia_cred_pres>,
    };
};

template <> struct map_of<tributavel_imposto_seletivo> {
    using c = tributavel_imposto_seletivo;
    static constexpr entries fields{
        field<"uTrib", &c::get_unidade_medida_tributavel, &c::set_unidade_medida_tributavel>,
        field<"qTrib", &c::get_quantidade_tributavel, &c::set_quantidade_tributavel>,
    };
};

template <> struct map_of<valor_imposto_seletivo> {
    using c = valor_imposto_seletivo;
    static constexpr entries fields{
        field<"vBCIS", &c::get_valor_base_calculo, &c::set_valor_base_calculo>,
        field<"pIS", &c::get_aliquota, &c::set_aliquota>,
        field<"pISEspec", &c::get_aliquota_especifica, &c::set_aliquota_especifica>,
        embedded<&c::get_tributavel, &c::set_tributavel>,
        field<"vIS", &c::get_valor, &c::set_valor>,
    };
};

template <> struct map_of<imposto_seletivo> {
    using c = imposto_seletivo;
    static constexpr entries fields{
        field<"CSTIS", &c::get_codigo_situacao_tributaria, &c::set_codigo_situacao_tributaria,
              digits(3)>,
        field<"cClassTribIS", &c::get_codigo_classificacao_tributaria,
              &c::set_codigo_classificacao_tributaria, digits(6)>,
        embedded<&c::get_valor_imposto, &c::set_valor_imposto>,
    };
};

} // namespace kivo::erp::v12::layout
