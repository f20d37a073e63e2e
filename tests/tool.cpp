#include "in_order.hpp"
#include "language.hpp"
#include "names.hpp"
#include "text.hpp"
#include "values.hpp"

#include <layout/elements.hpp>
#include <layout/text.hpp>

#include <gtest/gtest.h>
#include <libintl.h>

#include <algorithm>
#include <cstdint>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What nfe_summary is made of, where its output alone would not show a fault.
namespace kivo::tests {

using namespace nfe_summary;
namespace layout = erp::v12::layout;

// Catches columns that shift: an accent has no cell of its own, an ideogram or emoji has two.
TEST(text, is_as_wide_as_a_terminal_shows_it) {
    const std::vector<std::pair<std::string, std::size_t>> texts = {
        {"", 0},
        {"plain", 5},
        {"São", 3},
        {"Sa\u0303o", 3}, // decomposed
        {"a\u0301\u0323b", 2},
        {"東京", 4},
        {"\uFF21", 2},                                     // full width
        {"\u1112\u1161\u11ab", 2},                         // one syllable of three letters
        {"\U0001F600", 2},                                 // a face
        {"\u2764\uFE0F", 2},                               // a heart, as an emoji
        {"\U0001F1E7\U0001F1F7", 2},                       // a flag
        {"\U0001F468\u200D\U0001F469\u200D\U0001F467", 2}, // a family
        {"\U0001F44D\U0001F3FD", 2},                       // a hand with its colour
        {"\xFF", 1},
        {"a\xC3", 2},
    };
    for (const auto& [text, width] : texts) {
        EXPECT_EQ(columns(text), width) << text;
        EXPECT_EQ(left(text + "|", width + 3), text + "|  ");
        // never wider than the room, never half a character
        for (std::size_t room = 1; room <= width + 1; ++room) {
            const std::string cut = shortened(text + text, room);
            EXPECT_LE(columns(cut), room) << text;
            if (text.find('\xFF') == text.npos && text.find('\xC3') != text.size() - 1) {
                EXPECT_EQ(harmless(cut), cut) << text;
            }
        }
    }
    EXPECT_EQ(shortened("Sa\u0303o Paulo", 4), "Sa\u0303o…");
    EXPECT_EQ(shortened("東京都", 4), "東…") << "half an ideogram has no place";
    EXPECT_EQ(wrapped("東京都", 1), (std::vector<std::string>{"東", "京", "都"}));
}

// Catches what is not seen and changes what is.
TEST(text, steers_nothing) {
    EXPECT_EQ(harmless("a\nb\tc"), "a b c");
    EXPECT_EQ(harmless("a\nb\tc", blanks::as_signs), "a␊b␉c");
    for (const char* const text :
         {"\x7F", "\u009B", "\u200B", "\u200E", "\u2028", "\u202E", "\u2066", "\u00AD", "\uFEFF",
          "\U000E0041", "\xC0\x80", "\xED\xA0\x80", "\xF5"}) {
        const std::string shown = harmless(text);
        EXPECT_EQ(shown.find_first_not_of("\xEF\xBF\xBD"), shown.npos) << shown;
    }
    EXPECT_EQ(harmless("\U0001F468\u200D\U0001F469"), "\U0001F468\u200D\U0001F469");
    std::string tower = "a";
    for (int count = 0; count < 1000; ++count) {
        tower += "\u0301";
    }
    EXPECT_GT(columns(harmless(tower)), 100U) << "marks that would cover the lines above";
    EXPECT_EQ(harmless_json("\"\u202E\U000E0041\""), "\"\\u202e\\udb40\\udc41\"");
    EXPECT_EQ(harmless_xml("\u202E"), "&#x202e;");
}

/// Whether a number is an enumerator: the compiler names it.
template <auto value> constexpr bool is_enumerator() {
    const std::string_view name = __PRETTY_FUNCTION__;
    const std::size_t begin = name.find("value = ") + 8;
    return name[begin] != '(' && !(name[begin] >= '0' && name[begin] <= '9');
}

template <class Code, std::size_t... numbers>
void check_names(std::index_sequence<numbers...>, const std::vector<unsigned>& without_name) {
    std::size_t enumerators = 0;
    const auto check = [&](unsigned number, bool known) {
        const std::string name = name_of(static_cast<Code>(number));
        const bool has_name = !name.empty() && name != say("code {}", number);
        const bool none =
            std::find(without_name.begin(), without_name.end(), number) != without_name.end();
        EXPECT_EQ(has_name, known && !none) << number << ' ' << name;
        enumerators += known ? 1 : 0;
    };
    (check(numbers, is_enumerator<static_cast<Code>(numbers)>()), ...);
    EXPECT_GT(enumerators, 1U);
}

// Catches a carry that is lost or goes the wrong way, and a sum that is larger than a number can
// be.
TEST(decimal_sum, is_exact) {
    using fiscal::decimal;
    const std::vector<std::string> largest(100, "99999999999999999");
    const std::vector<std::string> smallest(100, "-99999999999999999");
    const std::vector<std::pair<std::vector<std::string>, std::string>> sums = {
        {{}, ""},
        {{"0.30", "0.70"}, "1.00"},
        {{"-0.5", "-0.5", "-0.125"}, "-1.125"},
        {{"1", "-1"}, "0.00"},
        {{"0.000000000000001", "-0.000000000000002"}, "-0.000000000000001"},
        {{"1000000000000000", "-0.01"}, "999999999999999.99"},
        {{"-1000000000000000", "0.01"}, "-999999999999999.99"},
        {largest, "9999999999999999900.00"},
        {smallest, "-9999999999999999900.00"},
    };
    for (const auto& [values, expected] : sums) {
        decimal_sum all;
        decimal_sum halves[2];
        for (std::size_t index = 0; index < values.size(); ++index) {
            const auto value = layout::value_from<decimal>(values[index]);
            all.add(value);
            halves[index % 2].add(value);
        }
        halves[0].add(halves[1]);
        EXPECT_EQ(all.plain_text(), expected);
        EXPECT_EQ(halves[0].plain_text(), expected);
    }
}

// Catches an enumerator that a person sees as its number, and a name for no code.
TEST(names, are_those_of_the_codes) {
    using namespace fiscal;
    constexpr auto numbers = std::make_index_sequence<128>();
    for (const char* const language : languages) {
        choose_language(language);
        bindtextdomain("nfe_summary", KIVO_LOCALE_DIR);
        check_names<emitente::regime_fiscal>(numbers, {0});
        check_names<nota_fiscal::tipo_operacao>(numbers, {});
        check_names<nota_fiscal::indicador_operacao>(numbers, {0});
        check_names<nota_fiscal::indicador_finalidade_emissao>(numbers, {0});
        check_names<tipo_emissao>(numbers, {});
        check_names<informacoes_transporte::modalidade_frete>(numbers, {});
        check_names<detalhes_pagamento::meio_pagamento>(numbers, {0});
        check_names<detalhes_pagamento::indicador_forma_pagamento>(numbers, {});
    }
    EXPECT_EQ(name_of(detalhes_pagamento::meio_pagamento::boleto_bancario), "boleto bancário");
    choose_language("en");
}

/// All that the companion says of texts.
std::vector<std::string> demands() {
    using namespace fiscal;
    std::vector<std::string> result = {
        layout::expected_text<decimal>(""),
        layout::expected_text<date>(""),
        layout::expected_text<datetime>(""),
        layout::expected_text<cnpj>(""),
        layout::expected_text<cnpj>("11111111111111"),
        layout::expected_text<cpf>(""),
        layout::expected_text<cpf>("11111111111"),
        layout::expected_text<tipo_emissao>(""),
        layout::expected_text<std::string>(""),
        layout::expected_text<std::uint32_t>("", layout::digits(2, 8)),
        layout::expected_text<std::uint32_t>("", layout::digits(7)),
        layout::expected_text<std::uint32_t>("", layout::digits_up_to(3)),
        layout::expected_text<std::uint32_t>("", layout::hexadecimal(2)),
        layout::expected_text<std::uint32_t>(""),
        "not an XML document: Start-end tags mismatch (line 3, column 5)",
        "not an NF-e or NFC-e: no infNFe in NFe",
        "ide/nNF[3]: number 3 without those before it",
        "one of CNPJ with xNome, CPF or idEstrangeiro",
        "beside CNPJ: 1 to 60 characters, none beyond U+00FF, no blanks",
        "no such element in prod",
        "at most 990",
    };
    for (const layout::element_rule* rule = &layout::infnfe_rule(); rule != nullptr;
         rule = layout::next(*rule)) {
        if (!rule->is_group()) {
            result.push_back(layout::demanded_text(*rule));
        }
    }
    return result;
}

// Catches a message of the companion that is put together anew wrongly, or stays in English.
TEST(translated, covers_what_the_companion_says) {
    choose_language("en");
    for (const std::string& demand : demands()) {
        EXPECT_EQ(translated(demand), demand);
    }
    choose_language("pt_BR");
    bindtextdomain("nfe_summary", KIVO_LOCALE_DIR);
    const std::regex english("(an|of|or|and|the|not|to|from|with|then|digits?|letters?|"
                             "characters?|date|number|year|month|beyond|blanks?|at|up|in|line)");
    for (const std::string& demand : demands()) {
        std::istringstream words(translated(demand));
        for (std::string word; words >> word;) {
            word = word.substr(0, word.find_first_of(",;:"));
            EXPECT_FALSE(std::regex_match(word, english)) << demand << " -> " << words.str();
        }
    }
    EXPECT_EQ(translated("\"1 to 2\""), "\"1 to 2\"") << "a text of the document";
    choose_language("en");
}

// Catches results out of order, and a failure that is lost or leaves threads behind.
TEST(make_in_order, keeps_the_order_and_passes_failures_on) {
    constexpr std::size_t count = 5000;
    std::size_t used = 0;
    const auto make = [](std::size_t index) { return std::to_string(index); };
    make_in_order(count, make, [&](std::size_t index, std::string&& made) {
        EXPECT_EQ(made, std::to_string(index));
        EXPECT_EQ(index, used++);
    });
    EXPECT_EQ(used, count);
    const auto fail_late = [](std::size_t index) {
        return index == 3000 ? throw std::runtime_error("made") : index;
    };
    used = 0;
    EXPECT_THROW(make_in_order(count, fail_late, [&](std::size_t, std::size_t) { ++used; }),
                 std::runtime_error);
    EXPECT_EQ(used, 3000U);
    const auto stop = [](std::size_t, const std::string&) { throw std::logic_error("used"); };
    EXPECT_THROW(make_in_order(count, make, stop), std::logic_error);
}

} // namespace kivo::tests
