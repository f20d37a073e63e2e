#pragma once

#include <layout/map.hpp>

#include <fiscal/destinatario.hpp>
#include <fiscal/emitente.hpp>
#include <fiscal/endereco.hpp>
#include <fiscal/local_entrega.hpp>

namespace kivo::erp::v12::layout {

using fiscal::destinatario;
using fiscal::emitente;
using fiscal::endereco;
using fiscal::local_entrega;

template <> struct map_of<endereco> {
    using c = endereco;
    static constexpr entries fields{
        field<"xLgr", &c::get_logradouro, &c::set_logradouro>,
        field<"nro", &c::get_numero_endereco, &c::set_numero_endereco>,
        field<"xCpl", &c::get_complemento, &c::set_complemento>,
        field<"xBairro", &c::get_bairro, &c::set_bairro>,
        field<"cMun", &c::get_ibge_municipio, &c::set_ibge_municipio, digits(7)>,
        field<"xMun", &c::get_nome_municipio, &c::set_nome_municipio>,
        field<"UF", &c::get_uf, &c::set_uf>,
        field<"CEP", &c::get_cep, &c::set_cep, digits(8)>,
        field<"cPais", &c::get_ibge_pais, &c::set_ibge_pais>,
        field<"xPais", &c::get_pais, &c::set_pais>,
    };
};

template <> struct map_of<emitente> {
    using c = emitente;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
        field<"xNome", &c::get_razao_social, &c::set_razao_social>,
        field<"xFant", &c::get_nome_fantasia, &c::set_nome_fantasia>,
        element<"enderEmit">(entries{
            embedded<&c::get_endereco, &c::set_endereco>,
            field<"fone", &c::get_telefone, &c::set_telefone>,
        }),
        field<"IE", &c::get_ie, &c::set_ie>,
        field<"IEST", &c::get_iest, &c::set_iest>,
        field<"IM", &c::get_inscricao_municipal, &c::set_inscricao_municipal>,
        field<"CNAE", &c::get_cnae, &c::set_cnae, digits(7)>,
        field<"CRT", &c::get_regime_fiscal, &c::set_regime_fiscal, digits(1) | omit_default>,
    };
};

template <> struct map_of<destinatario> {
    using c = destinatario;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj>,
        field<"CPF", &c::get_cpf, &c::set_cpf>,
        field<"idEstrangeiro", &c::get_indicador_estrangeiro, &c::set_indicador_estrangeiro>,
        field<"xNome", &c::get_razao_social, &c::set_razao_social>,
        element<"enderDest">(entries{
            embedded<&c::get_endereco, &c::set_endereco>,
            field<"fone", &c::get_telefone, &c::set_telefone>,
        }),
        field<"indIEDest", &c::get_indicador_de_ie, &c::set_indicador_de_ie,
              digits(1) | omit_default>,
        field<"IE", &c::get_ie, &c::set_ie>,
        field<"ISUF", &c::get_inscricao_suframa, &c::set_inscricao_suframa>,
        field<"email", &c::get_email, &c::set_email>,
    };
};

template <> struct map_of<local_entrega> {
    using c = local_entrega;
    static constexpr entries fields{
        field<"CNPJ", &c::get_cnpj, &c::set_cnpj, even_empty>,
        field<"CPF", &c::get_cpf, &c::set_cpf>,
        embedded<&c::get_endereco, &c::set_endereco>,
    };
};

} // namespace kivo::erp::v12::layout
