#pragma once

#include "model.hpp"

#include <fiscal/nota_fiscal.hpp>

#include <cstddef>
#include <cstdint>

/// The invoice of the benchmarks in the library and in plain structures.
namespace kivo::benchmarks {

using erp::v12::fiscal::nota_fiscal;

/// A realistic invoice with so many items.
nota_fiscal sample_invoice(std::size_t items);

/// The same invoice in plain structures, the source from which every holder is built.
plain_invoice plain_copy(const nota_fiscal& invoice);

// Building takes the fields of the source that hold something and sets them one by one, from the
// leaves up to the empty invoice that is given. Reading visits every field down to the leaves and
// sums up what it finds there: the same for every holder.

/// Lists reserved, groups filled where they stand before they are set.
void build(nota_fiscal& to, const plain_invoice& from);
/// Each group built by itself and then copied into its place.
nota_fiscal build_by_copies(const plain_invoice& from);
std::uint64_t read(const nota_fiscal& from);

void build(plain_invoice& to, const plain_invoice& from);
std::uint64_t read(const plain_invoice& from);

/// The total amounts of all items, read in two ways: the list is got once, or once for each item.
std::uint64_t read_totals(const nota_fiscal& from);
std::uint64_t read_totals_item_by_item(const nota_fiscal& from);

} // namespace kivo::benchmarks
