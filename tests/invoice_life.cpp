#include "support/failures.hpp"
#include "support/samples.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <utility>

namespace kivo::tests {

using erp::v12::fiscal::nota_fiscal;

// Catches what one operation leaves behind for another to lose.
TEST(invoice_life, loses_nothing_at_any_failure) {
    const auto live = [](const std::vector<erp::v12::fiscal::produto>& items) {
        auto invoice = sample<nota_fiscal>(1);
        nota_fiscal copy = invoice;
        nota_fiscal other = std::move(copy);
        copy = invoice; // over one that was moved from
        nota_fiscal target;
        target = invoice; // over an empty one
        target = std::move(copy);
        for_each_field<nota_fiscal>([&](const auto& field, std::size_t) {
            [[maybe_unused]] const auto value = (target.*field.get)();
        });
        invoice.set_produtos(items);
        other = invoice; // over a full one
        other.set_produtos({});
    };
    fail_each_allocation(
        promise::either, [] { return std::vector{sample<erp::v12::fiscal::produto>(2)}; }, live,
        [](const auto&, std::size_t) {});
}

} // namespace kivo::tests
