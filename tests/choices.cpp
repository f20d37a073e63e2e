#include "support/classes.hpp"
#include "support/kinds.hpp"
#include "support/samples.hpp"
#include "support/tax_of.hpp"
#include "support/valueless.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <numeric>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// The fields that hold one of several kinds of value.
namespace kivo::tests {

using namespace erp::v12::fiscal;

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

} // namespace kivo::tests
