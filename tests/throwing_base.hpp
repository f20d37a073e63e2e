#pragma once

#include "support/allocations.hpp"
#include "support/failing_operation.hpp"
#include "support/failures.hpp"
#include "support/kinds.hpp"
#include "support/left_behind.hpp"
#include "support/record_order.hpp"
#include "support/reference_to.hpp"
#include "support/same_fields.hpp"
#include "support/samples.hpp"
#include "support/suites.hpp"

#include <base/counted.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

/// The library over base values that count, log and throw: it may ask nothing of them but what it
/// has to, and may lose nothing when they fail.
namespace kivo::tests {

using counting::event;
using counting::operation;

/// Lets each operation of a base value fail once.
template <class Class, class Prepare, class Operation, class Check>
void fail_each_operation(Prepare prepare, Operation run, Check check) {
    fail_each<failing_operation>(may_end<Class>::value() ? promise::either : promise::propagates,
                                 prepare, run, check);
}

/// Whether a value holds a list somewhere.
template <class Value> struct has_list {
    static bool value() {
        bool result = false;
        if constexpr (erp::v12::layout::group<Value>) {
            for_each_field<Value>([&](const auto& field, std::size_t) {
                using inner = typename std::remove_cvref_t<decltype(field)>::value_type;
                result = result || has_list<inner>::value();
            });
        }
        return result;
    }
};
template <class Value> struct has_list<core::v7::optional<Value>> : has_list<Value> {};
template <class Value> struct has_list<std::vector<Value>> {
    static bool value() { return true; }
};
template <class... Alternatives> struct has_list<core::v7::variant<Alternatives...>> {
    static bool value() { return (has_list<Alternatives>::value() || ...); }
};

/// First the values of an object were built; then they were released, in reverse.
template <class Class> struct released_in_reverse {
    template <class Objects> void operator()(const Objects&, const std::vector<event>& log) const {
        std::vector<std::uint64_t> built;
        std::vector<std::uint64_t> released;
        for (const event& entry : log) {
            (entry.what == operation::destroy ? released : built).push_back(entry.number);
        }
        std::reverse(released.begin(), released.end());
        if (has_list<Class>::value()) {
            // a list releases its elements in an order of its own
            std::sort(built.begin(), built.end());
            std::sort(released.begin(), released.end());
        }
        EXPECT_EQ(built, released);
    }
};

/// Nothing is lost; what was released when cannot be told.
struct released {
    template <class Objects> void operator()(const Objects&, const std::vector<event>&) const {}
};

// Catches a constructor that forgets what it built, or releases it in the wrong order.
template <class Class> void in_construction_releases_what_was_built() {
    const auto source = sample<Class>(1);
    struct pair {
        std::optional<Class> from;
        std::optional<Class> to;
    };
    const auto prepare = [&] {
        pair result;
        result.from.emplace(source);
        return result;
    };
    fail_each_operation<Class>(
        prepare, [](pair& object) { object.to.emplace(); }, released_in_reverse<Class>());
    fail_each_operation<Class>(
        prepare, [](pair& object) { object.to.emplace(*object.from); },
        released_in_reverse<Class>());
    // a lazy group moves without asking its values, and is released with them
    fail_each_operation<Class>(
        prepare, [](pair& object) { object.to.emplace(std::move(*object.from)); }, released());
}

// Catches an assignment that loses a value on either side, or walks the record in another order.
template <class Class> void in_assignment_leaves_a_whole_target() {
    for (const Class& source : {Class(), sample<Class>(1)}) {
        for (const Class& target : {Class(), sample<Class>(2)}) {
            const auto prepare = [&] { return std::pair<Class, Class>(target, source); };
            const auto check = of_first(after_assignment(target, source));
            fail_each_operation<Class>(
                prepare, [](auto& object) { object.first = object.second; }, check);
            fail_each_operation<Class>(
                prepare, [](auto& object) { object.first = std::move(object.second); }, check);
        }
    }
}

using asked = std::vector<std::pair<operation, std::uint64_t>>;

/// What is done with two objects, or with two values in them.
enum class action { copy, move, copy_over, move_over };

template <class Value> void act(action wanted, Value& from, Value& to) {
    switch (wanted) {
    case action::copy: {
        [[maybe_unused]] const Value made = from;
        break;
    }
    case action::move: {
        [[maybe_unused]] const Value made = std::move(from);
        break;
    }
    case action::copy_over:
        to = from;
        break;
    case action::move_over:
        to = std::move(from);
        break;
    }
}

/// What a function asks of values and of the allocator, up to its releases.
inline asked asked_by(reference_to<void()> function) {
    std::vector<event> log;
    log.reserve(100'000); // more than any action needs: nothing is allocated while it is logged
    counting::log = &log;
    on_allocation = [](std::size_t size) { counting::log->push_back({operation::allocate, size}); };
    function();
    on_allocation = nullptr;
    counting::log = nullptr;
    asked result;
    for (const event& entry : log) {
        if (entry.what != operation::destroy) {
            result.emplace_back(entry.what, entry.number);
        }
    }
    return result;
}

/// What an action on two values asks.
template <class Value> asked asked_of(action wanted, Value from, Value to) {
    return asked_by([&] { act(wanted, from, to); });
}

/// What an action on two objects asks of their fields, in record order.
template <class Class> asked asked_of_fields(action wanted, const Class& from, const Class& to) {
    asked result;
    for (const std::size_t place : fields_in_record_order<Class>()) {
        for_each_field<Class>([&](const auto& field, std::size_t index) {
            if (index == place) {
                using value = value_of<std::remove_cvref_t<decltype(field)>, Class>;
                const auto of_field =
                    asked_of<value>(wanted, (from.*field.get)(), (to.*field.get)());
                result.insert(result.end(), of_field.begin(), of_field.end());
            }
        });
    }
    return result;
}

// Catches two fields that change places in a record, a value that is asked for more than its copy,
// and one that is asked although it is absent.
template <class Class> void every_walk_keeps_to_the_record() {
    const auto expect_construction = [](action wanted, const Class& from) {
        auto found = asked_of(wanted, from, from);
        const auto expected = asked_of_fields(wanted, from, from);
        if (!found.empty() && found.front().first == operation::allocate) {
            found.erase(found.begin()); // the record itself
            EXPECT_EQ(found, expected);
        } else if (lazy<Class>) {
            EXPECT_TRUE(found.empty());
        } else {
            EXPECT_EQ(found, expected);
        }
    };
    const Class objects[] = {Class(), sample<Class>(1), sample<Class>(2)};
    for (const Class& from : objects) {
        expect_construction(action::copy, from);
        for (const Class& to : objects) {
            if (lazy<Class>) {
                // it is copied aside first, whatever the target holds
                EXPECT_EQ(asked_of(action::copy_over, from, to), asked_of(action::copy, from, to));
                EXPECT_TRUE(asked_of(action::move_over, from, to).empty());
            } else {
                expect_construction(action::move, from);
                for (const action over : {action::copy_over, action::move_over}) {
                    EXPECT_EQ(asked_of(over, from, to), asked_of_fields(over, from, to));
                }
            }
        }
    }
}

/// How many operations an action asks of values, but for releases.
inline std::size_t operations_in(const std::vector<event>& log) {
    return static_cast<std::size_t>(std::count_if(
        log.begin(), log.end(), [](const event& each) { return each.what != operation::destroy; }));
}

// Catches a first setter that keeps half a record, or takes back a whole one.
template <class Class> void in_a_first_setter_leaves_nothing_or_defaults() {
    if constexpr (lazy<Class>) {
        for_each_field<Class>([](const auto& changed, std::size_t index) {
            using accessor = std::remove_cvref_t<decltype(changed)>;
            using value_type = value_of<accessor, Class>;
            const value_type value = sample_for<Class, accessor>(index, 2);
            const value_type by_default{};

            std::vector<event> first;
            std::vector<event> second;
            Class filled;
            const std::size_t before = counting::live;
            for (std::vector<event>* const log : {&first, &second}) {
                counting::log = log;
                (filled.*changed.set)(by_default);
            }
            counting::log = nullptr;
            const std::size_t of_a_record = counting::live - before;
            const std::size_t to_make_one = operations_in(first) - operations_in(second);

            std::size_t start = 0;
            fail_each_operation<Class>(
                [&] {
                    start = counting::live;
                    return Class();
                },
                [&](Class& object) { (object.*changed.set)(value); },
                [&](const Class& object, const std::vector<event>& log) {
                    const bool made = operations_in(log) >= to_make_one;
                    std::size_t kept = made ? of_a_record : 0;
                    auto expected = texts(Class());
                    if constexpr (is_variant<value_type>) {
                        if (made && value.index() != by_default.index()) {
                            expected[index] = "valueless";
                            --kept; // the default amount
                        }
                    } else if (made && erp::v12::layout::group<value_type> && !lazy<value_type>) {
                        expected[index] = text((object.*changed.get)()); // new in part
                        kept = std::max(kept, counting::live - start);
                    }
                    EXPECT_EQ(counting::live - start, kept) << changed.setter_name;
                    EXPECT_TRUE(same_fields(object, expected)) << changed.setter_name;
                });
        });
    }
}

template <class Class>
inline constexpr test_of_class every_throw[] = {
    {"in_construction_releases_what_was_built", in_construction_releases_what_was_built<Class>},
    {"in_assignment_leaves_a_whole_target", in_assignment_leaves_a_whole_target<Class>},
    {"in_a_first_setter_leaves_nothing_or_defaults",
     in_a_first_setter_leaves_nothing_or_defaults<Class>},
    {"every_walk_keeps_to_the_record", every_walk_keeps_to_the_record<Class>},
};

} // namespace kivo::tests
