#pragma once

#include <fiscal/export.hpp>

#include <base/converter.hpp>

#include <cstddef>
#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// How the invoice was issued (tpEmis). The values number the layout's codes in their order: there
/// is no code 8, and the converters below know the code of each value.
enum class tipo_emissao : std::uint32_t {
    normal = 0,               ///< code 1: regular issue
    contingencia_fs_ia = 1,   ///< code 2: contingency, security form of the issuer's printer
    regime_especial_nff = 2,  ///< code 3: special regime of the Nota Fiscal Fácil
    contingencia_epec = 3,    ///< code 4: contingency, announced by a prior event (EPEC)
    contingencia_fs_da = 4,   ///< code 5: contingency, security form for the auxiliary document
    contingencia_svc_an = 5,  ///< code 6: contingency, virtual service of the national environment
    contingencia_svc_rs = 6,  ///< code 7: contingency, virtual service of Rio Grande do Sul
    contingencia_offline = 7, ///< code 9: contingency, offline
};

} // namespace kivo::erp::v12::fiscal

namespace kivo::core::v7 {

/// Writes the one-character code. With no room it asks for 1; a number that is no emission type is
/// invalid, and leaves the length as it was.
template <> struct KIVO_ERP_FISCAL_EXPORT chars_converter<erp::v12::fiscal::tipo_emissao> {
    static conversion_result make_chars(char* buffer, std::size_t& length,
                                        erp::v12::fiscal::tipo_emissao value);
};

/// Reads the one-character code. The first character is read even when the length is 0, so it has
/// to be readable; a longer text is invalid unread.
template <> struct KIVO_ERP_FISCAL_EXPORT value_converter<erp::v12::fiscal::tipo_emissao> {
    static conversion_result make_value(erp::v12::fiscal::tipo_emissao& value, const char* text,
                                        std::size_t length);
};

} // namespace kivo::core::v7
