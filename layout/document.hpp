#pragma once

#include <layout/map.hpp>

#include <fiscal/autorizacao_acesso_xml.hpp>
#include <fiscal/cupom_referenciado.hpp>
#include <fiscal/defensivos_agricolas.hpp>
#include <fiscal/grupo_agropecuario.hpp>
#include <fiscal/grupo_processo_referenciado.hpp>
#include <fiscal/guia_de_transito.hpp>
#include <fiscal/informacoes_adicionais.hpp>
#include <fiscal/informacoes_codigo_seguranca.hpp>
#include <fiscal/informacoes_comercio_exterior.hpp>
#include <fiscal/informacoes_intermediador.hpp>
#include <fiscal/informacoes_responsavel_tecnico.hpp>
#include <fiscal/nf_referenciada.hpp>
#include <fiscal/nfe_referenciada.hpp>
#include <fiscal/nfp_referenciada.hpp>

namespace kivo::erp::v12::layout {

using fiscal::autorizacao_acesso_xml;
using fiscal::cupom_referenciado;
using fiscal::defensivos_agricolas;
using fiscal::grupo_agropecuario;
using fiscal::grupo_processo_referenciado;
using fiscal::guia_de_transito;
using fiscal::informacoes_adicionais;
using fiscal::informacoes_codigo_seguranca;
using fiscal::informacoes_comercio_exterior;
using fiscal::informacoes_intermediador;
using fiscal::informacoes_responsavel_tecnico;
using fiscal::nf_referenciada;
using fiscal::nfe_referenciada;
using fiscal::nfp_referenciada;

// the four kinds of reference share the element NFref: what stands in it tells the kind

template <>
inline constexpr auto fields<nfe_referenciada> = std::tuple{
    field{"refNFe", &nfe_referenciada::get_chave_nfe, &nfe_referenciada::set_chave_nfe},
};

template <>
inline constexpr auto fields<nf_referenciada> = std::tuple{
    element{"refNF",
            field{"cUF", &nf_referenciada::get_uf_emitente, &nf_referenciada::set_uf_emitente,
                  digits(2)},
            field{"AAMM", &nf_referenciada::get_ano_mes_emissao,
                  &nf_referenciada::set_ano_mes_emissao, digits(4)},
            field{"CNPJ", &nf_referenciada::get_cnpj, &nf_referenciada::set_cnpj},
            field{"mod", &nf_referenciada::get_modelo, &nf_referenciada::set_modelo, digits(2)},
            field{"serie", &nf_referenciada::get_serie, &nf_referenciada::set_serie},
            field{"nNF", &nf_referenciada::get_numero, &nf_referenciada::set_numero}},
};

template <>
inline constexpr auto fields<nfp_referenciada> = std::tuple{
    element{"refNFP",
            field{"cUF", &nfp_referenciada::get_uf_emitente, &nfp_referenciada::set_uf_emitente,
                  digits(2)},
            field{"AAMM", &nfp_referenciada::get_ano_mes_emissao,
                  &nfp_referenciada::set_ano_mes_emissao, digits(4)},
            field{"CNPJ", &nfp_referenciada::get_cnpj, &nfp_referenciada::set_cnpj},
            field{"CPF", &nfp_referenciada::get_cpf, &nfp_referenciada::set_cpf},
            field{"IE", &nfp_referenciada::get_ie, &nfp_referenciada::set_ie},
            field{"mod", &nfp_referenciada::get_modelo, &nfp_referenciada::set_modelo,
                  digits(2).or_absent()},
            field{"serie", &nfp_referenciada::get_serie, &nfp_referenciada::set_serie},
            field{"nNF", &nfp_referenciada::get_numero, &nfp_referenciada::set_numero}},
};

template <>
inline constexpr auto fields<cupom_referenciado> = std::tuple{
    element{"refECF",
            field{"mod", &cupom_referenciado::get_modelo, &cupom_referenciado::set_modelo,
                  hexadecimal(2).or_absent()},
            field{"nECF", &cupom_referenciado::get_ecf, &cupom_referenciado::set_ecf},
            field{"nCOO", &cupom_referenciado::get_coo, &cupom_referenciado::set_coo}},
};

template <>
inline constexpr auto fields<autorizacao_acesso_xml> = std::tuple{
    field{"CNPJ", &autorizacao_acesso_xml::get_cnpj, &autorizacao_acesso_xml::set_cnpj},
    field{"CPF", &autorizacao_acesso_xml::get_cpf, &autorizacao_acesso_xml::set_cpf},
};

template <>
inline constexpr auto fields<informacoes_intermediador> = std::tuple{
    field{"CNPJ", &informacoes_intermediador::get_cnpj, &informacoes_intermediador::set_cnpj},
    field{"idCadIntTran", &informacoes_intermediador::get_identificador_cadastrado,
          &informacoes_intermediador::set_identificador_cadastrado},
};

template <>
inline constexpr auto fields<grupo_processo_referenciado> = std::tuple{
    field{"nProc", &grupo_processo_referenciado::get_identificador,
          &grupo_processo_referenciado::set_identificador},
    field{"indProc", &grupo_processo_referenciado::get_indicador_da_origem,
          &grupo_processo_referenciado::set_indicador_da_origem, digits(1)},
    field{"tpAto", &grupo_processo_referenciado::get_tipo_ato_concessorio,
          &grupo_processo_referenciado::set_tipo_ato_concessorio, digits(2)},
};

template <>
inline constexpr auto fields<informacoes_adicionais> = std::tuple{
    field{"infAdFisco", &informacoes_adicionais::get_informacoes_adicionais_fisco,
          &informacoes_adicionais::set_informacoes_adicionais_fisco},
    field{"infCpl", &informacoes_adicionais::get_informacoes_complementares,
          &informacoes_adicionais::set_informacoes_complementares},
    field{"procRef", &informacoes_adicionais::get_grupo_processo_referenciado,
          &informacoes_adicionais::set_grupo_processo_referenciado},
};

template <>
inline constexpr auto fields<informacoes_comercio_exterior> = std::tuple{
    field{"UFSaidaPais", &informacoes_comercio_exterior::get_uf_saida,
          &informacoes_comercio_exterior::set_uf_saida},
    field{"xLocExporta", &informacoes_comercio_exterior::get_local_embarque,
          &informacoes_comercio_exterior::set_local_embarque},
    field{"xLocDespacho", &informacoes_comercio_exterior::get_local_despacho,
          &informacoes_comercio_exterior::set_local_despacho},
};

template <>
inline constexpr auto fields<informacoes_codigo_seguranca> = std::tuple{
    field{"idCSRT", &informacoes_codigo_seguranca::get_identificador_csrt,
          &informacoes_codigo_seguranca::set_identificador_csrt, digits(2)},
    field{"hashCSRT", &informacoes_codigo_seguranca::get_hash_csrt,
          &informacoes_codigo_seguranca::set_hash_csrt},
};

template <>
inline constexpr auto fields<informacoes_responsavel_tecnico> = std::tuple{
    field{"CNPJ", &informacoes_responsavel_tecnico::get_cnpj,
          &informacoes_responsavel_tecnico::set_cnpj},
    field{"xContato", &informacoes_responsavel_tecnico::get_nome_pessoa_contatada,
          &informacoes_responsavel_tecnico::set_nome_pessoa_contatada},
    field{"email", &informacoes_responsavel_tecnico::get_email,
          &informacoes_responsavel_tecnico::set_email},
    field{"fone", &informacoes_responsavel_tecnico::get_telefone,
          &informacoes_responsavel_tecnico::set_telefone},
    embedded{&informacoes_responsavel_tecnico::get_informacoes_codigo_seguranca,
             &informacoes_responsavel_tecnico::set_informacoes_codigo_seguranca},
};

template <>
inline constexpr auto fields<defensivos_agricolas> = std::tuple{
    field{"nReceituario", &defensivos_agricolas::get_receituario,
          &defensivos_agricolas::set_receituario},
    field{"CPFRespTec", &defensivos_agricolas::get_cpf_responsavel_tecnico,
          &defensivos_agricolas::set_cpf_responsavel_tecnico, digits(11)},
};

template <>
inline constexpr auto fields<guia_de_transito> = std::tuple{
    field{"tpGuia", &guia_de_transito::get_tipo_guia, &guia_de_transito::set_tipo_guia,
          digits(1).or_absent()},
    field{"UFGuia", &guia_de_transito::get_uf_emissao, &guia_de_transito::set_uf_emissao},
    field{"serieGuia", &guia_de_transito::get_serie, &guia_de_transito::set_serie},
    field{"nGuia", &guia_de_transito::get_numero, &guia_de_transito::set_numero},
};

template <>
inline constexpr auto fields<grupo_agropecuario> = std::tuple{
    one_of{&grupo_agropecuario::get_informacoes, &grupo_agropecuario::set_informacoes, "defensivo",
           "guiaTransito"},
};

} // namespace kivo::erp::v12::layout
