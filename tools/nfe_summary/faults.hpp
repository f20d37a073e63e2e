#pragma once

#include "source.hpp"

#include <string>
#include <vector>

namespace nfe_summary {

/// What the layout does not allow in an invoice, a line for each: `ide/mod: "56"; 55 or 65`.
std::vector<std::string> faults_of(const layout::tree& tree);

} // namespace nfe_summary
