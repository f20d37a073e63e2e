#pragma once

#include <fiscal/produto.hpp>

#include <cstddef>
#include <string>
#include <variant>

namespace kivo::tests {

/// Which alternatives an item's tax stands in: of the outer choice, and of the ICMS.
inline std::string tax_of(const erp::v12::fiscal::produto& item) {
    using erp::v12::fiscal::produto;
    const auto tax = item.get_tributacao();
    if (!tax) {
        return "absent";
    }
    if (const auto* const icms = std::get_if<produto::icms>(&*tax)) {
        return "ICMS " + std::to_string(static_cast<std::ptrdiff_t>(icms->index()));
    }
    return tax->valueless_by_exception() ? "nothing" : "ISSQN";
}

} // namespace kivo::tests
