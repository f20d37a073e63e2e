#include "support/same_fields.hpp"
#include "support/samples.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <thread>
#include <utility>

namespace kivo::tests {

using erp::v12::fiscal::nota_fiscal;

// Catches, under the thread sanitizer, whatever two invoices would share behind the scenes.
TEST(threads, work_on_their_own_copies) {
    const auto original = sample<nota_fiscal>(1);
    const auto work = [](nota_fiscal mine, std::size_t number) {
        for (std::size_t round = 0; round < 20; ++round) {
            auto copy = mine;
            copy.set_natureza_operacao(sample<std::string>(number + round));
            copy.set_produtos({copy.get_produtos().front()});
            mine = std::move(copy);
        }
        EXPECT_EQ(mine.get_natureza_operacao(), sample<std::string>(number + 19));
    };
    std::thread first(work, original, 1000);
    std::thread second(work, original, 2000);
    first.join();
    second.join();
    EXPECT_TRUE(same_fields(original, sample<nota_fiscal>(1)));
}

// Catches an owner that stays behind when an invoice is handed to another thread.
TEST(threads, hand_invoices_over) {
    auto invoice = sample<nota_fiscal>(1);
    const auto expected = texts(invoice);
    std::thread([given = std::move(invoice), &expected]() mutable {
        EXPECT_TRUE(same_fields(given, expected));
        given = nota_fiscal();
    }).join();
    invoice = sample<nota_fiscal>(1);
    EXPECT_TRUE(same_fields(invoice, expected));
}

} // namespace kivo::tests
