#include <base/counted.hpp>

#include <fiscal/emitente.hpp>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

namespace kivo::tests {

static_assert(!std::is_default_constructible_v<erp::v12::cpf>, "never asked for");

// Catches a copy that touches a value which is not there.
TEST(absent_values, ask_nothing_of_their_type) {
    const erp::v12::fiscal::emitente empty;
    erp::v12::fiscal::emitente target;
    std::vector<counting::event> log;
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
