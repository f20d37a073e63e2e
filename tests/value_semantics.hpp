#pragma once

#include "support/allocations.hpp"
#include "support/kinds.hpp"
#include "support/promises.hpp"
#include "support/reference_to.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What every class owes as a value, over the accessor pairs that the layout map lists.
namespace kivo::tests {

template <class Class> class every_class : public ::testing::Test {};
TYPED_TEST_SUITE_P(every_class);

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
TYPED_TEST_P(every_class, a_new_object_holds_nothing) {
    for_each_field<TypeParam>([](const auto& field, std::size_t) {
        using value = value_of<std::remove_cvref_t<decltype(field)>, TypeParam>;
        expect_text(text((TypeParam().*field.get)()), text(value()), field.setter_name);
    });
}

// Catches a setter or a getter that reaches a neighbour of its field, or a setter that takes from
// its argument.
TYPED_TEST_P(every_class, setting_one_field_leaves_the_others_alone) {
    const auto full = texts(sample<TypeParam>(1));
    for_each_field<TypeParam>([&](const auto& changed, std::size_t index) {
        const auto value = sample_for<TypeParam, std::remove_cvref_t<decltype(changed)>>(index, 2);
        const std::string wanted = text(value);
        expect_set<TypeParam>(changed.setter_name, index, wanted,
                              [&](TypeParam& object) { (object.*changed.set)(value); });
        expect_text(text(value), wanted, changed.setter_name); // it takes a copy
        if (wanted == full[index]) {
            ADD_FAILURE() << changed.setter_name << " would change nothing";
        }
    });
}

// Catches an absent value that is ignored, or kept as a default.
TYPED_TEST_P(every_class, setting_an_absent_value_removes_it) {
    for_each_field<TypeParam>([](const auto& changed, std::size_t index) {
        using value = value_of<std::remove_cvref_t<decltype(changed)>, TypeParam>;
        if constexpr (erp::v12::layout::is_optional<value>) {
            expect_set<TypeParam>(changed.setter_name, index, "absent",
                                  [&](TypeParam& object) { (object.*changed.set)(value()); });
        }
    });
}

// Catches a field that is left out of a copy, and a copy that shares its record or a group in it.
TYPED_TEST_P(every_class, copies_are_whole_and_share_nothing) {
    const auto expected = texts(sample<TypeParam>(1));
    std::optional<TypeParam> source = sample<TypeParam>(1);
    TypeParam copy = *source;
    EXPECT_TRUE(same_fields(copy, expected));
    for_each_field<TypeParam>([&](const auto& field, std::size_t index) {
        using accessor = std::remove_cvref_t<decltype(field)>;
        ((*source).*field.set)(sample_for<TypeParam, accessor>(index, 2));
        expect_fields(copy, expected, field.setter_name);
    });
    source.reset();
    EXPECT_TRUE(same_fields(copy, expected));
}

// Catches a field that an assignment leaves out, and a value that stays where the source has none.
TYPED_TEST_P(every_class, assignment_replaces_every_field) {
    for (const TypeParam& source : {TypeParam(), sample<TypeParam>(1)}) {
        for (TypeParam target : {TypeParam(), sample<TypeParam>(2)}) {
            TypeParam moved_to = target;
            target = source;
            EXPECT_TRUE(same_fields(target, source));
            TypeParam moved_from = source;
            moved_to = std::move(moved_from);
            EXPECT_TRUE(same_fields(moved_to, source));
        }
    }
}

// Catches an assignment that destroys its own source.
TYPED_TEST_P(every_class, self_assignment_changes_nothing) {
    auto object = sample<TypeParam>(1);
    const auto expected = texts(object);
    TypeParam& same = object;
    object = same;
    EXPECT_TRUE(same_fields(object, expected));
    if constexpr (lazy<TypeParam>) {
        object = std::move(same);
        EXPECT_TRUE(same_fields(object, expected));
    }
}

// Catches an eager move that steals the record, a lazy one that leaves it, and a move that copies.
TYPED_TEST_P(every_class, moves_leave_what_the_kind_promises) {
    const auto original = sample<TypeParam>(1);

    TypeParam source = original;
    TypeParam target = std::move(source);
    EXPECT_TRUE(same_fields(target, original));
    EXPECT_TRUE(same_fields(source, texts_after_a_move(original)));

    source = original;
    target = sample<TypeParam>(2);
    target = std::move(source);
    EXPECT_TRUE(same_fields(target, original));
    EXPECT_TRUE(same_fields(source, texts_after_a_move(original)));

    source = original;
    EXPECT_TRUE(same_fields(source, original)) << "a moved-from object can be filled again";
}

// Catches a swap that copies or forgets a side, and an empty handle that takes memory.
TYPED_TEST_P(every_class, empty_handles_allocate_nothing) {
    if constexpr (lazy<TypeParam>) {
        const std::size_t before = taken_blocks();
        TypeParam empty;
        TypeParam copy = empty;
        TypeParam target;
        target = copy;
        target = std::move(copy);
        empty.swap(target);
        EXPECT_EQ(taken_blocks(), before);

        for_each_field<TypeParam>([&](const auto& field, std::size_t) {
            using value = value_of<std::remove_cvref_t<decltype(field)>, TypeParam>;
            const std::size_t start = taken_blocks();
            { [[maybe_unused]] const value plain{}; }
            const std::size_t of_a_default = taken_blocks() - start;
            { [[maybe_unused]] const value got = (empty.*field.get)(); }
            EXPECT_EQ(taken_blocks() - start, 2 * of_a_default) << field.setter_name;
        });

        auto full = sample<TypeParam>(1);
        const auto expected = texts(full);
        const std::size_t filled = taken_blocks();
        full.swap(empty);
        EXPECT_EQ(taken_blocks(), filled);
        EXPECT_TRUE(same_fields(empty, expected));
        EXPECT_TRUE(same_fields(full, TypeParam()));
    }
}

// Catches a lost record, and an object of more than its handle.
TYPED_TEST_P(every_class, records_are_released) {
    const std::size_t before = live_blocks();
    {
        auto object = sample<TypeParam>(1);
        TypeParam other = object;
        other = std::move(object);
        object = sample<TypeParam>(2);
        object = other;
    }
    EXPECT_EQ(live_blocks(), before);
    // a handle is one pointer; what stands in place is no larger than a base value
    static_assert(sizeof(TypeParam) <= (lazy<TypeParam> ? sizeof(void*) : 8));
}

// Catches a promise that is given or taken back: callers are compiled for it.
TYPED_TEST_P(every_class, only_what_never_throws_is_noexcept) {
    static_assert(std::is_nothrow_default_constructible_v<TypeParam> == lazy<TypeParam>);
    static_assert(std::is_nothrow_move_constructible_v<TypeParam> == lazy<TypeParam>);
    static_assert(std::is_nothrow_move_assignable_v<TypeParam> == lazy<TypeParam>);
    static_assert(std::is_nothrow_copy_constructible_v<TypeParam> == copy_never_throws<TypeParam>);
    static_assert(std::is_nothrow_copy_assignable_v<TypeParam> == copy_never_throws<TypeParam>);
    static_assert(std::is_nothrow_destructible_v<TypeParam>);
    if constexpr (lazy<TypeParam>) {
        static_assert(noexcept(std::declval<TypeParam&>().swap(std::declval<TypeParam&>())));
    }
    for_each_field<TypeParam>([](const auto& field, std::size_t) {
        using value = value_of<std::remove_cvref_t<decltype(field)>, TypeParam>;
        EXPECT_EQ(noexcept((std::declval<const TypeParam&>().*field.get)()),
                  getter_never_throws<TypeParam>(field.setter_name))
            << field.setter_name;
        EXPECT_EQ(noexcept((std::declval<TypeParam&>().*field.set)(std::declval<value&>())),
                  setters_never_throw<TypeParam>)
            << field.setter_name;
    });
}

REGISTER_TYPED_TEST_SUITE_P(every_class, a_new_object_holds_nothing,
                            setting_one_field_leaves_the_others_alone,
                            setting_an_absent_value_removes_it, copies_are_whole_and_share_nothing,
                            assignment_replaces_every_field, self_assignment_changes_nothing,
                            moves_leave_what_the_kind_promises, empty_handles_allocate_nothing,
                            records_are_released, only_what_never_throws_is_noexcept);

} // namespace kivo::tests
