#pragma once

#include "support/failures.hpp"
#include "support/kinds.hpp"
#include "support/record_order.hpp"
#include "support/samples.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// Every allocation of every operation fails once.
namespace kivo::tests {

template <class Class> class every_failure : public ::testing::Test {};
TYPED_TEST_SUITE_P(every_failure);

/// The texts of an object's own fields and of those of its groups, down to the single values.
template <class Value> void add_single_texts(const Value& value, std::vector<std::string>& result) {
    if constexpr (erp::v12::layout::group<Value>) {
        for_each_field<Value>([&](const auto& field, std::size_t) {
            add_single_texts((value.*field.get)(), result);
        });
    } else if constexpr (erp::v12::layout::is_optional<Value>) {
        value ? add_single_texts(*value, result) : result.push_back("absent");
    } else if constexpr (erp::v12::layout::is_list<Value>) {
        for (const auto& item : value) {
            add_single_texts(item, result);
        }
    } else {
        result.push_back(text(value));
    }
}

template <class Class> std::vector<std::string> single_texts(const Class& object) {
    std::vector<std::string> result;
    add_single_texts(object, result);
    return result;
}

/// What a copy of the class promises.
template <class Class> promise of_copying() {
    return copy_ends<Class>          ? promise::ends
           : may_end<Class>::value() ? promise::either
                                     : promise::propagates;
}

// Catches a constructor that loses what it built when a later part fails.
TYPED_TEST_P(every_failure, of_construction_leaves_nothing_behind) {
    const TypeParam source = sample<TypeParam>(1);
    const auto nowhere = [] { return std::optional<TypeParam>(); };
    const auto nothing_left = [](const auto& target, std::size_t before) {
        EXPECT_FALSE(target.has_value());
        EXPECT_EQ(live_blocks(), before);
    };
    fail_each_allocation(
        promise::propagates, nowhere, [](auto& target) { target.emplace(); }, nothing_left);
    fail_each_allocation(
        of_copying<TypeParam>(), nowhere, [&](auto& target) { target.emplace(source); },
        nothing_left);

    // a move that failed has emptied the fields that came first
    struct move {
        std::optional<TypeParam> from = sample<TypeParam>(1);
        std::optional<TypeParam> to;
    };
    fail_each_allocation(
        promise::propagates, [] { return move(); },
        [](move& object) { object.to.emplace(std::move(*object.from)); },
        [](const move& object, std::size_t) {
            EXPECT_FALSE(object.to.has_value());
            EXPECT_EQ(texts(*object.from).size(), texts(TypeParam()).size());
        });
}

// Catches a lazy assignment that touches its target before the copy stands, and an eager one that
// leaves a field neither old nor new, or walks the record in another order.
TYPED_TEST_P(every_failure, of_assignment_leaves_a_whole_target) {
    const TypeParam source = sample<TypeParam>(1);
    const auto fresh = texts(source);
    const auto check = [&](const TypeParam& target, const TypeParam& before) {
        if constexpr (lazy<TypeParam>) {
            EXPECT_EQ(texts(target), texts(before));
        } else {
            expect_new_then_old<TypeParam>(texts(target), texts(before), fresh);
            const auto old_texts = single_texts(before);
            const auto new_texts = single_texts(source);
            const auto found = single_texts(target);
            if (found.size() == old_texts.size() && found.size() == new_texts.size()) {
                for (std::size_t index = 0; index < found.size(); ++index) {
                    EXPECT_TRUE(found[index] == old_texts[index] ||
                                found[index] == new_texts[index] || found[index] == "valueless")
                        << found[index];
                }
            }
        }
    };
    for (const TypeParam& old : {TypeParam(), sample<TypeParam>(2)}) {
        fail_each_allocation(
            of_copying<TypeParam>(), [&] { return old; },
            [&](TypeParam& target) { target = source; },
            [&](const TypeParam& target, std::size_t) { check(target, old); });
        fail_each_allocation(
            promise::propagates, [&] { return std::pair<TypeParam, TypeParam>(old, source); },
            [](auto& objects) { objects.first = std::move(objects.second); },
            [&](const auto& objects, std::size_t) { check(objects.first, old); });
    }
    EXPECT_EQ(texts(source), fresh) << "the source never changes";
}

/// Whether a first setter copies its text before there is a record.
template <class Class>
inline constexpr bool copies_first =
    std::is_same_v<Class, erp::v12::fiscal::tributavel_imposto_seletivo>;

// Catches a first setter that keeps half a record, or takes back a whole one.
TYPED_TEST_P(every_failure, of_a_first_setter_leaves_nothing_or_defaults) {
    if constexpr (lazy<TypeParam>) {
        for_each_field<TypeParam>([](const auto& changed, std::size_t index) {
            using accessor = std::remove_cvref_t<decltype(changed)>;
            using value_type = value_of<accessor, TypeParam>;
            const value_type value = sample_for<TypeParam, accessor>(index, 2);
            const promise promised = noexcept((std::declval<TypeParam&>().*changed.set)(value))
                                         ? promise::ends
                                     : may_end<value_type>::value() ? promise::either
                                                                    : promise::propagates;
            std::size_t of_a_record = 0; // blocks
            {
                const value_type by_default{};
                const std::size_t before = live_blocks();
                TypeParam made;
                (made.*changed.set)(by_default);
                of_a_record = live_blocks() - before;
            }
            std::size_t start = 0;
            fail_each_allocation(
                promised, [] { return TypeParam(); },
                [&](TypeParam& object) {
                    start = taken_blocks();
                    (object.*changed.set)(value);
                },
                [&](const TypeParam& object, std::size_t before) {
                    const bool made =
                        !copies_first<TypeParam> && taken_blocks() - start >= of_a_record;
                    EXPECT_EQ(live_blocks() - before, made ? of_a_record : 0)
                        << changed.setter_name;
                    EXPECT_EQ(texts(object), texts(TypeParam()));
                });
        });
    }
}

// Catches a setter that loses the old value before it has the new one.
TYPED_TEST_P(every_failure, of_a_setter_leaves_the_field_as_it_was) {
    for_each_field<TypeParam>([](const auto& changed, std::size_t) {
        using value_type = value_of<std::remove_cvref_t<decltype(changed)>, TypeParam>;
        if constexpr (std::is_same_v<value_type, std::string> ||
                      std::is_same_v<value_type, core::v7::optional<std::string>>) {
            const auto old = texts(sample<TypeParam>(1));
            fail_each_allocation(
                promise::propagates, [] { return sample<TypeParam>(1); },
                [&](TypeParam& object) { (object.*changed.set)(std::string(1000, 'x')); },
                [&](const TypeParam& object, std::size_t before) {
                    EXPECT_EQ(live_blocks(), before) << changed.setter_name;
                    EXPECT_EQ(texts(object), old) << changed.setter_name;
                });
        }
    });
}

REGISTER_TYPED_TEST_SUITE_P(every_failure, of_construction_leaves_nothing_behind,
                            of_assignment_leaves_a_whole_target,
                            of_a_first_setter_leaves_nothing_or_defaults,
                            of_a_setter_leaves_the_field_as_it_was);

} // namespace kivo::tests
