#pragma once

#include "allocations.hpp"
#include "child.hpp"
#include "tried.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>

/// Every allocation of an operation fails once.
namespace kivo::tests {

/// How a failure has to end.
enum class promise {
    propagates,
    ends,   ///< the process, by std::terminate
    either, ///< ends in a copy that may not fail, propagates elsewhere
};

/// Runs an operation again and again while its first, second, ... allocation fails, alone or with
/// all that follow, until it comes through. A failure that reaches the caller may lose nothing;
/// `check` sees what it left. `prepare` makes what the operation works on.
template <class Prepare, class Operation, class Check>
void fail_each_allocation(promise promised, Prepare prepare, Operation operation, Check check) {
    using failing = allocation_limit::failing;
    const auto attempt = [&](std::size_t allowed, failing kind) {
        const std::size_t start = live_blocks();
        auto result = outcome::came_through;
        {
            auto object = prepare();
            const std::size_t before = live_blocks();
            bool reached = false;
            {
                allocation_limit limit(allowed, kind);
                try {
                    operation(object);
                } catch (const std::bad_alloc&) {
                    result = outcome::propagated;
                }
                reached = limit.was_reached();
            }
            EXPECT_EQ(result == outcome::propagated, reached) << "failure " << allowed;
            if (reached) {
                check(object, before);
            }
        }
        EXPECT_EQ(live_blocks(), start) << "failure " << allowed;
        return result;
    };
    // a child takes its time, and in a large class most points are of one kind: unless all are
    // asked for, some of them stand for the rest
    auto object = prepare();
    const std::size_t start = taken_blocks();
    operation(object);
    const bool all =
        promised == promise::propagates || std::getenv("KIVO_EVERY_FAILURE") != nullptr;
    const std::size_t step = all ? 1 : (taken_blocks() - start) / 50 + 1;
    for (const failing kind : {failing::once, failing::from_then_on}) {
        auto result = outcome::propagated;
        for (std::size_t allowed = 0;
             result != outcome::came_through && !::testing::Test::HasFailure(); allowed += step) {
            if (promised == promise::propagates) {
                result = attempt(allowed, kind);
            } else {
                result = in_child([&] { return attempt(allowed, kind); });
                EXPECT_FALSE(promised == promise::ends && result == outcome::propagated) << allowed;
            }
            tried("failing allocations") += result == outcome::came_through ? 0 : 1;
        }
    }
}

} // namespace kivo::tests
