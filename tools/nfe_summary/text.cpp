#include "text.hpp"

#include <fmt/format.h>

#include <algorithm>

namespace nfe_summary {

namespace {

constexpr char32_t no_character = 0xFFFD;

/// Takes the first character off a text: `no_character`, and one byte, where it is not UTF-8.
char32_t take_character(std::string_view& text) {
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x1'0000};
    const unsigned first = byte(0);
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? first : first & (0x7FU >> length);
    bool valid = (first < 0x80 || first >= 0xC0) && first < 0xF8 && length <= text.size();
    for (std::size_t index = 1; valid && index < length; ++index) {
        valid = (byte(index) & 0xC0U) == 0x80;
        character = character << 6 | (byte(index) & 0x3FU);
    }
    valid = valid && character >= smallest[length] && character <= 0x10'FFFF &&
            (character < 0xD800 || character > 0xDFFF);
    text.remove_prefix(valid ? length : 1);
    return valid ? character : no_character;
}

/// Control characters, line and paragraph separators, and marks that turn the direction.
bool steers(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character <= 0x9F) || character == 0x061C ||
           character == 0x200E || character == 0x200F ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

/// The first characters of a text.
std::string_view first_characters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count) {
        take_character(rest);
    }
    return text.substr(0, text.size() - rest.size());
}

} // namespace

std::string harmless(std::string_view text, blanks shown) {
    std::string result;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = take_character(text);
        const bool blank = character == '\n' || character == '\r' || character == '\t';
        if (blank && shown == blanks::as_spaces) {
            result += ' ';
        } else if (character < 0x20) {
            result += "\xE2\x90"; // Unicode has a picture of each: U+2400 and on
            result += static_cast<char>(0x80 + character);
        } else if (character == no_character || steers(character)) {
            result += "\xEF\xBF\xBD"; // U+FFFD
        } else {
            result += before.substr(0, before.size() - text.size());
        }
    }
    return result;
}

std::string escaped(std::string_view document, std::string_view before, std::string_view after) {
    std::string result;
    while (!document.empty()) {
        const std::string_view from_here = document;
        const char32_t character = take_character(document);
        // the others below a space are escaped already, or part the document's own lines
        if (character == '\r' || (character >= 0x20 && steers(character))) {
            result += fmt::format("{}{:04x}{}", before, static_cast<unsigned>(character), after);
        } else {
            result += from_here.substr(0, from_here.size() - document.size());
        }
    }
    return result;
}

std::size_t columns(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        take_character(text);
    }
    return count;
}

std::string shortened(std::string_view text, std::size_t width) {
    const std::string_view whole = first_characters(text, width);
    return whole.size() == text.size() ? std::string(text)
                                       : std::string(first_characters(text, width - 1)) + "…";
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::string_view line = first_characters(text, width);
        if (line.size() < text.size() && text[line.size()] != ' ') {
            const std::size_t space = line.rfind(' ');
            line = line.substr(0, space == line.npos ? line.size() : space + 1);
        }
        text.remove_prefix(line.size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        lines.emplace_back(line.substr(0, line.find_last_not_of(' ') + 1));
    }
    return lines;
}

std::string right(std::string_view text, std::size_t width) {
    return std::string(width - std::min(width, columns(text)), ' ') + std::string(text);
}

std::string left(std::string_view text, std::size_t width) {
    return std::string(text) + std::string(width - std::min(width, columns(text)), ' ');
}

std::string joined(const std::vector<std::string>& texts, std::string_view separator) {
    std::string result;
    for (const std::string& text : texts) {
        if (!text.empty()) {
            result += result.empty() ? "" : separator;
            result += text;
        }
    }
    return result;
}

std::string labelled(std::string_view label, const optional<std::string>& text) {
    return text && !text->empty() ? fmt::format("{} {}", label, *text) : "";
}

} // namespace nfe_summary
