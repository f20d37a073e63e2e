#pragma once

#include "page.hpp"

#include <layout/node.hpp>

#include <string>
#include <vector>

/// What became of the elements of a file that was read.
namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

/// Shows how much of the file is in the invoice, and what is not.
void show_reading(const page& out, const layout::reading& result);

/// `emit/CNPJ: "12" is not a CNPJ`, for each text that its field could not hold.
std::vector<std::string> refusals(const layout::reading& result);

/// The paths in the invoice for which it has no field; elements of a list once, with their number.
std::vector<std::string> paths_without_field(const layout::reading& result);

/// Counts what a file holds and its invoice does not; empty when that is nothing.
std::string problems(const layout::reading& result);

} // namespace nfe_summary
