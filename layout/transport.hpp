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

template <> struct map_of<transportador> {
    using c = transportador;
    static constexpr entries fields{
        one_of<&c::get_documento, &c::set_documento, as<"CPF">, as<"CNPJ">>,
        field<"xNome", &c::get_razao_social, &c::set_razao_social>,
        field<"IE", &c::get_ie, &c::set_ie>,
        field<"xEnder", &c::get_endereco, &c::set_endereco>,
        field<"xMun", &c::get_municipio, &c::set_municipio>,
        field<"UF", &c::get_uf, &c::set_uf>,
    };
};

template <> struct map_of<veiculo_transporte> {
    using c = veiculo_transporte;
    static constexpr entries fields{
        field<"placa", &c::get_placa, &c::set_placa>,
        field<"UF", &c::get_uf, &c::set_uf, omit_default>,
        field<"RNTC", &c::get_rntc, &c::set_rntc>,
    };
};

template <> struct map_of<volume> {
    using c = volume;
    static constexpr entries fields{
        field<"qVol", &c::get_quantidade, &c::set_quantidade, omit_default>,
        field<"esp", &c::get_especie, &c::set_especie>,
        field<"marca", &c::get_marca, &c::set_marca>,
        field<"nVol", &c::get_numeracao, &c::set_numeracao>,
        field<"pesoL", &c::get_peso_liquido, &c::set_peso_liquido>,
        field<"pesoB", &c::get_peso_bruto, &c::set_peso_bruto>,
    };
};

template <> struct map_of<informacoes_transporte> {
    using c = informacoes_transporte;
    static constexpr entries fields{
        field<"modFrete", &c::get_modalidade_frete, &c::set_modalidade_frete, digits(1)>,
        field<"transporta", &c::get_transportador, &c::set_transportador>,
        field<"veicTransp", &c::get_veiculo, &c::set_veiculo>,
        field<"vol", &c::get_volumes, &c::set_volumes>,
    };
};

} // namespace kivo::erp::v12::layout
