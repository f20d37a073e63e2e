#include <layout/elements.hpp>

#include <algorithm>
#include <utility>
#include <vector>

namespace kivo::erp::v12::layout {

namespace {

using kind = text_rule::kind;

/// How many there may be: `60`, or `1-60`.
std::string range(std::size_t least, std::size_t most, const char* to) {
    return least == most ? std::to_string(least)
                         : std::to_string(least) + to + std::to_string(most);
}

constexpr char_set range_set(char first, char last) {
    char_set result;
    for (char character = first; character <= last; ++character) {
        result.add(character);
    }
    return result;
}

constexpr char_set both(char_set left, const char_set& right) {
    left.halves[0] |= right.halves[0];
    left.halves[1] |= right.halves[1];
    return left;
}

constexpr char_set digit_set = range_set('0', '9');
constexpr char_set letter_set = range_set('A', 'Z');

bool all_digits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char it) { return digit_set.has(it); });
}

/// The length of the texts of a rule.
struct length {
    std::size_t least = 0;
    std::size_t most = 0;
    bool digits = false; ///< whether they are digits alone
};

length length_of(const text_rule& rule) {
    switch (rule.is) {
    case kind::empty:
        return {0, 0, true};
    case kind::digits:
        return {rule.least, rule.most, true};
    case kind::text:
    case kind::word:
        return {rule.least, rule.most, false};
    case kind::aamm:
        return {4, 4, true};
    case kind::aaaa_mm:
    case kind::mm_aaaa:
        return {7, 7, false};
    case kind::base64: {
        const std::size_t characters = (std::size_t{rule.most} + 2) / 3 * 4;
        return {characters, characters, false};
    }
    case kind::codes: {
        length result{std::string_view::npos, 0, true};
        for (const std::string_view code : rule.codes()) {
            result.least = std::min(result.least, code.size());
            result.most = std::max(result.most, code.size());
            result.digits = result.digits && all_digits(code);
        }
        return result;
    }
    case kind::like: {
        length result{0, 0, true};
        for (const char_run& run : rule.runs()) {
            result.least += run.least;
            result.most += run.most;
            result.digits = result.digits && both(run.set, digit_set) == digit_set;
        }
        return result;
    }
    case kind::number:
    case kind::decimal:
    case kind::date:
    case kind::datetime:
        break;
    }
    return {};
}

/// `1, 2 or 3`
std::string listed(const std::vector<std::string>& words) {
    std::string result;
    for (std::size_t index = 0; index < words.size(); ++index) {
        result += index == 0 ? "" : index + 1 == words.size() ? " or " : ", ";
        result += words[index];
    }
    return result;
}

std::string many(std::size_t least, std::size_t most, const std::string& one,
                 const std::string& several) {
    return range(least, most, " to ") + ' ' + (most == 1 ? one : several);
}

std::string sentence_of(const char_run& run) {
    if (run.set == digit_set) {
        return many(run.least, run.most, "digit", "digits");
    }
    if (run.set == letter_set) {
        return many(run.least, run.most, "capital letter", "capital letters");
    }
    if (run.set == both(digit_set, letter_set)) {
        return many(run.least, run.most, "digit or capital letter", "digits or capital letters");
    }
    if (run.set == both(digit_set, range_set('A', 'F'))) {
        return many(run.least, run.most, "hexadecimal digit", "hexadecimal digits");
    }
    std::vector<std::string> characters;
    for (char character = ' '; character < '\x7F'; ++character) {
        if (run.set.has(character)) {
            characters.emplace_back(1, character);
        }
    }
    return (run.most == 1 ? "" : range(run.least, run.most, " to ") + " of ") + listed(characters);
}

std::string sentence_of(const text_rule& rule) {
    switch (rule.is) {
    case kind::empty:
        return "nothing";
    case kind::text:
        return many(rule.least, rule.most, "character", "characters") +
               ", none beyond U+00FF, no blank at either end";
    case kind::word:
        return many(rule.least, rule.most, "character", "characters") +
               ", none beyond U+00FF, no blanks";
    case kind::digits:
        return many(rule.least, rule.most, "digit", "digits");
    case kind::number:
        return "a whole number from " + range(rule.smallest, rule.largest, " to ") +
               ", no zeros in front";
    case kind::decimal: {
        const auto behind_point = [](std::size_t least, std::size_t most) {
            return "a point and " + many(least, most, "digit", "digits") + ", or no point";
        };
        std::string result = rule.largest == 0
                                 ? "up to " + many(rule.whole, rule.whole, "digit", "digits")
                                 : "a number up to " + std::to_string(rule.largest);
        result += " without zeros in front, ";
        result += rule.above_zero ? "above 0, " : rule.bare_zero ? "" : "not a bare 0, ";
        result += "then " + behind_point(rule.least, rule.most);
        if (rule.small_least != rule.least || rule.small_most != rule.most) {
            result += "; below 1, " + behind_point(rule.small_least, rule.small_most);
        }
        return result;
    }
    case kind::codes: {
        std::vector<std::string> codes;
        for (const std::string_view code : rule.codes()) {
            codes.emplace_back(code);
        }
        return listed(codes);
    }
    case kind::like: {
        std::string result;
        std::string literal;
        const auto add = [&](const std::string& words) {
            result += result.empty() ? "" : ", ";
            result += words;
        };
        const auto add_literal = [&] {
            if (!literal.empty()) {
                add('"' + std::exchange(literal, {}) + '"');
            }
        };
        for (const char_run& run : rule.runs()) {
            const std::string words = sentence_of(run);
            if (words.size() == 1) {
                literal += words; // characters that stand for themselves, one after the other
            } else {
                add_literal();
                add(words);
            }
        }
        add_literal();
        return result;
    }
    case kind::date:
        return "a date from 2000 to 2099, AAAA-MM-DD";
    case kind::datetime:
        return "date and time from 2000 to 2099, AAAA-MM-DDThh:mm:ss and an offset in whole hours "
               "from -11:00 to +12:00";
    case kind::aamm:
        return "year and month, AAMM";
    case kind::aaaa_mm:
        return "year and month from 2025 on, AAAA-MM";
    case kind::mm_aaaa:
        return "month and year from 2000 to 2999, MM/AAAA";
    case kind::base64:
        return rule.most == 0 ? "bytes in base64" : std::to_string(rule.most) + " bytes in base64";
    }
    return {};
}

} // namespace

std::string occurrence_word(const element_rule& rule) {
    const std::string result = range(rule.needed() ? 1 : 0, rule.most(), "-");
    return rule.nested() ? '(' + result + ')' : result;
}

std::string content_word(const element_rule& rule) {
    if (rule.is_group()) {
        return "group";
    }
    const text_rule& first = rule.texts().front();
    switch (first.is) {
    case kind::date:
        return "date";
    case kind::datetime:
        return "datetime";
    case kind::number:
        return "number " + range(std::to_string(first.smallest).size(),
                                 std::to_string(first.largest).size(), "-");
    case kind::decimal:
        return "decimal " + std::to_string(first.whole) + '.' + std::to_string(first.most);
    default:
        break;
    }
    std::string lengths;
    length total{std::string_view::npos, 0, true};
    for (const text_rule& text : rule.texts()) {
        const length found = length_of(text);
        lengths += lengths.empty() ? "" : " or ";
        lengths += text.is == kind::empty ? "empty" : range(found.least, found.most, "-");
        total.least = std::min(total.least, found.least);
        total.most = std::max(total.most, found.most);
        total.digits = total.digits && found.digits;
    }
    // a code without zeros in front is a number
    const bool number = first.is == kind::codes && total.least != total.most;
    return total.digits      ? (number ? "number " : "digits ") + lengths
           : total.most == 0 ? "text"
                             : "text " + range(total.least, total.most, "-");
}

std::string demanded_text(const element_rule& rule) {
    std::string result;
    for (const text_rule& text : rule.texts()) {
        result += result.empty() ? "" : "; or ";
        result += sentence_of(text);
    }
    return result;
}

} // namespace kivo::erp::v12::layout
