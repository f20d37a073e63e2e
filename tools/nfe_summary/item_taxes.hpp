#pragma once

#include "values.hpp"

#include <fiscal/nota_fiscal.hpp>

#include <string>

/// What an item pays, wherever its taxes stand in the layout.
namespace nfe_summary {

/// A tax of an item.
struct item_tax {
    std::string situation; ///< its code; empty without the tax
    optional<fiscal::decimal> amount;
    optional<fiscal::decimal> base = {};
    optional<fiscal::decimal> rate = {}; ///< in percent
};

/// ICMS on the operation itself, not that of the substitution, or the ISSQN of a service.
item_tax tax_on_operation(const fiscal::produto& item);
item_tax ipi_of(const fiscal::produto& item);

decimal_sum pis_of(const fiscal::produto& item);
decimal_sum cofins_of(const fiscal::produto& item);
decimal_sum ibs_of(const fiscal::produto& item);
decimal_sum cbs_of(const fiscal::produto& item);

/// Codes with the zeros in front.
std::string ncm_of(const fiscal::produto& item);
std::string cfop_of(const fiscal::produto& item);

/// Whether the item is part of the invoice's total.
bool counts_in_total(const fiscal::produto& item);

} // namespace nfe_summary
