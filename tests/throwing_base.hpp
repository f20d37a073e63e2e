#pragma once

#include "support/child.hpp"
#include "support/kinds.hpp"
#include "support/samples.hpp"

#include <base/counted.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

/// The library over base values that count, log and throw: it may ask nothing of them but what it
/// has to, and may lose nothing when they fail.
namespace kivo::tests {

using counting::event;
using counting::operation;

template <class Class> class every_throw : public ::testing::Test {};
TYPED_TEST_SUITE_P(every_throw);

/// Runs an operation again and again while the first, second, ... operation of a base value fails,
/// until it comes through. A failure that reaches the caller may lose no value. `prepare` makes
/// what the operation works on; `check` sees the log of a failure.
template <class Class, class Prepare, class Operation, class Check>
void fail_each_operation(Prepare prepare, Operation run, Check check) {
    const auto attempt = [&](std::size_t allowed) {
        const std::size_t start = counting::live;
        auto result = outcome::came_through;
        {
            auto object = prepare();
            std::vector<event> log;
            counting::log = &log;
            counting::allowed = allowed;
            try {
                run(object);
            } catch (const counting::failure&) {
                result = outcome::propagated;
            }
            counting::allowed = std::numeric_limits<std::size_t>::max();
            counting::log = nullptr;
            if (result == outcome::propagated) {
                check(log);
            }
        }
        EXPECT_EQ(counting::live, start) << "operation " << allowed;
        return result;
    };
    const bool ends = may_end<Class>::value();
    // a child takes its time: in a large class some points stand for all
    std::vector<event> log;
    auto object = prepare();
    counting::log = &log;
    run(object);
    counting::log = nullptr;
    const std::size_t step = ends ? log.size() / 50 + 1 : 1;
    auto result = outcome::propagated;
    for (std::size_t allowed = 0; result != outcome::came_through && !::testing::Test::HasFailure();
         allowed += step) {
        result = ends ? in_child([&] { return attempt(allowed); }) : attempt(allowed);
    }
}

/// Whether a value holds a list somewhere.
template <class Value> struct has_list {
    static bool value() {
        bool result = false;
        if constexpr (erp::v12::layout::group<Value>) {
            for_each_field<Value>([&](const auto& field, std::size_t) {
                using inner = erp::v12::layout::value_of<decltype(field.get), Value>;
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

/// First the values were built; then they were released, in reverse.
template <class Class> void expect_released_in_reverse(const std::vector<event>& log) {
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

// Catches a constructor that forgets what it built, or releases it in the wrong order.
TYPED_TEST_P(every_throw, in_construction_releases_what_was_built) {
    const TypeParam source = sample<TypeParam>(1);
    struct pair {
        std::optional<TypeParam> from;
        std::optional<TypeParam> to;
    };
    const auto prepare = [&] {
        pair result;
        result.from.emplace(source);
        return result;
    };
    fail_each_operation<TypeParam>(
        prepare, [](pair& object) { object.to.emplace(); }, expect_released_in_reverse<TypeParam>);
    fail_each_operation<TypeParam>(
        prepare, [](pair& object) { object.to.emplace(*object.from); },
        expect_released_in_reverse<TypeParam>);
    fail_each_operation<TypeParam>(
        prepare, [](pair& object) { object.to.emplace(std::move(*object.from)); },
        // a lazy group moves without asking its values, and is released with them
        [](const std::vector<event>&) {});
}

// Catches an assignment that loses a value on either side.
TYPED_TEST_P(every_throw, in_assignment_loses_nothing) {
    const auto expect_nothing = [](const std::vector<event>&) {};
    for (const TypeParam& source : {TypeParam(), sample<TypeParam>(1)}) {
        for (const TypeParam& target : {TypeParam(), sample<TypeParam>(2)}) {
            const auto prepare = [&] { return std::pair<TypeParam, TypeParam>(target, source); };
            fail_each_operation<TypeParam>(
                prepare, [](auto& object) { object.first = object.second; }, expect_nothing);
            fail_each_operation<TypeParam>(
                prepare, [](auto& object) { object.first = std::move(object.second); },
                expect_nothing);
        }
    }
}

REGISTER_TYPED_TEST_SUITE_P(every_throw, in_construction_releases_what_was_built,
                            in_assignment_loses_nothing);
} // namespace kivo::tests
