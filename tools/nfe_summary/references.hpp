#pragma once

#include <fiscal/nota_fiscal.hpp>

#include <string>
#include <vector>

namespace nfe_summary {

namespace fiscal = kivo::erp::v12::fiscal;

/// The documents that an invoice refers to, each in words.
std::vector<std::string> references(const fiscal::nota_fiscal& invoice);

} // namespace nfe_summary
