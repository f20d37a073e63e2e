#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// How the tax base of the operation's own ICMS is determined (modBC).
enum class modalidade_bc_icms : std::uint32_t {
    margem_valor_agregado = 0, ///< value-added margin, in percent
    pauta = 1,                 ///< value of an official price list
    preco_tabelado_maximo = 2, ///< maximum listed price
    valor_da_operacao = 3,     ///< value of the operation
};

} // namespace kivo::erp::v12::fiscal
