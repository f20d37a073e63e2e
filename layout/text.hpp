#pragma once

#include <layout/map.hpp>

#include <fiscal/types.hpp>

#include <base/converter.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace kivo::erp::v12::layout {

/// The characters of a value, in place unless they are many.
class value_chars {
public:
    std::string_view text() const { return text_; }

    /// Those of a text that outlives this.
    bool show(std::string_view text) {
        text_ = text;
        return true;
    }
    /// Those of a number as the layout writes it.
    bool put_number(std::uint64_t number, const form& how);
    /// Those that `make_chars(char*, std::size_t&)` makes, which answers as a converter does. Tells
    /// whether there are any. Throws std::length_error where no buffer is large enough.
    template <class MakeChars> bool put(MakeChars make_chars) {
        char* chars = chars_;
        for (std::size_t room = sizeof chars_; room <= most; room = make_larger(chars, room)) {
            std::size_t length = room;
            const int result = make_chars(chars, length);
            if (result != core::v7::conversion_buffer_too_small) {
                text_ = {chars, length};
                return result == core::v7::conversion_success;
            }
        }
        throw std::length_error("a value with a text of more than 65536 characters");
    }

private:
    static constexpr std::size_t most = 65536;

    std::size_t make_larger(char*& chars, std::size_t room);

    char chars_[64];
    std::string large_;
    std::string_view text_;
};

/// The largest number that a coded value holds.
template <coded_value Value> constexpr std::uint64_t largest_number() {
    if constexpr (std::is_enum_v<Value>) {
        return std::numeric_limits<std::underlying_type_t<Value>>::max();
    } else {
        return std::numeric_limits<Value>::max();
    }
}

/// Puts the layout's text of a value. Tells whether there is one: a date never set has none, and
/// what is left out at its default has none there.
template <single_value Value>
bool put_text(value_chars& chars, const Value& value, const form& how) {
    if constexpr (std::same_as<Value, std::string>) {
        return chars.show(value) && (how.even_empty || !value.empty());
    } else if constexpr (amount_structure<Value>) {
        return put_text(chars, value.valor, how);
    } else if constexpr (convertible_value<Value>) {
        const bool any = chars.put([&](char* buffer, std::size_t& length) {
            return core::v7::chars_converter<Value>::make_chars(buffer, length, value);
        });
        return any ? !how.omit_default || chars.text() != "0" : how.even_empty && chars.show("");
    } else {
        const auto number = static_cast<std::uint64_t>(value);
        return (number != 0 || !how.omit_default) && chars.put_number(number, how);
    }
}

/// A text of digits in one of the form's widths as a number up to the given one; absent for any
/// other text.
core::v7::optional<std::uint64_t> number_of(std::string_view text, std::uint64_t largest,
                                            const form& how);

/// Reads a value from its whole text. A text that the value cannot hold, or that has not the form
/// of its element, is refused, and the value stays as it was. A text that is read may still be
/// another than the value's own: that of a number may have more zeros in front.
template <single_value Value>
bool read_text(Value& value, std::string_view text, const form& how = {}) {
    if constexpr (std::same_as<Value, std::string>) {
        value = text;
        return how.even_empty || !text.empty();
    } else if constexpr (amount_structure<Value>) {
        return read_text(value.valor, text, how);
    } else if constexpr (convertible_value<Value>) {
        if (text.empty() && how.even_empty) {
            value = Value{};
            return true;
        }
        // an empty text has a first character, for converters that want one
        return core::v7::value_converter<Value>::make_value(value, text.empty() ? "" : text.data(),
                                                            text.size()) == 0;
    } else {
        const auto number = number_of(text, largest_number<Value>(), how);
        if (!number || (std::is_enum_v<Value> && how.omit_default && *number == 0)) {
            return false;
        }
        value = static_cast<Value>(*number);
        return true;
    }
}

/// Whether a text that was read is certainly the value's own.
template <single_value Value> bool gives_back(std::string_view text, const form& how) {
    if constexpr (std::same_as<Value, std::string>) {
        return true;
    } else if constexpr (amount_structure<Value>) {
        return gives_back<fiscal::decimal>(text, how);
    } else if constexpr (coded_value<Value>) {
        const bool as_wide =
            how.width == 0 ? text.size() == 1 || text.front() != '0' : text.size() == how.width;
        return as_wide && how.base == 10 && !how.even_empty;
    } else if constexpr (requires { core::v7::value_converter<Value>::gives_back(text); }) {
        return core::v7::value_converter<Value>::gives_back(text);
    } else {
        return false;
    }
}

/// The layout's text of a value; absent where the value has none, such as a date never set.
template <single_value Value>
core::v7::optional<std::string> text_of(const Value& value, const form& how = {}) {
    value_chars chars;
    if (!put_text(chars, value, how)) {
        return {};
    }
    return std::string(chars.text());
}

/// What the text of a number should have been, for a person to read.
std::string expected_number(std::uint64_t largest, const form& how);

/// What the text of a CNPJ or a CPF should have been.
std::string expected_identifier(std::string_view name, std::string_view text);

/// What a refused text should have been, for a person to read.
template <single_value Value>
std::string expected_text(std::string_view text, const form& how = {}) {
    if constexpr (std::same_as<Value, fiscal::decimal> || amount_structure<Value>) {
        return "a decimal number such as 1234.56, of at most 17 digits, 15 of them decimal places";
    } else if constexpr (std::same_as<Value, fiscal::date>) {
        return "a date of the calendar, AAAA-MM-DD";
    } else if constexpr (std::same_as<Value, fiscal::datetime>) {
        return "a date and time with its offset, AAAA-MM-DDThh:mm:ss-03:00";
    } else if constexpr (std::same_as<Value, fiscal::cnpj>) {
        return expected_identifier("CNPJ, 14 characters", text);
    } else if constexpr (std::same_as<Value, fiscal::cpf>) {
        return expected_identifier("CPF, 11 digits", text);
    } else if constexpr (coded_value<Value>) {
        return expected_number(largest_number<Value>(), how);
    } else {
        return convertible_value<Value> ? "a code of the layout" : "a text that is not empty";
    }
}

/// The value of a text, for data that stand in a program. Throws std::invalid_argument for a text
/// that the value cannot hold.
template <single_value Value> Value value_from(std::string_view text) {
    Value value{};
    if (!read_text(value, text)) {
        throw std::invalid_argument('"' + std::string(text) + "\" is not " +
                                    expected_text<Value>(text));
    }
    return value;
}

} // namespace kivo::erp::v12::layout
