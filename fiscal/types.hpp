#pragma once

#include <base/cnpj.hpp>
#include <base/cpf.hpp>
#include <base/date.hpp>
#include <base/datetime.hpp>
#include <base/decimal.hpp>
#include <base/optional.hpp>
#include <base/variant.hpp>

/// The base types under the names that the classes use.
namespace kivo::erp::v12::fiscal {

using kivo::core::v7::date;
using kivo::core::v7::datetime;
using kivo::core::v7::decimal;
using kivo::core::v7::monostate;
using kivo::core::v7::optional;
using kivo::core::v7::variant;
using kivo::erp::v12::cnpj;
using kivo::erp::v12::cpf;

} // namespace kivo::erp::v12::fiscal
