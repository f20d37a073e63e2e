#pragma once

#include <base/converter.hpp>

namespace kivo::erp::v12 {

/// A person's taxpayer number (CPF): 9 digits and two check digits, or no number.
class cpf {
public:
    /// No number: it has no text.
    constexpr cpf() noexcept = default;

    friend constexpr bool operator==(cpf, cpf) noexcept = default;

private:
    friend struct core::v7::chars_converter<cpf>;
    friend struct core::v7::value_converter<cpf>;

    static constexpr std::size_t length = 11;

    /// The check digit behind `count` digits: weights from 2 upwards from the right.
    static constexpr char check_digit(const char* chars, std::size_t count) noexcept {
        int sum = 0;
        for (std::size_t place = 0; place < count; ++place) {
            sum += static_cast<int>(count + 1 - place) * (chars[place] - '0');
        }
        const int rest = sum % 11;
        return static_cast<char>(rest < 2 ? '0' : '0' + 11 - rest);
    }

    std::uint64_t word_ = 0; // all 11 digits as a number
};

} // namespace kivo::erp::v12

namespace kivo::core::v7 {

/// The 11 digits, without punctuation; no number is invalid.
template <> struct chars_converter<erp::v12::cpf> {
    using cpf = erp::v12::cpf;

    static conversion_result make_chars(char* buffer, std::size_t& length, cpf value) noexcept {
        if (value == cpf()) {
            return conversion_invalid;
        }
        char chars[cpf::length];
        detail::write_digits(chars, sizeof chars, value.word_);
        return detail::write_chars({chars, sizeof chars}, buffer, length);
    }
};

/// 11 digits, without punctuation, with the right check digits. One digit eleven times is nobody's
/// number, although its check digits are right.
template <> struct value_converter<erp::v12::cpf> {
    using cpf = erp::v12::cpf;

    /// Whether `make_chars` gives back exactly this text, if it is one of a value: always.
    static constexpr bool gives_back(std::string_view) noexcept { return true; }

    static conversion_result make_value(cpf& value, const char* text, std::size_t length) noexcept {
        const std::string_view chars(text, length);
        cpf found;
        if (chars.size() != cpf::length || !detail::read_digits(chars, found.word_) ||
            chars.find_first_not_of(chars.front()) == chars.npos ||
            chars[9] != cpf::check_digit(text, 9) || chars[10] != cpf::check_digit(text, 10)) {
            return conversion_invalid;
        }
        value = found;
        return conversion_success;
    }
};

} // namespace kivo::core::v7
