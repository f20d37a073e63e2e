#include "support/classes.hpp"
#include "support/failures.hpp"
#include "support/kinds.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"
#include "support/valueless.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// The fields that hold one of several kinds of value.
namespace kivo::tests {

using namespace erp::v12::fiscal;
using core::v7::optional;

/// Every state of a choice: each alternative at its default and at a sample, no alternative at all,
/// and, where the layout may leave it out, an absent one.
template <class Value> std::vector<Value> states(std::size_t number) {
    std::vector<Value> result;
    if constexpr (erp::v12::layout::is_optional<Value>) {
        result.emplace_back();
        for (const auto& state : states<typename Value::value_type>(number)) {
            result.emplace_back(state);
        }
    } else if constexpr (is_variant<Value>) {
        const auto add_alternative = [&]<std::size_t index>() {
            for (const auto& state : states<std::variant_alternative_t<index, Value>>(number)) {
                result.emplace_back(std::in_place_index<index>, state);
            }
        };
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (add_alternative.template operator()<index>(), ...);
        }
        (std::make_index_sequence<std::variant_size_v<Value>>());
        if (Value valueless = result.front(); make_valueless(valueless)) {
            result.push_back(valueless);
        }
    } else {
        result = {Value(), sample<Value>(number)};
    }
    return result;
}

/// Sets a choice of a new object from each state to each other.
template <class Class, class Accessor> void change_from_any_state_to_any_other(const Accessor&) {
    using value = value_of<Accessor, Class>;
    const auto held = [](const Class& object) { return text((object.*Accessor::get)()); };
    for (const value& from : states<value>(1)) {
        for (const value& to : states<value>(2)) {
            SCOPED_TRACE(std::string(Accessor::getter_name) + " from " + text(from));
            Class set;
            (set.*Accessor::set)(from);
            Class copied_to = set;
            Class moved_to = set;
            (set.*Accessor::set)(to);
            copied_to = set;
            const Class copy = set;
            const auto expected = text(to);
            EXPECT_EQ(held(set), expected);
            EXPECT_EQ(held(copied_to), expected);
            EXPECT_EQ(held(copy), expected);
            moved_to = std::move(set);
            EXPECT_EQ(held(moved_to), expected);
            const Class moved = std::move(moved_to);
            EXPECT_EQ(held(moved), expected);
        }
    }
}

// Catches a switch that keeps something of the old kind, and a choice without a value that does not
// travel as one.
TEST(choices, change_from_any_state_to_any_other) {
    std::size_t tried = 0;
    for_each_class<nota_fiscal>([&]<class Class>(std::type_identity<Class>) {
        for_each_field<Class>([&](const auto& field, std::size_t) {
            using accessor = std::remove_cvref_t<decltype(field)>;
            using value = value_of<accessor, Class>;
            if constexpr (is_variant<erp::v12::layout::content_of<value>>) {
                change_from_any_state_to_any_other<Class>(field);
                ++tried;
            }
        });
    });
    EXPECT_GT(tried, 10U);
}

/// Which alternatives an item's tax stands in: of the outer choice, and of the ICMS.
std::string tax_of(const produto& item) {
    const auto tax = item.get_tributacao();
    if (!tax) {
        return "absent";
    }
    if (const auto* const icms = std::get_if<produto::icms>(&*tax)) {
        return "ICMS " + std::to_string(static_cast<std::ptrdiff_t>(icms->index()));
    }
    return tax->valueless_by_exception() ? "nothing" : "ISSQN";
}

// Catches two ICMS groups that change places.
TEST(choices, of_the_icms_stand_in_their_order) {
    std::vector<std::string> found;
    const auto add = [&](const auto& group) {
        produto item;
        item.set_tributacao(produto::tributacao(produto::icms(group)));
        found.push_back(tax_of(item));
    };
    const auto add_each = [&](const auto&... groups) { (add(groups), ...); };
    add_each(grupo_tributacao_icms_00(), grupo_tributacao_icms_10(), grupo_tributacao_icms_20(),
             grupo_tributacao_icms_30(), grupo_tributacao_icms_40(), grupo_tributacao_icms_51(),
             grupo_tributacao_icms_60(), grupo_tributacao_icms_70(), grupo_tributacao_icms_90(),
             grupo_tributacao_icms_101(), grupo_tributacao_icms_102(), grupo_tributacao_icms_201(),
             grupo_tributacao_icms_202(), grupo_tributacao_icms_500(), grupo_tributacao_icms_900(),
             grupo_repasse_icms_st(), grupo_tributacao_icms_02(), grupo_tributacao_icms_15(),
             grupo_tributacao_icms_53(), grupo_tributacao_icms_61());
    std::vector<std::string> expected(20);
    for (std::size_t index = 0; index < expected.size(); ++index) {
        expected[index] = "ICMS " + std::to_string(index);
    }
    EXPECT_EQ(found, expected);
}

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
