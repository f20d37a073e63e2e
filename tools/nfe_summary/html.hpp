#pragma once

#include "survey.hpp"

#include <string>

/// An invoice as a page for a browser and for paper, of itself alone: it loads nothing and runs
/// nothing.
namespace nfe_summary {

/// The page of an invoice with what is told of it: the fields are where the printed form of its
/// model, DANFE or consumer's receipt, has them. One without legal force is marked all over.
std::string html_of(const layout::tree& tree, const layout::invoice_document& document,
                    const surveyed& told);

} // namespace nfe_summary
