#pragma once

#include <base/counted.hpp>

namespace kivo::core::v7 {

using decimal = counting::counted<struct decimal_tag, counting::construction::may_throw>;

} // namespace kivo::core::v7
