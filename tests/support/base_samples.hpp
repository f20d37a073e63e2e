#pragma once

#include <fiscal/types.hpp>

#include <cstddef>
#include <string>

/// Samples of the base values.
namespace kivo::tests {

/// The text with the two check digits that make it a value.
template <class Value> Value with_check_digits(const std::string& root) {
    Value result;
    for (char tens = '0'; tens <= '9'; ++tens) {
        for (char units = '0'; units <= '9'; ++units) {
            const std::string text = root + tens + units;
            if (core::v7::value_converter<Value>::make_value(result, text.data(), text.size()) ==
                core::v7::conversion_success) {
                return result;
            }
        }
    }
    return result;
}

template <class Value> Value base_sample(std::size_t number);

template <> inline erp::v12::fiscal::decimal base_sample(std::size_t number) {
    return erp::v12::fiscal::decimal::make(static_cast<std::int64_t>(number % 1'000'000'007), 2)
        .value();
}

template <> inline erp::v12::fiscal::date base_sample(std::size_t number) {
    const auto days = static_cast<unsigned>(number % 9973);
    return erp::v12::fiscal::date::make(2000 + days / 336, days / 28 % 12 + 1, days % 28 + 1)
        .value();
}

template <> inline erp::v12::fiscal::datetime base_sample(std::size_t number) {
    const auto seconds = static_cast<unsigned>(number % 3600);
    return erp::v12::fiscal::datetime::make(base_sample<erp::v12::fiscal::date>(number), 12,
                                            seconds / 60, seconds % 60, {true, 3, 0})
        .value();
}

template <> inline erp::v12::cnpj base_sample(std::size_t number) {
    return with_check_digits<erp::v12::cnpj>(std::to_string(100'000'000'000 + number % 1'000'003));
}

template <> inline erp::v12::cpf base_sample(std::size_t number) {
    return with_check_digits<erp::v12::cpf>(std::to_string(100'000'000 + number % 1'000'003));
}

template <class Value> std::string base_text(const Value& value) {
    char chars[32] = {};
    std::size_t length = sizeof chars;
    if (core::v7::chars_converter<Value>::make_chars(chars, length, value) !=
        core::v7::conversion_success) {
        return "none";
    }
    return {chars, length};
}

} // namespace kivo::tests
