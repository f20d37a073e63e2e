#include "expect.hpp"

#include <fiscal/tipo_emissao.hpp>
#include <fiscal/types.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// Arbitrary bytes as the text of a value. FUZZED_VALUE is the value's type.
namespace kivo::tests {

namespace {

using namespace erp::v12::fiscal;
using value = FUZZED_VALUE;
using to_value = core::v7::value_converter<value>;
using to_chars = core::v7::chars_converter<value>;

/// Of all texts that are read, only a decimal's may say more than the value holds: leading zeros,
/// and the sign of zero.
std::string canonical(std::string_view text) {
    if constexpr (std::is_same_v<value, decimal>) {
        const bool zero = text.find_first_of("123456789") == text.npos;
        const std::string_view sign = text.starts_with('-') && !zero ? "-" : "";
        text.remove_prefix(text.starts_with('-') ? 1 : 0);
        while (text.size() > 1 && text[0] == '0' && text[1] != '.') {
            text.remove_prefix(1);
        }
        return std::string(sign) + std::string(text);
    } else {
        return std::string(text);
    }
}

/// Whether the converter tells that it writes a text as it is.
template <class Converter> bool gives_back(std::string_view text) {
    if constexpr (requires { Converter::gives_back(text); }) {
        return Converter::gives_back(text);
    } else {
        return false;
    }
}

void try_text(const std::vector<char>& text) {
    const value before{};
    value read = before;
    const auto result = to_value::make_value(read, text.data(), text.size());
    if (result != core::v7::conversion_success) {
        expect(result == core::v7::conversion_invalid, "refused for another reason");
        expect(read == before, "refused, but changed");
        return;
    }
    char buffer[64];
    std::size_t length = sizeof buffer;
    expect(to_chars::make_chars(buffer, length, read) == core::v7::conversion_success,
           "read, but not written");
    const std::string_view given(text.data(), text.size());
    const std::string_view written(buffer, length);
    expect(written == canonical(given), "written otherwise than it was read");
    expect(!gives_back<to_value>(given) || written == given, "not given back");
}

} // namespace

} // namespace kivo::tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // an emission type is told by its first character, which callers have to bring along
    if (size > 0 || !std::is_enum_v<kivo::tests::value>) {
        // in a block of its own, behind which nothing may be read
        kivo::tests::try_text(std::vector<char>(data, data + size));
    }
    return 0;
}
