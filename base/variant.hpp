#pragma once

#include <variant>

namespace kivo::core::v7 {

using std::monostate;
using std::variant;

} // namespace kivo::core::v7
