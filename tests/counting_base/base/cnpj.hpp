#pragma once

#include <base/counted.hpp>

namespace kivo::erp::v12 {

using cnpj = counting::counted<struct cnpj_tag, counting::construction::may_throw>;

} // namespace kivo::erp::v12
