#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// ICMS situation code of the normal regime (CST), as a number; the layout writes it in 2 digits.
/// Each group of the layout takes only its own codes, but no class sets or checks its code. ST is
/// tax substitution.
enum class cst : std::uint32_t {
    tributada_integralmente = 0,               ///< taxed in full
    monofasica_propria = 2,                    ///< fuel, the operation's own monophasic tax
    tributada_com_st = 10,                     ///< taxed, and ICMS charged by ST
    monofasica_propria_com_retencao = 15,      ///< fuel, own monophasic tax and withholding
    reducao_base_calculo = 20,                 ///< taxed on a reduced tax base
    isenta_ou_nao_tributada_com_st = 30,       ///< exempt or not taxed, but ICMS charged by ST
    isenta = 40,                               ///< exempt
    nao_tributada = 41,                        ///< not taxed
    suspensao = 50,                            ///< tax suspended
    diferimento = 51,                          ///< tax deferred, in whole or in part
    monofasica_com_recolhimento_diferido = 53, ///< fuel, monophasic tax with deferred payment
    cobrado_anteriormente_por_st = 60,         ///< ICMS charged before, by ST
    monofasica_cobrada_anteriormente = 61,     ///< fuel, monophasic tax charged before
    reducao_base_calculo_com_st = 70,          ///< reduced tax base, and ICMS charged by ST
    outras = 90,                               ///< any other situation
};

} // namespace kivo::erp::v12::fiscal
