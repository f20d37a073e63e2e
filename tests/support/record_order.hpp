#pragma once

#include "samples.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// In which order the records hold the fields. Copies and assignments walk it, and so do their
/// failures: it shows in what an assignment that failed leaves behind.
namespace kivo::erp::v12::fiscal {

class combustiveis;
class destinatario;
class emitente;
class endereco;
class grupo_repasse_icms_st;
class grupo_tributacao_icms_53;
class informacoes_pagamento;
class nota_fiscal;
class produto;
class total_nfe_icms;
class tributacao_ipi;
class tributacao_normal_icms_90;
class tributacao_normal_icms_900;

} // namespace kivo::erp::v12::fiscal

namespace kivo::tests {

/// For each field of the record, its place in the layout map; without an entry here, both have the
/// same order.
template <class Class> inline constexpr std::array<int, 0> record_order{};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::combustiveis>{0, 1, 3, 4, 5, 2, 6, 7, 8};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::destinatario>{6, 0, 1, 3, 4,
                                                                         5, 9, 7, 2, 8};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::emitente>{0, 1, 2, 3, 4, 5, 6, 9, 7, 8};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::endereco>{7, 0, 1, 2, 3, 9, 4, 6, 5, 8};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::grupo_repasse_icms_st>{0, 1, 2, 3, 4,
                                                                                  5, 7, 8, 6, 9};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::grupo_tributacao_icms_53>{0, 1, 3, 4, 2};
template <> inline constexpr std::array record_order<erp::v12::fiscal::informacoes_pagamento>{1, 0};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::nota_fiscal>{
    4,  5,  6,  0,  8,  7,  1,  11, 26, 17, 2,  9,  10, 3,  18, 19, 14, 15, 16, 13, 31,
    32, 28, 27, 22, 23, 24, 25, 33, 35, 34, 37, 38, 12, 21, 20, 29, 30, 39, 36, 40};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::produto>{
    0,  1,  2,  3,  10, 4,  9,  5,  6,  7,  11, 12, 13, 14, 15, 16, 17, 18, 19, 21, 22, 23,
    26, 27, 32, 41, 24, 34, 35, 36, 37, 29, 30, 31, 25, 20, 28, 8,  40, 33, 38, 39, 42};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::total_nfe_icms>{
    19, 2,  6,  22, 23, 21, 27, 28, 7, 0,  1,  17, 8,  9,  10,
    26, 18, 20, 24, 25, 29, 3,  4,  5, 11, 12, 13, 14, 15, 16};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::tributacao_ipi>{0, 2, 3, 4, 5,
                                                                           1, 6, 7, 8, 9};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::tributacao_normal_icms_90>{0, 2, 1,
                                                                                      3, 4, 5};
template <>
inline constexpr std::array record_order<erp::v12::fiscal::tributacao_normal_icms_900>{0, 2, 1, 3,
                                                                                       4};

/// The indices of `for_each_field`, in record order.
template <class Class> std::vector<std::size_t> fields_in_record_order() {
    std::vector<std::size_t> result(record_order<Class>.begin(), record_order<Class>.end());
    if (result.empty()) {
        for_each_field<Class>([&](const auto&, std::size_t index) { result.push_back(index); });
    }
    return result;
}

/// What a failed assignment leaves in an eager object, by the texts of its fields: in record order
/// new ones, one that may be in between, and old ones.
template <class Class>
void expect_new_then_old(const std::vector<std::string>& found, const std::vector<std::string>& old,
                         const std::vector<std::string>& fresh) {
    bool failed = false;
    for (const std::size_t index : fields_in_record_order<Class>()) {
        if (failed) {
            EXPECT_EQ(found[index], old[index]) << "field " << index;
        } else if (found[index] != fresh[index]) {
            failed = true;
        }
    }
}

} // namespace kivo::tests
