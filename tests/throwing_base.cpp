// The library over base values that count, log and throw: it may ask nothing of them but what it
// has to, and may lose nothing when they fail.

#include "support/classes.hpp"
#include "support/samples.hpp"

#include <base/counted.hpp>

#include <fiscal/endereco.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace kivo::tests {

using counting::event;
using counting::operation;

static_assert(!std::is_default_constructible_v<erp::v12::cpf>, "never asked for");

template <class Class> class every_throw : public ::testing::Test {};
TYPED_TEST_SUITE_P(every_throw);

/// Runs an operation again and again while the first, second, ... operation of a base value fails,
/// until it comes through. Each failure has to reach the caller and may lose no value.
/// `prepare` makes what the operation works on; `check` sees the log of a failure.
template <class Prepare, class Operation, class Check>
void fail_each_operation(Prepare prepare, Operation run, Check check) {
    bool thrown = true;
    for (std::size_t allowed = 0; thrown; ++allowed) {
        thrown = false;
        const std::size_t start = counting::live;
        {
            auto object = prepare();
            std::vector<event> log;
            counting::log = &log;
            counting::allowed = allowed;
            try {
                run(object);
            } catch (const counting::failure&) {
                thrown = true;
            }
            counting::allowed = std::numeric_limits<std::size_t>::max();
            counting::log = nullptr;
            if (thrown) {
                check(log);
            }
        }
        EXPECT_EQ(counting::live, start) << "operation " << allowed;
    }
}

/// Copies or moves came first; then, in reverse, their releases.
void expect_released_in_reverse(const std::vector<event>& log) {
    std::vector<std::uint64_t> built;
    std::vector<std::uint64_t> released;
    for (const event& entry : log) {
        (entry.what == operation::destroy ? released : built).push_back(entry.number);
    }
    std::reverse(released.begin(), released.end());
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
    fail_each_operation(
        prepare, [](pair& object) { object.to.emplace(); }, expect_released_in_reverse);
    if constexpr (!std::is_nothrow_copy_constructible_v<TypeParam>) {
        fail_each_operation(
            prepare, [](pair& object) { object.to.emplace(*object.from); },
            expect_released_in_reverse);
    }
    if constexpr (!std::is_nothrow_move_constructible_v<TypeParam>) {
        fail_each_operation(
            prepare, [](pair& object) { object.to.emplace(std::move(*object.from)); },
            expect_released_in_reverse);
    }
}

// Catches an assignment that loses a value on either side.
TYPED_TEST_P(every_throw, in_assignment_loses_nothing) {
    const auto expect_nothing = [](const std::vector<event>&) {};
    for (const TypeParam& source : {TypeParam(), sample<TypeParam>(1)}) {
        for (const TypeParam& target : {TypeParam(), sample<TypeParam>(2)}) {
            if constexpr (!std::is_nothrow_copy_assignable_v<TypeParam>) {
                fail_each_operation([&] { return std::optional<TypeParam>(target); },
                                    [&](auto& object) { *object = source; }, expect_nothing);
            }
            if constexpr (!std::is_nothrow_move_assignable_v<TypeParam>) {
                fail_each_operation([&] { return std::pair<TypeParam, TypeParam>(target, source); },
                                    [&](auto& object) { object.first = std::move(object.second); },
                                    expect_nothing);
            }
        }
    }
}

REGISTER_TYPED_TEST_SUITE_P(every_throw, in_construction_releases_what_was_built,
                            in_assignment_loses_nothing);
INSTANTIATE_TYPED_TEST_SUITE_P(parties, every_throw, parties);

// Catches a copy that touches a value which is not there.
TEST(absent_values, ask_nothing_of_their_type) {
    const erp::v12::fiscal::emitente empty;
    erp::v12::fiscal::emitente target;
    std::vector<event> log;
    counting::log = &log;
    {
        auto copy = empty;
        auto moved = std::move(copy);
        target = moved;
        target = std::move(moved);
        target.set_cnpj(empty.get_cnpj());
    }
    counting::log = nullptr;
    EXPECT_TRUE(log.empty());
}

} // namespace kivo::tests
