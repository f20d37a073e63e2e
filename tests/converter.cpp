#include <fiscal/tipo_emissao.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace kivo::tests {

using erp::v12::fiscal::tipo_emissao;
using to_chars = core::v7::chars_converter<tipo_emissao>;
using to_value = core::v7::value_converter<tipo_emissao>;

// Catches a code that is off by one, above all around the code 8, which does not exist.
TEST(converter, codes_and_values_belong_together) {
    const std::string codes = "12345679";
    for (std::uint32_t number = 0; number < codes.size(); ++number) {
        char buffer[5] = "....";
        std::size_t length = sizeof buffer;
        EXPECT_EQ(to_chars::make_chars(buffer, length, static_cast<tipo_emissao>(number)), 0);
        EXPECT_EQ(length, 1U);
        EXPECT_EQ(std::string(buffer), codes.substr(number, 1) + "...") << "no terminating zero";

        auto value = tipo_emissao::contingencia_epec;
        EXPECT_EQ(to_value::make_value(value, &codes[number], 1), 0);
        EXPECT_EQ(value, static_cast<tipo_emissao>(number));
    }
}

// Catches a failure that changes what it was given, and the wrong one of two failures.
TEST(converter, failures_leave_the_arguments_alone) {
    char buffer = '.';
    for (const std::uint32_t number : {8U, 9U, 0x100U, 0xFFFFFFFFU}) {
        std::size_t length = 5;
        EXPECT_EQ(to_chars::make_chars(&buffer, length, static_cast<tipo_emissao>(number)), 3);
        EXPECT_EQ(length, 5U);
        length = 0;
        EXPECT_EQ(to_chars::make_chars(&buffer, length, static_cast<tipo_emissao>(number)), 1)
            << "no room comes first";
        EXPECT_EQ(length, 1U);
    }
    EXPECT_EQ(buffer, '.');

    auto value = tipo_emissao::contingencia_fs_da;
    for (const std::string text : {"8", "0", "A", "\xB1", "", "11", "9 "}) {
        EXPECT_EQ(to_value::make_value(value, text.c_str(), text.size()), 3) << text;
    }
    EXPECT_EQ(to_value::make_value(value, nullptr, 2), 3) << "too long, unread";
    EXPECT_EQ(value, tipo_emissao::contingencia_fs_da);
}

// Catches a check of the length that callers with an empty text rely on not being there.
TEST(converter, an_empty_text_is_judged_by_its_first_character) {
    auto value = tipo_emissao::normal;
    EXPECT_EQ(to_value::make_value(value, "3", 0), 0);
    EXPECT_EQ(value, tipo_emissao::regime_especial_nff);
}

} // namespace kivo::tests
