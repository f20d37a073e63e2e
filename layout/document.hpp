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

template <> struct map_of<nfe_referenciada> {
    using c = nfe_referenciada;
    static constexpr entries fields{
        field<"refNFe", &c::get_chave_nfe, &c::set_chave_nfe>,
    };
};

template <> struct map_of<nf_referenciada> {
    using c = nf_referenciada;
    static constexpr entries fields{
        element<"refNF">(entries{
            field<"cUF", &c::get_uf_emitente, &c::set_uf_emitente, digits(2)>,
            field<"AAMM", &c::get_ano_mes_emissao, &c::set_ano_mes_emissao, digits(4)>,
            field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
            field<"mod", &c::get_modelo, &c::set_modelo, digits(2)>,
            field<"serie", &c::get_serie, &c::set_serie>,
            field<"nNF", &c::get_numero, &c::set_numero>,
        }),
    };
};

template <> struct map_of<nfp_referenciada> {
    using c = nfp_referenciada;
    static constexpr entries fields{
        element<"refNFP">(entries{
            field<"cUF", &c::get_uf_emitente, &c::set_uf_emitente, digits(2)>,
            field<"AAMM", &c::get_ano_mes_emissao, &c::set_ano_mes_emissao, digits(4)>,
            field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
            field<"CPF", &c::get_cpf, &c::set_cpf>,
            field<"IE", &c::get_ie, &c::set_ie>,
            field<"mod", &c::get_modelo, &c::set_modelo, digits(2) | omit_default>,
            field<"serie", &c::get_serie, &c::set_serie>,
            field<"nNF", &c::get_numero, &c::set_numero>,
        }),
    };
};

template <> struct map_of<cupom_referenciado> {
    using c = cupom_referenciado;
    static constexpr entries fields{
        element<"refECF">(entries{
            field<"mod", &c::get_modelo, &c::set_modelo, hexadecimal(2) | omit_default>,
            field<"nECF", &c::get_ecf, &c::set_ecf>,
            field<"nCOO", &c::get_coo, &c::set_coo>,
        }),
    };
};

template <> struct map_of<autorizacao_acesso_xml> {
    using c = autorizacao_acesso_xml;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
        field<"CPF", &c::get_cpf, &c::set_cpf>,
    };
};

template <> struct map_of<informacoes_intermediador> {
    using c = informacoes_intermediador;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
        field<"idCadIntTran", &c::get_identificador_cadastrado, &c::set_identificador_cadastrado>,
    };
};

template <> struct map_of<grupo_processo_referenciado> {
    using c = grupo_processo_referenciado;
    static constexpr entries fields{
        field<"nProc", &c::get_identificador, &c::set_identificador>,
        field<"indProc", &c::get_indicador_da_origem, &c::set_indicador_da_origem, digits(1)>,
        field<"tpAto", &c::get_tipo_ato_concessorio, &c::set_tipo_ato_concessorio, digits(2)>,
    };
};

template <> struct map_of<informacoes_adicionais> {
    using c = informacoes_adicionais;
    static constexpr entries fields{
        field<"infAdFisco", &c::get_informacoes_adicionais_fisco,
              &c::set_informacoes_adicionais_fisco>,
        field<"infCpl", &c::get_informacoes_complementares, &c::set_informacoes_complementares>,
        field<"procRef", &c::get_grupo_processo_referenciado, &c::set_grupo_processo_referenciado>,
    };
};

template <> struct map_of<informacoes_comercio_exterior> {
    using c = informacoes_comercio_exterior;
    static constexpr entries fields{
        field<"UFSaidaPais", &c::get_uf_saida, &c::set_uf_saida>,
        field<"xLocExporta", &c::get_local_embarque, &c::set_local_embarque>,
        field<"xLocDespacho", &c::get_local_despacho, &c::set_local_despacho>,
    };
};

template <> struct map_of<informacoes_codigo_seguranca> {
    using c = informacoes_codigo_seguranca;
    static constexpr entries fields{
        field<"idCSRT", &c::get_identificador_csrt, &c::set_identificador_csrt, digits(2)>,
        field<"hashCSRT", &c::get_hash_csrt, &c::set_hash_csrt>,
    };
};

template <> struct map_of<informacoes_responsavel_tecnico> {
    using c = informacoes_responsavel_tecnico;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj, even_empty>,
        field<"xContato", &c::get_nome_pessoa_contatada, &c::set_nome_pessoa_contatada>,
        field<"email", &c::get_email, &c::set_email>,
        field<"fone", &c::get_telefone, &c::set_telefone>,
        embedded<&c::get_informacoes_codigo_seguranca, &c::set_informacoes_codigo_seguranca>,
    };
};

template <> struct map_of<defensivos_agricolas> {
    using c = defensivos_agricolas;
    static constexpr entries fields{
        field<"nReceituario", &c::get_receituario, &c::set_receituario>,
        field<"CPFRespTec", &c::get_cpf_responsavel_tecnico, &c::set_cpf_responsavel_tecnico,
              digits(11)>,
    };
};

template <> struct map_of<guia_de_transito> {
    using c = guia_de_transito;
    static constexpr entries fields{
        field<"tpGuia", &c::get_tipo_guia, &c::set_tipo_guia, digits(1) | omit_default>,
        field<"UFGuia", &c::get_uf_emissao, &c::set_uf_emissao>,
        field<"serieGuia", &c::get_serie, &c::set_serie>,
        field<"nGuia", &c::get_numero, &c::set_numero>,
    };
};

template <> struct map_of<grupo_agropecuario> {
    using c = grupo_agropecuario;
    static constexpr entries fields{
        one_of<&c::get_informacoes, &c::set_informacoes, as<"defensivo">, as<"guiaTransito">>,
    };
};

} // namespace kivo::erp::v12::layout
