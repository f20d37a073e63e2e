#pragma once

#include "support/failures.hpp"
#include "support/kinds.hpp"
#include "support/left_behind.hpp"
#include "support/reference_to.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"
#include "support/suites.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

/// Every allocation of every operation fails once.
namespace kivo::tests {

/// What a copy of the class promises.
template <class Class> promise of_copying() {
    return copy_ends<Class>          ? promise::ends
           : may_end<Class>::value() ? promise::either
                                     : promise::propagates;
}

// Catches a constructor that loses what it built when a later part fails, and a move that takes
// from its source what it does not need yet.
template <class Class> void of_construction_leaves_nothing_behind() {
    const auto source = sample<Class>(1);
    const auto nowhere = [] { return std::optional<Class>(); };
    const auto nothing_left = [](const auto& target, std::size_t before) {
        EXPECT_FALSE(target.has_value());
        EXPECT_EQ(live_blocks(), before);
    };
    fail_each_allocation(
        promise::propagates, nowhere, [](auto& target) { target.emplace(); }, nothing_left);
    fail_each_allocation(
        of_copying<Class>(), nowhere, [&](auto& target) { target.emplace(source); }, nothing_left);

    struct move {
        Class from;
        std::optional<Class> to;
    };
    fail_each_allocation(
        promise::propagates,
        [&] {
            return move{source, {}};
        },
        [](move& object) { object.to.emplace(std::move(object.from)); },
        [emptied = emptied_then_old(source)](const move& object, std::size_t before) {
            EXPECT_FALSE(object.to.has_value());
            emptied(object.from, before);
        });
}

// Catches a lazy assignment that touches its target before the copy stands, and an eager one that
// leaves a value neither old nor new, or walks the record in another order.
template <class Class> void of_assignment_leaves_a_whole_target() {
    const auto source = sample<Class>(1);
    const auto fresh = texts(source);
    for (const Class& old : {Class(), sample<Class>(2)}) {
        const auto check = after_assignment(old, source);
        fail_each_allocation(
            of_copying<Class>(), [&] { return old; }, [&](Class& target) { target = source; },
            check);
        fail_each_allocation(
            promise::propagates, [&] { return std::pair<Class, Class>(old, source); },
            [](auto& objects) { objects.first = std::move(objects.second); }, of_first(check));
    }
    EXPECT_TRUE(same_fields(source, fresh)) << "the source never changes";
}

/// Whether a first setter copies its text before there is a record.
template <class Class>
inline constexpr bool copies_first =
    std::is_same_v<Class, erp::v12::fiscal::tributavel_imposto_seletivo>;

/// A setter that fails on a new object leaves it without a record, or with one of defaults.
template <class Class>
void expect_nothing_or_defaults(promise promised, std::string_view setter,
                                reference_to<void(Class&)> set_default,
                                reference_to<void(Class&)> set) {
    std::size_t of_a_record = 0; // blocks
    {
        const std::size_t before = live_blocks();
        Class made;
        set_default(made);
        of_a_record = live_blocks() - before;
    }
    std::size_t start = 0;
    fail_each_allocation(
        promised, [] { return Class(); },
        [&](Class& object) {
            start = taken_blocks();
            set(object);
        },
        [&](const Class& object, std::size_t before) {
            const bool made = !copies_first<Class> && taken_blocks() - start >= of_a_record;
            EXPECT_EQ(live_blocks() - before, made ? of_a_record : 0) << setter;
            EXPECT_TRUE(same_fields(object, Class())) << setter;
        });
}

// Catches a first setter that keeps half a record, or takes back a whole one.
template <class Class> void of_a_first_setter_leaves_nothing_or_defaults() {
    if constexpr (lazy<Class>) {
        for_each_field<Class>([](const auto& changed, std::size_t index) {
            using accessor = std::remove_cvref_t<decltype(changed)>;
            using value_type = value_of<accessor, Class>;
            const value_type value = sample_for<Class, accessor>(index, 2);
            const value_type by_default{};
            const promise promised = noexcept((std::declval<Class&>().*changed.set)(value))
                                         ? promise::ends
                                     : may_end<value_type>::value() ? promise::either
                                                                    : promise::propagates;
            expect_nothing_or_defaults<Class>(
                promised, changed.setter_name,
                [&](Class& object) { (object.*changed.set)(by_default); },
                [&](Class& object) { (object.*changed.set)(value); });
        });
    }
}

/// A setter that fails on a full object leaves it as it was.
template <class Class>
void expect_unchanged(std::string_view setter, reference_to<void(Class&)> set) {
    const left_unchanged unchanged(sample<Class>(1));
    fail_each_allocation(
        promise::propagates, [] { return sample<Class>(1); }, [&](Class& object) { set(object); },
        [&](const Class& object, std::size_t before) {
            EXPECT_EQ(live_blocks(), before) << setter;
            unchanged(object, before);
        });
}

// Catches a setter that loses the old value before it has the new one.
template <class Class> void of_a_setter_leaves_the_field_as_it_was() {
    for_each_field<Class>([](const auto& changed, std::size_t) {
        using value_type = value_of<std::remove_cvref_t<decltype(changed)>, Class>;
        if constexpr (std::is_same_v<value_type, std::string> ||
                      std::is_same_v<value_type, core::v7::optional<std::string>>) {
            expect_unchanged<Class>(changed.setter_name, [&](Class& object) {
                (object.*changed.set)(std::string(1000, 'x'));
            });
        }
    });
}

template <class Class>
inline constexpr test_of_class every_failure[] = {
    {"of_construction_leaves_nothing_behind", of_construction_leaves_nothing_behind<Class>},
    {"of_assignment_leaves_a_whole_target", of_assignment_leaves_a_whole_target<Class>},
    {"of_a_first_setter_leaves_nothing_or_defaults",
     of_a_first_setter_leaves_nothing_or_defaults<Class>},
    {"of_a_setter_leaves_the_field_as_it_was", of_a_setter_leaves_the_field_as_it_was<Class>},
};

} // namespace kivo::tests
