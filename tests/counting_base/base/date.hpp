#pragma once

#include <base/counted.hpp>

namespace kivo::core::v7 {

using date = counting::counted<struct date_tag, counting::construction::never_throws>;

} // namespace kivo::core::v7
