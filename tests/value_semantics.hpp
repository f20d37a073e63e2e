#pragma once

#include "support/allocations.hpp"
#include "support/kinds.hpp"
#include "support/promises.hpp"
#include "support/reference_to.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"
#include "support/suites.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What every class owes as a value, over the accessor pairs that the layout map lists.
namespace kivo::tests {

template <class Value> std::string text_after_a_move(Value value) {
    [[maybe_unused]] const Value moved = std::move(value);
    return text(value);
}

/// The texts of an object after its fields were moved out of its record, one by one.
template <class Class> std::vector<std::string> texts_after_moving_fields(const Class& object) {
    std::vector<std::string> result;
    for_each_field<Class>([&](const auto& field, std::size_t) {
        result.push_back(text_after_a_move((object.*field.get)()));
    });
    return result;
}

/// What a move leaves in a full object of the class.
template <class Class> std::vector<std::string> texts_after_a_move(const Class& object) {
    if constexpr (lazy<Class>) {
        return texts(Class());
    } else {
        return texts_after_moving_fields(object);
    }
}

/// A text is what it should be; the compiler goes through it once, not for each field.
inline void expect_text(const std::string& found, const std::string& expected,
                        std::string_view setter) {
    EXPECT_EQ(found, expected) << setter;
}

/// An object's fields are what they should be.
template <class Class>
void expect_fields(const Class& object, const std::vector<std::string>& expected,
                   std::string_view setter) {
    EXPECT_TRUE(same_fields(object, expected)) << setter;
}

/// In a new and in a full object, setting the field of this index makes a value of it, and leaves
/// the others alone.
template <class Class>
void expect_set(std::string_view setter, std::size_t index, const std::string& value,
                reference_to<void(Class&)> set) {
    for (Class object : {Class(), sample<Class>(1)}) {
        std::vector<std::string> expected = texts(object);
        for (const std::size_t other : removed_with<Class>(index)) {
            expected[other] = "absent";
        }
        expected[index] = value;
        set(object);
        expect_fields(object, expected, setter);
    }
}

// Catches a number or a code that is something before it is set.
template <class Class> void a_new_object_holds_nothing() {
    for_each_field<Class>([](const auto& field, std::size_t) {
        using value = value_of<std::remove_cvref_t<decltype(field)>, Class>;
        expect_text(text((Class().*field.get)()), text(value()), field.setter_name);
    });
}

// Catches a setter or a getter that reaches a neighbour of its field, or a setter that takes from
// its argument.
template <class Class> void setting_one_field_leaves_the_others_alone() {
    for_each_field<Class>([](const auto& changed, std::size_t index) {
        using accessor = std::remove_cvref_t<decltype(changed)>;
        const auto value = sample_for<Class, accessor>(index, 2);
        const std::string wanted = text(value);
        ASSERT_NE(wanted, text(sample_for<Class, accessor>(index, 1)));
        expect_set<Class>(changed.setter_name, index, wanted,
                          [&](Class& object) { (object.*changed.set)(value); });
        expect_text(text(value), wanted, changed.setter_name); // it takes a copy
    });
}

// Catches an absent value that is ignored, or kept as a default.
template <class Class> void setting_an_absent_value_removes_it() {
    for_each_field<Class>([](const auto& changed, std::size_t index) {
        using value = value_of<std::remove_cvref_t<decltype(changed)>, Class>;
        if constexpr (erp::v12::layout::is_optional<value>) {
            expect_set<Class>(changed.setter_name, index, "absent",
                              [&](Class& object) { (object.*changed.set)(value()); });
        }
    });
}

// Catches a field that is left out of a copy, and a copy that shares its record or a group in it.
template <class Class> void copies_are_whole_and_share_nothing() {
    const auto expected = texts(sample<Class>(1));
    std::optional<Class> source = sample<Class>(1);
    Class copy = *source;
    EXPECT_TRUE(same_fields(copy, expected));
    for_each_field<Class>([&](const auto& field, std::size_t index) {
        using accessor = std::remove_cvref_t<decltype(field)>;
        ((*source).*field.set)(sample_for<Class, accessor>(index, 2));
        expect_fields(copy, expected, field.setter_name);
    });
    source.reset();
    EXPECT_TRUE(same_fields(copy, expected));
}

// Catches a field that an assignment leaves out, and a value that stays where the source has none.
template <class Class> void assignment_replaces_every_field() {
    for (const Class& source : {Class(), sample<Class>(1)}) {
        for (Class target : {Class(), sample<Class>(2)}) {
            Class moved_to = target;
            target = source;
            EXPECT_TRUE(same_fields(target, source));
            Class moved_from = source;
            moved_to = std::move(moved_from);
            EXPECT_TRUE(same_fields(moved_to, source));
        }
    }
}

// Catches an assignment that destroys its own source.
template <class Class> void self_assignment_changes_nothing() {
    auto object = sample<Class>(1);
    const auto expected = texts(object);
    Class& same = object;
    object = same;
    EXPECT_TRUE(same_fields(object, expected));
    if constexpr (lazy<Class>) {
        object = std::move(same);
        EXPECT_TRUE(same_fields(object, expected));
    }
}

// Catches an eager move that steals the record, a lazy one that leaves it, and a move that copies.
template <class Class> void moves_leave_what_the_kind_promises() {
    const auto original = sample<Class>(1);

    Class source = original;
    Class target = std::move(source);
    EXPECT_TRUE(same_fields(target, original));
    EXPECT_TRUE(same_fields(source, texts_after_a_move(original)));

    source = original;
    target = sample<Class>(2);
    target = std::move(source);
    EXPECT_TRUE(same_fields(target, original));
    EXPECT_TRUE(same_fields(source, texts_after_a_move(original)));

    source = original;
    EXPECT_TRUE(same_fields(source, original)) << "a moved-from object can be filled again";
}

// Catches a swap that copies or forgets a side, and an empty handle that takes memory.
template <class Class> void empty_handles_allocate_nothing() {
    if constexpr (lazy<Class>) {
        const std::size_t before = taken_blocks();
        Class empty;
        Class copy = empty;
        Class target;
        target = copy;
        target = std::move(copy);
        empty.swap(target);
        EXPECT_EQ(taken_blocks(), before);

        for_each_field<Class>([&](const auto& field, std::size_t) {
            using value = value_of<std::remove_cvref_t<decltype(field)>, Class>;
            const std::size_t start = taken_blocks();
            { [[maybe_unused]] const value plain{}; }
            const std::size_t of_a_default = taken_blocks() - start;
            { [[maybe_unused]] const value got = (empty.*field.get)(); }
            EXPECT_EQ(taken_blocks() - start, 2 * of_a_default) << field.setter_name;
        });

        auto full = sample<Class>(1);
        const auto expected = texts(full);
        const std::size_t filled = taken_blocks();
        full.swap(empty);
        EXPECT_EQ(taken_blocks(), filled);
        EXPECT_TRUE(same_fields(empty, expected));
        EXPECT_TRUE(same_fields(full, Class()));
    }
}

// Catches a lost record, and an object of more than its handle.
template <class Class> void records_are_released() {
    const std::size_t before = live_blocks();
    {
        auto object = sample<Class>(1);
        Class other = object;
        other = std::move(object);
        object = sample<Class>(2);
        object = other;
    }
    EXPECT_EQ(live_blocks(), before);
    // a handle is one pointer; what stands in place is no larger than a base value
    static_assert(sizeof(Class) <= (lazy<Class> ? sizeof(void*) : 8));
}

// Catches a promise that is given or taken back: callers are compiled for it.
template <class Class> void only_what_never_throws_is_noexcept() {
    static_assert(std::is_nothrow_default_constructible_v<Class> == lazy<Class>);
    static_assert(std::is_nothrow_move_constructible_v<Class> == lazy<Class>);
    static_assert(std::is_nothrow_move_assignable_v<Class> == lazy<Class>);
    static_assert(std::is_nothrow_copy_constructible_v<Class> == copy_never_throws<Class>);
    static_assert(std::is_nothrow_copy_assignable_v<Class> == copy_never_throws<Class>);
    static_assert(std::is_nothrow_destructible_v<Class>);
    if constexpr (lazy<Class>) {
        static_assert(noexcept(std::declval<Class&>().swap(std::declval<Class&>())));
    }
    for_each_field<Class>([](const auto& field, std::size_t) {
        using value = value_of<std::remove_cvref_t<decltype(field)>, Class>;
        EXPECT_EQ(noexcept((std::declval<const Class&>().*field.get)()),
                  getter_never_throws<Class>(field.setter_name))
            << field.setter_name;
        EXPECT_EQ(noexcept((std::declval<Class&>().*field.set)(std::declval<value&>())),
                  setters_never_throw<Class>)
            << field.setter_name;
    });
}

template <class Class>
inline constexpr test_of_class every_class[] = {
    {"a_new_object_holds_nothing", a_new_object_holds_nothing<Class>},
    {"setting_one_field_leaves_the_others_alone", setting_one_field_leaves_the_others_alone<Class>},
    {"setting_an_absent_value_removes_it", setting_an_absent_value_removes_it<Class>},
    {"copies_are_whole_and_share_nothing", copies_are_whole_and_share_nothing<Class>},
    {"assignment_replaces_every_field", assignment_replaces_every_field<Class>},
    {"self_assignment_changes_nothing", self_assignment_changes_nothing<Class>},
    {"moves_leave_what_the_kind_promises", moves_leave_what_the_kind_promises<Class>},
    {"empty_handles_allocate_nothing", empty_handles_allocate_nothing<Class>},
    {"records_are_released", records_are_released<Class>},
    {"only_what_never_throws_is_noexcept", only_what_never_throws_is_noexcept<Class>},
};

} // namespace kivo::tests
