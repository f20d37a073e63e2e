#pragma once

#include "page.hpp"
#include "survey.hpp"

#include <string>

namespace nfe_summary {

/// By what invoices are summed.
enum class grouping { none, issuer, recipient, month, cfop, ncm };

/// Shows a line for each invoice and what is to be told of it, and their sums: those that count
/// apart from those that do not.
void show_overview(const page& out, const survey& all);

/// Shows a line for each issuer, month and so on instead.
void show_groups(const page& out, const survey& all, grouping by);

/// What --by takes.
inline constexpr const char* groupings = "issuer recipient month cfop ncm";
grouping grouping_of(const std::string& word);

} // namespace nfe_summary
