#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

/// Runs what may end the process in a child of it.
namespace kivo::tests {

enum class outcome {
    came_through, ///< nothing failed
    propagated,   ///< the failure reached the caller
    ended,        ///< the failure ended the process
};

/// Runs `attempt`, which returns an outcome, and tells how it went; failed expectations of the
/// child count here.
template <class Attempt> outcome in_child(Attempt attempt) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        // the message of a process that ends is no news
        if (std::freopen("/dev/null", "w", stderr) == nullptr) {
            std::_Exit(100);
        }
        const outcome result = attempt();
        std::fflush(stdout);
        std::_Exit(::testing::Test::HasFailure() ? 100 : static_cast<int>(result));
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT) {
        return outcome::ended;
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) < 100)
        << "in the child, status " << status;
    return static_cast<outcome>(WEXITSTATUS(status));
}

} // namespace kivo::tests
