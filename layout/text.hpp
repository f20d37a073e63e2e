#pragma once

#include <layout/map.hpp>

#include <fiscal/types.hpp>

#include <base/converter.hpp>

#include <concepts>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace kivo::erp::v12::layout {

/// A value with converters of its own: a base value, or the emission type.
template <class Value>
concept convertible_value = requires(Value& value, char* chars, std::size_t& length) {
    core::v7::chars_converter<Value>::make_chars(chars, length, value);
    core::v7::value_converter<Value>::make_value(value, chars, length);
};

/// An enumeration, or a whole number.
template <class Value>
concept coded_value = std::is_enum_v<Value> || std::unsigned_integral<Value>;

/// A structure of nothing but an amount.
template <class Value>
concept amount_structure = requires(Value& value) {
    { value.valor } -> std::same_as<fiscal::decimal&>;
};

/// The largest number that a coded value holds.
template <coded_value Value> constexpr std::uint64_t largest_number() {
    if constexpr (std::is_enum_v<Value>) {
        return std::numeric_limits<std::underlying_type_t<Value>>::max();
    } else {
        return std::numeric_limits<Value>::max();
    }
}

/// A number as the layout writes it.
std::string number_text(std::uint64_t number, const form& how);

/// A text of digits, in one of the form's widths, as a number up to the given one; absent for any
/// other text.
core::v7::optional<std::uint64_t> number_of(std::string_view text, std::uint64_t largest,
                                            const form& how);

/// The layout's text of a value; absent where the value has none, such as a date never set.
template <class Value>
core::v7::optional<std::string> text_of(const Value& value, const form& how = {}) {
    if constexpr (amount_structure<Value>) {
        return text_of(value.valor, how);
    } else if constexpr (convertible_value<Value>) {
        char chars[32];
        std::size_t length = sizeof chars;
        if (core::v7::chars_converter<Value>::make_chars(chars, length, value) != 0 ||
            (how.optional && std::string_view(chars, length) == "0")) {
            return {};
        }
        return std::string(chars, length);
    } else if constexpr (coded_value<Value>) {
        const auto number = static_cast<std::uint64_t>(value);
        if (how.optional && number == 0) {
            return {};
        }
        return number_text(number, how);
    } else {
        static_assert(std::same_as<Value, std::string>);
        if (value.empty() && !how.empty) {
            return {};
        }
        return how.before + value;
    }
}

/// Reads a value from its whole text. A text that the value cannot hold, or that has not the form
/// of its element, is refused, and the value stays as it was. A text that is read may still be
/// another than the value's own: that of a number may have more zeros in front.
template <class Value> bool read_text(Value& value, const std::string& text, const form& how = {}) {
    if constexpr (amount_structure<Value>) {
        return read_text(value.valor, text, how);
    } else if constexpr (convertible_value<Value>) {
        // an empty text has a first character, the terminating zero, for converters that want one
        return core::v7::value_converter<Value>::make_value(value, text.c_str(), text.size()) == 0;
    } else if constexpr (coded_value<Value>) {
        const auto number = number_of(text, largest_number<Value>(), how);
        if (!number || (std::is_enum_v<Value> && how.optional && *number == 0)) {
            return false;
        }
        value = static_cast<Value>(*number);
        return true;
    } else {
        const std::string_view before = how.before;
        if (!text.starts_with(before) || (text.size() == before.size() && !how.empty)) {
            return false;
        }
        value = text.substr(before.size());
        return true;
    }
}

/// What the text of a number should have been, for a person to read.
std::string expected_number(std::uint64_t largest, const form& how);

/// What a refused text should have been, for a person to read.
template <class Value> std::string expected_text(const form& how) {
    if constexpr (std::same_as<Value, fiscal::decimal> || amount_structure<Value>) {
        return "a decimal number such as 1234.56, of at most 17 digits, 15 of them decimal places";
    } else if constexpr (std::same_as<Value, fiscal::date>) {
        return "a date of the calendar, AAAA-MM-DD";
    } else if constexpr (std::same_as<Value, fiscal::datetime>) {
        return "a date and time with its offset, AAAA-MM-DDThh:mm:ss-03:00";
    } else if constexpr (std::same_as<Value, fiscal::cnpj>) {
        return "a CNPJ, 14 characters with their check digits";
    } else if constexpr (std::same_as<Value, fiscal::cpf>) {
        return "a CPF, 11 digits with their check digits";
    } else if constexpr (coded_value<Value> && !convertible_value<Value>) {
        return expected_number(largest_number<Value>(), how);
    } else {
        return convertible_value<Value> ? "a code of the layout"
               : how.before[0] != '\0'  ? std::string(how.before) + " and a text behind it"
                                        : "a text that is not empty";
    }
}

/// The value of a text, for data that stand in a program. Throws std::invalid_argument for a text
/// that the value cannot hold.
template <class Value> Value value_from(const std::string& text) {
    Value value{};
    if (!read_text(value, text)) {
        throw std::invalid_argument("\"" + text + "\" is not " + expected_text<Value>(form{}));
    }
    return value;
}

} // namespace kivo::erp::v12::layout
