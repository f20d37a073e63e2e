#pragma once

#include <fiscal/nota_fiscal.hpp>

#include <string_view>
#include <type_traits>

/// What the classes promise their callers, one by one.
namespace kivo::tests {

namespace detail {

using namespace erp::v12::fiscal;

template <class Class, class... Listed>
inline constexpr bool is_one_of = (std::is_same_v<Class, Listed> || ...);

template <class Class>
inline constexpr bool copy_never_throws =
    is_one_of<Class, grupo_cbs_cred_pres, grupo_cred_pres, grupo_diferimento_monofasica,
              grupo_ibs_cbs, grupo_ibs_cbs_monofasico, grupo_ibs_cred_pres, grupo_ibs_municipio,
              grupo_ibs_uf, grupo_informacoes_cbs, grupo_informacoes_devolucao,
              grupo_informacoes_diferimento, grupo_informacoes_reducao, grupo_monofasica_retencao,
              grupo_monofasica_retida, grupo_monofasico_padrao, grupo_processo_referenciado,
              grupo_reducao_ad_rem, grupo_tributacao_icms_02, grupo_tributacao_icms_15,
              grupo_tributacao_icms_53, grupo_tributacao_icms_61, grupo_tributacao_regular, ibs_cbs,
              imposto_seletivo, indicador_origem_combustivel, sequencia_cred_pres,
              sequencia_ibs_cbs, tributavel_imposto_seletivo, valor_imposto_seletivo>;

} // namespace detail

/// Copying the class ends the process when it fails.
template <class Class> inline constexpr bool copy_never_throws = detail::copy_never_throws<Class>;

/// A getter ends the process when it fails.
template <class Class> constexpr bool getter_never_throws(std::string_view setter_name) {
    using namespace erp::v12::fiscal;
    return detail::is_one_of<Class, sequencia_cred_pres, sequencia_ibs_cbs> ||
           (std::is_same_v<Class, grupo_reducao_ad_rem> && setter_name == "set_percentual_reducao");
}

/// The setters of a class end the process when they fail.
template <class Class>
inline constexpr bool setters_never_throw =
    std::is_same_v<Class, erp::v12::fiscal::indicador_origem_combustivel>;

} // namespace kivo::tests
