#include "tried.hpp"

#include <gtest/gtest.h>

#include <iostream>
#include <map>

namespace kivo::tests {

namespace {

std::map<std::string, std::size_t>& counts() {
    static std::map<std::string, std::size_t> all;
    return all;
}

class printer : public ::testing::Environment {
    void TearDown() override {
        for (const auto& [what, count] : counts()) {
            std::cout << "tried: " << count << ' ' << what << '\n';
        }
    }
};

const ::testing::Environment* const registered =
    ::testing::AddGlobalTestEnvironment(new printer); // NOLINT: GoogleTest owns it

} // namespace

std::size_t& tried(const std::string& what) { return counts()[what]; }

} // namespace kivo::tests
