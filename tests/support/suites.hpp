#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <span>

/// Tests that are function templates over a class, listed for each class in a source of its
/// subsystem. In typed suites each test would be a class of its own for each class, which takes the
/// compiler as long as all that the tests do.
namespace kivo::tests {

struct test_of_class {
    const char* name;
    void (*run)();
};

struct suite_of_class {
    const char* name; ///< with the class, as `every_class/grupo_fcp`
    std::span<const test_of_class> tests;
};

/// Hands suites to GoogleTest before it runs.
class registered_suites {
public:
    registered_suites(std::initializer_list<suite_of_class> suites) {
        for (const suite_of_class& suite : suites) {
            for (const test_of_class& test : suite.tests) {
                ::testing::RegisterTest(
                    suite.name, test.name, nullptr, nullptr, __FILE__, __LINE__,
                    [run = test.run]() -> ::testing::Test* { return new running(run); });
            }
        }
    }

private:
    class running : public ::testing::Test {
    public:
        explicit running(void (*run)()) : run_(run) {}
        void TestBody() override { run_(); }

    private:
        void (*run_)();
    };
};

} // namespace kivo::tests
