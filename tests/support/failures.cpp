#include "failures.hpp"

#include "tried.hpp"

#include <cstdlib>

namespace kivo::tests {

void fail_each_step(promise promised, const std::string& name, std::size_t steps,
                    reference_to<outcome(std::size_t)> attempt) {
    // a child takes its time, and in a large class most points are of one kind: unless all are
    // asked for, some of them stand for the rest
    const bool all =
        promised == promise::propagates || std::getenv("KIVO_EVERY_FAILURE") != nullptr;
    const std::size_t stride = all ? 1 : steps / 100 + 1;
    auto result = outcome::propagated;
    for (std::size_t allowed = 0; result != outcome::came_through && !::testing::Test::HasFailure();
         allowed += stride) {
        if (promised == promise::propagates) {
            result = attempt(allowed);
        } else {
            result = in_child([&] { return attempt(allowed); });
            EXPECT_FALSE(promised == promise::ends && result == outcome::propagated) << allowed;
        }
        tried(name) += result == outcome::came_through ? 0 : 1;
    }
}

} // namespace kivo::tests
