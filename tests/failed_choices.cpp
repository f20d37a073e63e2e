#include "support/failures.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"
#include "support/tax_of.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

/// What a failure leaves in the fields that hold one of several kinds of value.
namespace kivo::tests {

using namespace erp::v12::fiscal;
using core::v7::optional;

template <class Class> using change = std::function<void(Class&)>;

template <class Class, class Parameter>
change<Class> setting(void (Class::*set)(Parameter), const std::remove_cvref_t<Parameter>& value) {
    return [set, value](Class& object) { (object.*set)(value); };
}

/// Lets each change of a new object fail at each allocation after any other. `held` names what an
/// object holds, and `left` what a failure has to leave of one that went from this to that.
template <class Class, class Held, class Left>
void fail_each_change(const std::vector<change<Class>>& changes, Held held, Left left) {
    for (const change<Class>& first : changes) {
        for (const change<Class>& second : changes) {
            Class before;
            first(before);
            Class after;
            second(after);
            const std::string from = held(before);
            const std::string to = held(after);
            const std::string expected = from == to ? from : left(from, to);
            fail_each_allocation(
                promise::either, [&] { return before; }, second,
                [&](Class& object, std::size_t) {
                    const Class copy = object;
                    EXPECT_EQ(held(copy), expected) << "from " << from << " to " << to;
                    if (from != to && from == expected) {
                        EXPECT_TRUE(same_fields(copy, before)) << "from " << from << " to " << to;
                    }
                    second(object);
                    EXPECT_TRUE(same_fields(object, after)) << "it can still be set";
                });
        }
    }
}

// Catches medicines that are lost to a list that could not be copied, and fuel data that leaves
// them standing.
TEST(choices, of_the_product_fail_by_their_kind) {
    const auto held = [](const produto& item) -> std::string {
        return item.get_combustiveis()   ? "fuel"
               : item.get_medicamentos() ? "medicines"
               : item.get_armas()        ? "firearms"
                                         : "nothing";
    };
    fail_each_change<produto>(
        {setting(&produto::set_armas, optional<std::vector<arma>>()),
         setting(&produto::set_combustiveis, sample<optional<combustiveis>>(1)),
         setting(&produto::set_medicamentos, sample<optional<std::vector<medicamento>>>(1)),
         setting(&produto::set_armas, sample<optional<std::vector<arma>>>(1))},
        held, [](const std::string& from, const std::string& to) {
            return to == "fuel" ? "nothing" : from;
        });
}

// Catches a tax that stays although another was to take its place.
TEST(choices, of_the_tax_lose_the_old_one) {
    const auto tax = [](const auto& value) {
        return setting(&produto::set_tributacao, produto::tributacao(value));
    };
    fail_each_change<produto>(
        {setting(&produto::set_tributacao, optional<produto::tributacao>()),
         tax(produto::icms(sample<grupo_tributacao_icms_00>(1))),
         tax(produto::icms(sample<grupo_tributacao_icms_900>(1))), tax(sample<issqn>(1))},
        tax_of, [](const std::string& from, const std::string& to) {
            return from == "absent"                                     ? from
                   : from.starts_with("ICMS") && to.starts_with("ICMS") ? "ICMS -1"
                                                                        : "nothing";
        });
}

template <auto get, class Class> std::string index_in(const Class& object) {
    return std::to_string(static_cast<std::ptrdiff_t>((object.*get)().index()));
}

// Catches a failure that leaves more or less of the old value than is promised.
TEST(choices, of_other_groups_fail_by_their_kind) {
    using pis = tributacao_pis_cofins;
    fail_each_change<pis>(
        {setting(&pis::set_grupo_tributacao_pis, sample<grupo_tributacao_pis_aliquota>(1)),
         setting(&pis::set_grupo_tributacao_pis, sample<grupo_tributacao_pis_outros>(1))},
        index_in<&pis::get_grupo_tributacao_pis, pis>, [](auto&, auto&) { return "-1"; });
    using agropecuario = grupo_agropecuario;
    fail_each_change<agropecuario>(
        {setting(&agropecuario::set_informacoes, sample<std::vector<defensivos_agricolas>>(1)),
         setting(&agropecuario::set_informacoes, sample<guia_de_transito>(1))},
        index_in<&agropecuario::get_informacoes, agropecuario>,
        [](const std::string& from, auto&) { return from == "0" ? "-1" : from; });
    fail_each_change<medicamento>(
        {setting(&medicamento::set_codigo_anvisa, sample<std::string>(1)),
         setting(&medicamento::set_codigo_anvisa, sample<medicamento_isento>(1))},
        index_in<&medicamento::get_codigo_anvisa, medicamento>,
        [](const std::string& from, auto&) { return from; });
}

} // namespace kivo::tests
