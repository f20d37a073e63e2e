#pragma once

#include <base/converter.hpp>
#include <base/optional.hpp>

namespace kivo::core::v7 {

/// A fixed-point decimal number: a signed coefficient of up to 17 digits, with 0 to 15 of them
/// (or leading zeros) behind the point. It keeps its scale: 1.50 stays 1.50, and equals 1.5.
class decimal {
public:
    /// 17 digits.
    static constexpr std::int64_t max_coefficient = 99'999'999'999'999'999;

    /// Decimal places.
    static constexpr unsigned max_scale = 15;

    /// Zero, without decimal places.
    constexpr decimal() noexcept = default;

    /// The coefficient divided by ten to the power of the scale: `make(1050, 2)` is 10.50.
    /// Absent when either is out of range. To the setter of an optional field that is no value:
    /// `set_valor_frete(decimal::make(cents, 2))` removes the freight where the number is refused,
    /// and with `decimal::make(cents, 2).value()` it throws std::bad_optional_access instead.
    [[nodiscard]] static constexpr optional<decimal> make(std::int64_t coefficient,
                                                          std::int64_t scale) noexcept {
        if (coefficient < -max_coefficient || coefficient > max_coefficient || scale < 0 ||
            scale > max_scale) {
            return {};
        }
        return decimal(coefficient * 16 + scale);
    }

    /// Only integers make a decimal, of a type that fits: 42.90 is `make(4290, 2)`.
    template <class... Numbers>
    static optional<decimal> make(Numbers...) requires(!detail::integers<Numbers...>) = delete;

    /// What `make` was given.
    constexpr std::int64_t coefficient() const noexcept { return word_ >> 4; }
    constexpr unsigned scale() const noexcept { return static_cast<unsigned>(word_ & 15); }

    /// Compares the numbers; their scales may differ.
    friend constexpr bool operator==(decimal left, decimal right) noexcept {
        return left.without_trailing_zeros() == right.without_trailing_zeros();
    }

private:
    constexpr explicit decimal(std::int64_t word) noexcept : word_(word) {}

    constexpr std::int64_t without_trailing_zeros() const noexcept {
        std::int64_t digits = coefficient();
        unsigned places = scale();
        while (places > 0 && digits % 10 == 0) {
            digits /= 10;
            --places;
        }
        return digits * 16 + static_cast<std::int64_t>(places);
    }

    std::int64_t word_ = 0; // the coefficient times 16, plus the scale
};

/// `1234.56`, `-0.5`, `7`: every decimal place that the value holds, at least one digit before
/// the point, at most 20 characters.
template <> struct chars_converter<decimal> {
    static conversion_result make_chars(char* buffer, std::size_t& length, decimal value) noexcept {
        const std::int64_t coefficient = value.coefficient();
        auto rest = static_cast<std::uint64_t>(coefficient < 0 ? -coefficient : coefficient);
        char chars[20];
        char* const end = chars + sizeof chars;
        char* first = end;
        for (unsigned place = 0; rest != 0 || place <= value.scale(); ++place) {
            if (place == value.scale() && place != 0) {
                *--first = '.';
            }
            *--first = static_cast<char>('0' + rest % 10);
            rest /= 10;
        }
        if (coefficient < 0) {
            *--first = '-';
        }
        return detail::write_chars({first, static_cast<std::size_t>(end - first)}, buffer, length);
    }
};

/// Digits with an optional minus sign before them and an optional point between them. What needs
/// more than 17 digits, leading zeros aside, or more than 15 decimal places is invalid.
template <> struct value_converter<decimal> {
    /// Zeros in front and the sign of zero are not held.
    static constexpr bool gives_back(std::string_view text) noexcept {
        return !text.empty() &&
               (text[0] > '0' || (text[0] == '0' && (text.size() == 1 || text[1] == '.')));
    }

    static conversion_result make_value(decimal& value, const char* text,
                                        std::size_t length) noexcept {
        std::string_view chars(text, length);
        const bool negative = chars.starts_with('-');
        chars.remove_prefix(negative ? 1 : 0);
        if (chars.empty() || chars.front() == '.' || chars.back() == '.') {
            return conversion_invalid;
        }
        std::int64_t coefficient = 0;
        const std::size_t point = chars.find('.');
        for (std::size_t place = 0; place < chars.size(); ++place) {
            if (place == point) {
                continue;
            }
            if (!detail::is_digit(chars[place])) {
                return conversion_invalid;
            }
            coefficient = coefficient * 10 + (chars[place] - '0');
            if (coefficient > decimal::max_coefficient) {
                return conversion_invalid;
            }
        }
        const std::size_t scale = point == chars.npos ? 0 : chars.size() - point - 1;
        if (scale > decimal::max_scale) {
            return conversion_invalid;
        }
        value =
            *decimal::make(negative ? -coefficient : coefficient, static_cast<std::int64_t>(scale));
        return conversion_success;
    }
};

} // namespace kivo::core::v7
