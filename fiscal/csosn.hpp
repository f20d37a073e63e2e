#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// ICMS situation code of the Simples Nacional (CSOSN). Each group of the layout takes only its own
/// codes, but no class sets or checks its code. ST is tax substitution.
enum class csosn : std::uint32_t {
    nao_informado = 0,                        ///< never set; not a code of the layout
    tributada_com_credito = 101,              ///< taxed, with credit for the buyer
    tributada_sem_credito = 102,              ///< taxed, without credit
    isenta_por_faixa_de_receita = 103,        ///< exempt by the bracket of gross revenue
    tributada_com_credito_e_st = 201,         ///< as 101, and ICMS charged by ST
    tributada_sem_credito_com_st = 202,       ///< as 102, and ICMS charged by ST
    isenta_por_faixa_de_receita_com_st = 203, ///< as 103, and ICMS charged by ST
    imune = 300,                              ///< immune from ICMS
    nao_tributada = 400,                      ///< not taxed by the Simples Nacional
    cobrado_anteriormente_por_st = 500,       ///< ICMS charged before, by ST or in advance
    outros = 900,                             ///< any other situation
};

} // namespace kivo::erp::v12::fiscal
