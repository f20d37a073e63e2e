#pragma once

#include <base/counted.hpp>

namespace kivo::core::v7 {

using datetime = counting::counted<struct datetime_tag, counting::construction::never_throws>;

} // namespace kivo::core::v7
