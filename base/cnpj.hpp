#pragma once

#include <base/converter.hpp>

namespace kivo::erp::v12 {

/// A company's taxpayer number (CNPJ): 12 digits or capital letters and two check digits, or no
/// number.
class cnpj {
public:
    /// No number: it has no text.
    constexpr cnpj() noexcept = default;

    friend constexpr bool operator==(cnpj, cnpj) noexcept = default;

private:
    friend struct core::v7::chars_converter<cnpj>;
    friend struct core::v7::value_converter<cnpj>;

    static constexpr std::size_t root_length = 12;
    static constexpr std::size_t length = 14;

    /// The check digit behind `count` characters: weights 2 to 9 from the right, over and over;
    /// a character is worth its code minus 48.
    static constexpr char check_digit(const char* chars, std::size_t count) noexcept {
        int sum = 0;
        for (std::size_t place = 0; place < count; ++place) {
            const int weight = static_cast<int>((count - 1 - place) % 8) + 2;
            sum += weight * (chars[place] - '0');
        }
        const int rest = sum % 11;
        return static_cast<char>(rest < 2 ? '0' : '0' + 11 - rest);
    }

    std::uint64_t word_ = 0; // the 12 characters as a number of base 36
};

} // namespace kivo::erp::v12

namespace kivo::core::v7 {

/// The 14 characters, without punctuation; no number is invalid.
template <> struct chars_converter<erp::v12::cnpj> {
    using cnpj = erp::v12::cnpj;

    static conversion_result make_chars(char* buffer, std::size_t& length, cnpj value) noexcept {
        if (value == cnpj()) {
            return conversion_invalid;
        }
        char chars[cnpj::length];
        std::uint64_t rest = value.word_;
        for (std::size_t place = cnpj::root_length; place-- > 0; rest /= 36) {
            const auto digit = static_cast<char>(rest % 36);
            chars[place] = static_cast<char>(digit < 10 ? '0' + digit : 'A' + digit - 10);
        }
        chars[12] = cnpj::check_digit(chars, 12);
        chars[13] = cnpj::check_digit(chars, 13);
        return detail::write_chars({chars, sizeof chars}, buffer, length);
    }
};

/// 14 characters, without punctuation, with the right check digits; all zeros is no number.
template <> struct value_converter<erp::v12::cnpj> {
    using cnpj = erp::v12::cnpj;

    /// Whether `make_chars` gives back exactly this text, if it is one of a value: always.
    static constexpr bool gives_back(std::string_view) noexcept { return true; }

    static conversion_result make_value(cnpj& value, const char* text,
                                        std::size_t length) noexcept {
        if (length != cnpj::length) {
            return conversion_invalid;
        }
        cnpj found;
        for (std::size_t place = 0; place < cnpj::root_length; ++place) {
            const char character = text[place];
            const bool letter = character >= 'A' && character <= 'Z';
            if (!letter && !detail::is_digit(character)) {
                return conversion_invalid;
            }
            found.word_ = found.word_ * 36 + static_cast<std::uint64_t>(
                                                 letter ? character - 'A' + 10 : character - '0');
        }
        if (found == cnpj() || text[12] != cnpj::check_digit(text, 12) ||
            text[13] != cnpj::check_digit(text, 13)) {
            return conversion_invalid;
        }
        value = found;
        return conversion_success;
    }
};

} // namespace kivo::core::v7
