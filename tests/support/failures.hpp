#pragma once

#include "allocations.hpp"
#include "child.hpp"
#include "tried.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>
#include <optional>

/// Whatever may fail in an operation fails once.
namespace kivo::tests {

/// How a failure has to end.
enum class promise {
    propagates,
    ends,   ///< the process, by std::terminate
    either, ///< ends in a copy that may not fail, propagates elsewhere
};

/// Runs an operation again and again while its first, second, ... step of one sort fails, until it
/// comes through. A failure that reaches the caller may lose nothing. `prepare` makes what the
/// operation works on; `check` sees what a failure left of it, and the evidence.
///
/// A trial lets so many steps through while it goes on. Its class names what is thrown and what is
/// counted; it tells what is live, whether the failure was reached, how many steps there were, and
/// what a check may want to know.
template <class Trial, class Prepare, class Operation, class Check>
void fail_each(promise promised, Prepare prepare, Operation operation, Check check) {
    const auto attempt = [&](std::size_t allowed) {
        const std::size_t start = Trial::live();
        auto result = outcome::came_through;
        {
            auto object = prepare();
            Trial trial(allowed);
            try {
                operation(object);
            } catch (const typename Trial::failure&) {
                result = outcome::propagated;
            }
            trial.end();
            EXPECT_EQ(result == outcome::propagated, trial.was_reached()) << "failure " << allowed;
            if (trial.was_reached()) {
                check(object, trial.evidence());
            }
        }
        EXPECT_EQ(Trial::live(), start) << "failure " << allowed;
        return result;
    };
    auto object = prepare();
    Trial whole(std::numeric_limits<std::size_t>::max());
    operation(object);
    whole.end();
    // a child takes its time, and in a large class most points are of one kind: unless all are
    // asked for, some of them stand for the rest
    const bool all =
        promised == promise::propagates || std::getenv("KIVO_EVERY_FAILURE") != nullptr;
    const std::size_t step = all ? 1 : whole.steps() / 100 + 1;
    auto result = outcome::propagated;
    for (std::size_t allowed = 0; result != outcome::came_through && !::testing::Test::HasFailure();
         allowed += step) {
        if (promised == promise::propagates) {
            result = attempt(allowed);
        } else {
            result = in_child([&] { return attempt(allowed); });
            EXPECT_FALSE(promised == promise::ends && result == outcome::propagated) << allowed;
        }
        tried(Trial::name) += result == outcome::came_through ? 0 : 1;
    }
}

/// An allocation that fails, alone or with all that follow. The evidence is how many blocks were
/// live before the operation.
template <allocation_limit::failing kind> class failing_allocation {
public:
    using failure = std::bad_alloc;
    static constexpr const char* name = "failing allocations";
    static std::size_t live() { return live_blocks(); }

    explicit failing_allocation(std::size_t allowed)
        : before_(live_blocks()), taken_(taken_blocks()) {
        limit_.emplace(allowed, kind);
    }
    void end() {
        reached_ = limit_->was_reached();
        limit_.reset();
        taken_ = taken_blocks() - taken_;
    }
    bool was_reached() const { return reached_; }
    std::size_t steps() const { return taken_; }
    std::size_t evidence() const { return before_; }

private:
    std::size_t before_;
    std::size_t taken_;
    bool reached_ = false;
    std::optional<allocation_limit> limit_;
};

template <class Prepare, class Operation, class Check>
void fail_each_allocation(promise promised, Prepare prepare, Operation operation, Check check) {
    using failing = allocation_limit::failing;
    fail_each<failing_allocation<failing::once>>(promised, prepare, operation, check);
    fail_each<failing_allocation<failing::from_then_on>>(promised, prepare, operation, check);
}

} // namespace kivo::tests
