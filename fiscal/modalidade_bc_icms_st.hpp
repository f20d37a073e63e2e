#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// How the tax base of the ICMS by tax substitution is determined (modBCST).
enum class modalidade_bc_icms_st : std::uint32_t {
    preco_tabelado_ou_maximo_sugerido = 0, ///< listed price or suggested maximum price
    lista_negativa = 1,                    ///< value of the negative list
    lista_positiva = 2,                    ///< value of the positive list
    lista_neutra = 3,                      ///< value of the neutral list
    margem_valor_agregado = 4,             ///< value-added margin, in percent
    pauta = 5,                             ///< value of an official price list
    valor_da_operacao = 6,                 ///< value of the operation
};

} // namespace kivo::erp::v12::fiscal
