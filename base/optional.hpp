#pragma once

#include <optional>

namespace kivo::core::v7 {

using std::optional;

} // namespace kivo::core::v7
