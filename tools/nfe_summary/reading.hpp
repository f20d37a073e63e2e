#pragma once

#include "page.hpp"

#include <layout/xml.hpp>

#include <string>
#include <vector>

/// What became of the elements of a file that was read.
namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

/// Shows how much of the file is in the invoice, and what is not.
void show_reading(const page& out, const layout::invoice_document& document);

/// `emit/CNPJ: "12" is not a CNPJ`, for each text that its field could not hold.
std::vector<std::string> refusals(const layout::report& told);

/// A line for each other thing in which the invoice as it is written differs from the file, and for
/// what was read as something else or not at all.
std::vector<std::string> changes(const layout::invoice_document& document);

/// The paths in the invoice for which it has no field; elements of a list once, with their number.
std::vector<std::string> paths_without_field(const layout::report& told);

} // namespace nfe_summary
