#include <fiscal/tipo_emissao.hpp>

namespace kivo::core::v7 {

using erp::v12::fiscal::tipo_emissao;

conversion_result chars_converter<tipo_emissao>::make_chars(char* buffer, std::size_t& length,
                                                            tipo_emissao value) {
    if (length == 0) {
        length = 1;
        return conversion_buffer_too_small;
    }
    if (value > tipo_emissao::contingencia_offline) {
        return conversion_invalid;
    }
    buffer[0] = "12345679"[static_cast<std::uint32_t>(value)];
    length = 1;
    return conversion_success;
}

conversion_result value_converter<tipo_emissao>::make_value(tipo_emissao& value, const char* text,
                                                            std::size_t length) {
    if (length > 1) {
        return conversion_invalid;
    }
    const char code = text[0];
    if (code >= '1' && code <= '7') {
        value = static_cast<tipo_emissao>(code - '1');
    } else if (code == '9') {
        value = tipo_emissao::contingencia_offline;
    } else {
        return conversion_invalid;
    }
    return conversion_success;
}

} // namespace kivo::core::v7
