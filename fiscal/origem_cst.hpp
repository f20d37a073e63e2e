#pragma once

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Origin of the goods (orig). The goods of codes 6 and 7 stand on the list of the foreign trade
/// chamber (CAMEX), or are natural gas.
enum class origem_cst : std::uint32_t {
    nacional = 0,                            ///< national, none of the codes 3, 4, 5 and 8
    estrangeira_importacao_direta = 1,       ///< foreign, imported directly, not code 6
    estrangeira_mercado_interno = 2,         ///< foreign, bought in Brazil, not code 7
    nacional_conteudo_importado_40_a_70 = 3, ///< national, import content above 40%, up to 70%
    nacional_processo_produtivo_basico = 4,  ///< national, made by the basic production process
    nacional_conteudo_importado_ate_40 = 5,  ///< national, import content of at most 40%
    estrangeira_importacao_direta_sem_similar = 6, ///< imported directly, no national equivalent
    estrangeira_mercado_interno_sem_similar = 7,   ///< bought in Brazil, no national equivalent
    nacional_conteudo_importado_acima_70 = 8,      ///< national, import content above 70%
};

} // namespace kivo::erp::v12::fiscal
