#pragma once

#include "survey.hpp"

#include <fiscal/produto.hpp>

#include <string>

namespace nfe_summary {

/// The part of an invoice's or item's line that it tells alone.
std::string csv_row(const layout::node& infnfe, const fiscal::nota_fiscal& invoice,
                    const party& issuer, const party& recipient);
std::string csv_item_row(std::size_t number, const fiscal::produto& item);

/// Writes a line for each invoice, or each item, as RFC 4180 wants it.
void write_csv(const survey& all, bool items);

} // namespace nfe_summary
