#include "support/allocations.hpp"
#include "support/kinds.hpp"
#include "support/samples.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
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
template <class Sum, class Value, class Count> Sum sum_below(const Value& value, Count count) {
    Sum result{};
    if constexpr (is_optional<Value>) {
        if (value) {
            result = count(*value);
        }
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

/// The blocks of a value.
struct blocks {
    std::size_t held = 0;     ///< those that it holds, and so those that its copy takes
    std::size_t assigned = 0; ///< those that copying it over one of the same shape takes
    std::size_t moved = 0;    ///< those that moving it takes

    blocks& operator+=(const blocks& other) {
        held += other.held;
        assigned += other.assigned;
        moved += other.moved;
        return *this;
    }
};

/// A text and a list have a block each, and keep it where they are assigned to. A lazy object is
/// copied and swapped, and handed over by a move; an eager one has a record from the first, which
/// it keeps, so that a move takes a new one.
template <class Value> blocks blocks_of(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
        return {.held = value.size() > std::string().capacity() ? 1U : 0U};
    } else {
        auto result = sum_below<blocks>(value, [](const auto& below) { return blocks_of(below); });
        if constexpr (is_list<Value>) {
            result.held += value.empty() ? 0 : 1;
            result.moved = 0;
        } else if constexpr (lazy_group<Value>) {
            if (texts(value) == texts(Value())) { // no record, and so none below it
                return {};
            }
            ++result.held;
            result.assigned = result.held;
            result.moved = 0;
        } else if constexpr (group<Value>) {
            result.held += is_eager<Value>() ? 1 : 0;
            result.moved += is_eager<Value>() ? 1 : 0;
        }
        return result;
    }
}

/// Whether a setter takes its value by value, for which the caller makes a copy.
template <class Class, class Parameter> constexpr bool takes_a_copy(void (Class::*)(Parameter)) {
    return !std::is_reference_v<Parameter>;
}

template <class Class> void check_whole(const Class& object) {
    EXPECT_EQ(blocks_taken_by([] { Class(); }), blocks_of(Class()).held);

    Class target = object;
    const blocks expected = blocks_of(object);
    EXPECT_EQ(blocks_taken_by([&] { Class{object}; }), expected.held);
    EXPECT_EQ(blocks_taken_by([&] { target = object; }), expected.assigned);

    auto source = std::make_unique<Class>(object);
    EXPECT_EQ(blocks_taken_by([&] { target = std::move(*source); }), 0U);
    EXPECT_EQ(blocks_taken_by([&] { Class{std::move(target)}; }), expected.moved);
    EXPECT_EQ(blocks_taken_by([&] { source.reset(); }), 0U);
}

/// The blocks of a record before any field is set.
template <class Class> std::size_t blocks_of_a_record() {
    return 1 + sum_below<blocks>(Class(), [](const auto& below) { return blocks_of(below); }).held;
}

void expect_blocks(std::size_t taken, std::size_t expected, std::string_view setter,
                   const char* when) {
    EXPECT_EQ(taken, expected) << setter << when;
}

template <class Class> void check_accessors(const Class& object) {
    for_each_field<Class>([&](const auto& field, std::size_t) {
        const auto value = (object.*field.get)();
        using value_type = std::remove_const_t<decltype(value)>;
        const auto [held, assigned, moved] = blocks_of(value);
        expect_blocks(blocks_taken_by([&] { (object.*field.get)(); }), held, field.setter_name,
                      ", or rather its getter");

        Class target = object;
        const auto set = [&] { (target.*field.set)(value); };
        expect_blocks(blocks_taken_by(set), takes_a_copy(field.set) ? held : assigned,
                      field.setter_name, " over a like value");

        if constexpr (is_optional<value_type>) {
            (target.*field.set)(value_type());
            expect_blocks(blocks_taken_by(set), held, field.setter_name, " where it was absent");
        }
        if constexpr (lazy_group<Class> && !group<value_type>) {
            target = Class();
            expect_blocks(blocks_taken_by(set), blocks_of_a_record<Class>() + held,
                          field.setter_name, " as the first");
        }
    });
}

/// Checks each object in a tree of them.
template <class Value> std::size_t check_operations(const Value& value) {
    if constexpr (group<Value>) {
        check_whole(value);
        check_accessors(value);
    }
    return sum_below<std::size_t>(value, [](const auto& below) { return check_operations(below); });
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
