#pragma once

#if __cplusplus < 202002L
// a file that is not there ends the compilation, where #error would let pages of others follow
#include "kivo-erp-fiscal needs C++20: compile with -std=c++20"
#endif

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

namespace kivo::core::v7 {

/// How a conversion between a value and its text ended.
enum [[nodiscard]] conversion_result : std::int32_t{
    conversion_success = 0,          ///< the whole value was converted
    conversion_buffer_too_small = 1, ///< nothing was written; the length now tells the size needed
    conversion_invalid = 3,          ///< nothing was written
};

/// Writes a value as text: `make_chars(char* buffer, std::size_t& length, T value)`, static.
/// The length is the capacity of the buffer on entry and the number of characters on success; no
/// terminating zero is written.
template <class T> struct chars_converter;

/// Reads a value from text: `make_value(T& value, const char* text, std::size_t length)`, static.
/// The whole text has to be one value; the value is written only on success.
///
/// `gives_back(std::string_view text)`, static and not demanded, spares readers a conversion back:
/// where it is true, `make_chars` makes the same text of what `make_value` reads.
template <class T> struct value_converter;

/// What the values and converters of this folder share.
namespace detail {

/// Integers of types whose every number fits into 64 bits with a sign.
template <class... Numbers>
concept integers = ((std::integral<Numbers> && std::numeric_limits<Numbers>::digits <= 63) && ...);

inline conversion_result write_chars(std::string_view chars, char* buffer,
                                     std::size_t& length) noexcept {
    if (length < chars.size()) {
        length = chars.size();
        return conversion_buffer_too_small;
    }
    std::memcpy(buffer, chars.data(), chars.size());
    length = chars.size();
    return conversion_success;
}

constexpr bool is_digit(char character) noexcept { return character >= '0' && character <= '9'; }

/// Reads a text of nothing but digits, at most 18 of them.
constexpr bool read_digits(std::string_view text, std::uint64_t& number) noexcept {
    if (text.empty() || text.size() > 18) {
        return false;
    }
    std::uint64_t result = 0;
    for (const char character : text) {
        if (!is_digit(character)) {
            return false;
        }
        result = result * 10 + static_cast<std::uint64_t>(character - '0');
    }
    number = result;
    return true;
}

/// Fills `width` characters with the last digits of a number, leading zeros included.
constexpr void write_digits(char* chars, std::size_t width, std::uint64_t number) noexcept {
    while (width-- > 0) {
        chars[width] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

} // namespace detail

} // namespace kivo::core::v7
