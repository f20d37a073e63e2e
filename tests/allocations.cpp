#include "support/allocations.hpp"
#include "support/kinds.hpp"
#include "support/samples.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

/// How many blocks each operation takes, against what its semantics need: a record for each eager
/// object and each lazy one that is not empty, and a block for each long text and each list.
namespace kivo::tests {

using erp::v12::fiscal::nota_fiscal;
using erp::v12::layout::group;
using erp::v12::layout::is_list;
using erp::v12::layout::is_optional;

/// Texts and lists can swap too.
template <class Value>
concept lazy_group = group<Value> && lazy<Value>;

template <class Operation> std::size_t blocks_taken_by(Operation operation) {
    const std::size_t before = taken_blocks();
    operation();
    return taken_blocks() - before;
}

/// A class that has a record from its construction on; the others are lazy or in place.
template <class Class> bool is_eager() {
    return !lazy_group<Class> && blocks_taken_by([] { Class(); }) != 0;
}

/// Sums up over what is right below a value: the content of an optional or a variant, the items
/// of a list, the fields of a group.
template <class Value, class Count> std::size_t sum_below(const Value& value, Count count) {
    std::size_t result = 0;
    if constexpr (is_optional<Value>) {
        result = value ? count(*value) : 0;
    } else if constexpr (is_list<Value>) {
        for (const auto& item : value) {
            result += count(item);
        }
    } else if constexpr (is_variant<Value>) {
        result = std::visit(count, value);
    } else if constexpr (group<Value>) {
        for_each_field<Value>(
            [&](const auto& field, std::size_t) { result += count((value.*field.get)()); });
    }
    return result;
}

/// The blocks that a value holds, and so those that its copy takes.
template <class Value> std::size_t held_blocks(const Value& value) {
    std::size_t own = 0;
    if constexpr (std::is_same_v<Value, std::string>) {
        own = value.size() > std::string().capacity() ? 1 : 0;
    } else if constexpr (is_list<Value>) {
        own = value.empty() ? 0 : 1;
    } else if constexpr (lazy_group<Value>) {
        if (texts(value) == texts(Value())) { // no record, and so none below it
            return 0;
        }
        own = 1;
    } else if constexpr (group<Value>) {
        own = is_eager<Value>() ? 1 : 0;
    }
    return own + sum_below(value, [](const auto& below) { return held_blocks(below); });
}

/// The blocks that copying a value over one of the same shape takes: texts, lists and eager
/// records keep theirs, a lazy object is copied and swapped.
template <class Value> std::size_t assigned_blocks(const Value& value) {
    if constexpr (lazy_group<Value>) {
        return held_blocks(value);
    } else {
        return sum_below(value, [](const auto& below) { return assigned_blocks(below); });
    }
}

/// Whether a setter takes its value by value, for which the caller makes a copy.
template <class Class, class Parameter> constexpr bool takes_a_copy(void (Class::*)(Parameter)) {
    return !std::is_reference_v<Parameter>;
}

/// The blocks that a move takes: new records for eager objects, while all else is handed over.
template <class Value> std::size_t moved_blocks(const Value& value) {
    if constexpr (lazy_group<Value> || is_list<Value>) {
        return 0;
    } else {
        std::size_t own = 0;
        if constexpr (group<Value>) {
            own = is_eager<Value>() ? 1 : 0;
        }
        return own + sum_below(value, [](const auto& below) { return moved_blocks(below); });
    }
}

template <class Class> void check_whole(const Class& object) {
    EXPECT_EQ(blocks_taken_by([] { Class(); }), held_blocks(Class()));

    Class target = object;
    EXPECT_EQ(blocks_taken_by([&] { Class{object}; }), held_blocks(object));
    EXPECT_EQ(blocks_taken_by([&] { target = object; }), assigned_blocks(object));

    auto source = std::make_unique<Class>(object);
    EXPECT_EQ(blocks_taken_by([&] { target = std::move(*source); }), 0U);
    EXPECT_EQ(blocks_taken_by([&] { Class{std::move(target)}; }), moved_blocks(object));
    EXPECT_EQ(blocks_taken_by([&] { source.reset(); }), 0U);
}

template <class Class> void check_accessors(const Class& object) {
    for_each_field<Class>([&](const auto& field, std::size_t) {
        const auto value = (object.*field.get)();
        using value_type = std::remove_const_t<decltype(value)>;
        EXPECT_EQ(blocks_taken_by([&] { (object.*field.get)(); }), held_blocks(value))
            << field.setter_name;

        Class target = object;
        EXPECT_EQ(blocks_taken_by([&] { (target.*field.set)(value); }),
                  takes_a_copy(field.set) ? held_blocks(value) : assigned_blocks(value))
            << field.setter_name << " over a like value";

        if constexpr (is_optional<value_type>) {
            (target.*field.set)(value_type());
            EXPECT_EQ(blocks_taken_by([&] { (target.*field.set)(value); }), held_blocks(value))
                << field.setter_name << " where it was absent";
        }
        if constexpr (lazy_group<Class> && !group<value_type>) {
            Class empty;
            std::size_t record = 1; // with what stands in it before any field is set
            for_each_field<Class>([&](const auto& other, std::size_t) {
                record += held_blocks((empty.*other.get)());
            });
            EXPECT_EQ(blocks_taken_by([&] { (empty.*field.set)(value); }),
                      record + held_blocks(value))
                << field.setter_name << " as the first";
        }
    });
}

/// Checks each object in a tree of them.
template <class Value> std::size_t check_operations(const Value& value) {
    if constexpr (group<Value>) {
        check_whole(value);
        check_accessors(value);
    }
    return sum_below(value, [](const auto& below) { return check_operations(below); });
}

// Catches a record, a text or a list that is copied twice, a getter or setter that goes through a
// temporary, and a move that copies.
TEST(allocations, are_those_that_the_semantics_need) {
    // the samples differ in what their choices hold
    for (std::size_t number = 1; number <= 3 && !::testing::Test::HasFailure(); ++number) {
        check_operations(sample<nota_fiscal>(number));
    }
}

} // namespace kivo::tests
