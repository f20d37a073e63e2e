#pragma once

#include <layout/parties.hpp>

#include <gtest/gtest.h>

/// Every class of the library, by subsystem, for the typed suites.
namespace kivo::tests {

using parties = ::testing::Types<erp::v12::fiscal::endereco, erp::v12::fiscal::emitente,
                                 erp::v12::fiscal::destinatario, erp::v12::fiscal::local_entrega>;

/// No record until a field is stored: the classes that can swap.
template <class Class>
concept lazy = requires(Class& left, Class& right) {
    left.swap(right);
};

/// One pointer to a record; the other classes hold their fields in place.
template <class Class>
concept handle = sizeof(Class) == sizeof(void*) && !std::is_trivially_copyable_v<Class>;

} // namespace kivo::tests
