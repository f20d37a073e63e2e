#pragma once

#include <base/counted.hpp>

namespace kivo::erp::v12 {

using cpf = counting::counted<struct cpf_tag, counting::construction::none>;

} // namespace kivo::erp::v12
