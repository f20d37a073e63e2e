#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Situation code of the IPI (CST); 00, 49, 50 and 99 stand in IPITrib, the others in IPINT.
enum class cst_ipi : std::uint32_t {
    entrada_com_recuperacao_de_credito = 0, ///< incoming, its tax recovered as a credit
    entrada_tributada_aliquota_zero = 1,    ///< incoming, taxed at a rate of zero
    entrada_isenta = 2,                     ///< incoming, exempt
    entrada_nao_tributada = 3,              ///< incoming, not taxed
    entrada_imune = 4,                      ///< incoming, immune
    entrada_com_suspensao = 5,              ///< incoming, tax suspended
    outras_entradas = 49,                   ///< any other incoming operation
    saida_tributada = 50,                   ///< outgoing, taxed
    saida_tributada_aliquota_zero = 51,     ///< outgoing, taxed at a rate of zero
    saida_isenta = 52,                      ///< outgoing, exempt
    saida_nao_tributada = 53,               ///< outgoing, not taxed
    saida_imune = 54,                       ///< outgoing, immune
    saida_com_suspensao = 55,               ///< outgoing, tax suspended
    outras_saidas = 99,                     ///< any other outgoing operation
};

} // namespace kivo::erp::v12::fiscal
