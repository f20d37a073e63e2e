#pragma once

#include <layout/map.hpp>

#include <fiscal/informacoes_transporte.hpp>
#include <fiscal/transportador.hpp>
#include <fiscal/veiculo_transporte.hpp>
#include <fiscal/volume.hpp>

namespace kivo::erp::v12::layout {

using fiscal::informacoes_transporte;
using fiscal::transportador;
using fiscal::veiculo_transporte;
using fiscal::volume;

template <>
inline constexpr auto fields<transportador> = std::tuple{
    one_of{&transportador::get_documento, &transportador::set_documento, "CPF", "CNPJ"},
    field{"xNome", &transportador::get_razao_social, &transportador::set_razao_social},
    field{"IE", &transportador::get_ie, &transportador::set_ie},
    field{"xEnder", &transportador::get_endereco, &transportador::set_endereco},
    field{"xMun", &transportador::get_municipio, &transportador::set_municipio},
    field{"UF", &transportador::get_uf, &transportador::set_uf},
};

template <>
inline constexpr auto fields<veiculo_transporte> = std::tuple{
    field{"placa", &veiculo_transporte::get_placa, &veiculo_transporte::set_placa},
    field{"UF", &veiculo_transporte::get_uf, &veiculo_transporte::set_uf, or_absent},
    field{"RNTC", &veiculo_transporte::get_rntc, &veiculo_transporte::set_rntc},
};

template <>
inline constexpr auto fields<volume> = std::tuple{
    field{"qVol", &volume::get_quantidade, &volume::set_quantidade, or_absent},
    field{"esp", &volume::get_especie, &volume::set_especie},
    field{"marca", &volume::get_marca, &volume::set_marca},
    field{"nVol", &volume::get_numeracao, &volume::set_numeracao},
    field{"pesoL", &volume::get_peso_liquido, &volume::set_peso_liquido},
    field{"pesoB", &volume::get_peso_bruto, &volume::set_peso_bruto},
};

template <>
inline constexpr auto fields<informacoes_transporte> = std::tuple{
    field{"modFrete", &informacoes_transporte::get_modalidade_frete,
          &informacoes_transporte::set_modalidade_frete, digits(1)},
    field{"transporta", &informacoes_transporte::get_transportador,
          &informacoes_transporte::set_transportador},
    field{"veicTransp", &informacoes_transporte::get_veiculo, &informacoes_transporte::set_veiculo},
    field{"vol", &informacoes_transporte::get_volumes, &informacoes_transporte::set_volumes},
};

} // namespace kivo::erp::v12::layout
