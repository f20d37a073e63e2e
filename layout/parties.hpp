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

template <>
inline constexpr auto fields<endereco> = std::tuple{
    field{"xLgr", &endereco::get_logradouro, &endereco::set_logradouro},
    field{"nro", &endereco::get_numero_endereco, &endereco::set_numero_endereco},
    field{"xCpl", &endereco::get_complemento, &endereco::set_complemento},
    field{"xBairro", &endereco::get_bairro, &endereco::set_bairro},
    field{"cMun", &endereco::get_ibge_municipio, &endereco::set_ibge_municipio, digits(7)},
    field{"xMun", &endereco::get_nome_municipio, &endereco::set_nome_municipio},
    field{"UF", &endereco::get_uf, &endereco::set_uf},
    field{"CEP", &endereco::get_cep, &endereco::set_cep, digits(8)},
    field{"cPais", &endereco::get_ibge_pais, &endereco::set_ibge_pais},
    field{"xPais", &endereco::get_pais, &endereco::set_pais},
};

template <>
inline constexpr auto fields<emitente> = std::tuple{
    field{"CNPJ", &emitente::get_cnpj, &emitente::set_cnpj},
    field{"xNome", &emitente::get_razao_social, &emitente::set_razao_social},
    field{"xFant", &emitente::get_nome_fantasia, &emitente::set_nome_fantasia},
    element{"enderEmit", embedded{&emitente::get_endereco, &emitente::set_endereco},
            field{"fone", &emitente::get_telefone, &emitente::set_telefone}},
    field{"IE", &emitente::get_ie, &emitente::set_ie},
    field{"IEST", &emitente::get_iest, &emitente::set_iest},
    field{"IM", &emitente::get_inscricao_municipal, &emitente::set_inscricao_municipal},
    field{"CNAE", &emitente::get_cnae, &emitente::set_cnae, digits(7)},
    field{"CRT", &emitente::get_regime_fiscal, &emitente::set_regime_fiscal, digits(1).or_absent()},
};

template <>
inline constexpr auto fields<destinatario> = std::tuple{
    field{"CNPJ", &destinatario::get_cnpj, &destinatario::set_cnpj},
    field{"CPF", &destinatario::get_cpf, &destinatario::set_cpf},
    field{"idEstrangeiro", &destinatario::get_indicador_estrangeiro,
          &destinatario::set_indicador_estrangeiro},
    field{"xNome", &destinatario::get_razao_social, &destinatario::set_razao_social},
    element{"enderDest", embedded{&destinatario::get_endereco, &destinatario::set_endereco},
            field{"fone", &destinatario::get_telefone, &destinatario::set_telefone}},
    field{"indIEDest", &destinatario::get_indicador_de_ie, &destinatario::set_indicador_de_ie,
          digits(1).or_absent()},
    field{"IE", &destinatario::get_ie, &destinatario::set_ie},
    field{"ISUF", &destinatario::get_inscricao_suframa, &destinatario::set_inscricao_suframa},
    field{"email", &destinatario::get_email, &destinatario::set_email},
};

template <>
inline constexpr auto fields<local_entrega> = std::tuple{
    field{"CNPJ", &local_entrega::get_cnpj, &local_entrega::set_cnpj},
    field{"CPF", &local_entrega::get_cpf, &local_entrega::set_cpf},
    embedded{&local_entrega::get_endereco, &local_entrega::set_endereco},
};

} // namespace kivo::erp::v12::layout
