#pragma once

#include "allocations.hpp"
#include "child.hpp"
#include "reference_to.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <new>
#include <optional>
#include <string>

/// Whatever may fail in an operation fails once.
namespace kivo::tests {

/// How a failure has to end.
enum class promise {
    propagates,
    ends,   ///< the process, by std::terminate
    either, ///< ends in a copy that may not fail, propagates elsewhere
};

/// Goes on with `attempt(0)`, `attempt(1)`, ... until it comes through: how many of so many steps
/// are let through before one fails. What may end the process runs in a child.
void fail_each_step(promise promised, const std::string& name, std::size_t steps,
                    reference_to<outcome(std::size_t)> attempt);

/// Runs an operation again and again while its first, second, ... step of one sort fails, until it
/// comes through. A failure that reaches the caller may lose nothing. `prepare` makes what the
/// operation works on; `check` sees what a failure left of it, and the evidence.
///
/// A trial lets so many steps through while it goes on. Its class names what is thrown and what is
/// counted; it tells what is live, whether the failure was reached, how many steps there were, and
/// what a check may want to know. `how` is what it wants to know itself.
template <class Trial, class Object, class... How>
void fail_each_of(promise promised, reference_to<Object()> prepare,
                  reference_to<void(Object&)> operation,
                  reference_to<void(Object&, const typename Trial::evidence_type&)> check,
                  How... how) {
    std::size_t steps = 0;
    {
        auto object = prepare();
        Trial whole(std::numeric_limits<std::size_t>::max(), how...);
        operation(object);
        whole.end();
        steps = whole.steps();
    }
    fail_each_step(promised, Trial::name, steps, [&](std::size_t allowed) {
        const std::size_t start = Trial::live();
        auto result = outcome::came_through;
        {
            auto object = prepare();
            Trial trial(allowed, how...);
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
    });
}

/// The same, of functions that need not be alike: the compiler goes through it once for all that
/// work on the same.
template <class Trial, class Prepare, class Operation, class Check, class... How>
void fail_each(promise promised, const Prepare& prepare, const Operation& operation,
               const Check& check, How... how) {
    fail_each_of<Trial, decltype(prepare())>(promised, prepare, operation, check, how...);
}

/// An allocation that fails, alone or with all that follow. The evidence is how many blocks were
/// live before the operation.
class failing_allocation {
public:
    using failure = std::bad_alloc;
    using evidence_type = std::size_t;
    static constexpr const char* name = "failing allocations";
    static std::size_t live() { return live_blocks(); }

    failing_allocation(std::size_t allowed, allocation_limit::failing kind)
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
void fail_each_allocation(promise promised, const Prepare& prepare, const Operation& operation,
                          const Check& check) {
    for (const auto kind :
         {allocation_limit::failing::once, allocation_limit::failing::from_then_on}) {
        fail_each<failing_allocation>(promised, prepare, operation, check, kind);
    }
}

} // namespace kivo::tests
