#include "text.hpp"

#include <fmt/format.h>
#include <utf8proc.h>

#include <algorithm>
#include <cstdint>

namespace nfe_summary {

namespace {

constexpr std::int32_t no_character = -1;
constexpr std::int32_t joiner = 0x200D;           // parts of an emoji
constexpr std::int32_t as_emoji = 0xFE0F;         // shows what stands before it as an emoji
constexpr std::string_view sign = "\xEF\xBF\xBD"; // U+FFFD

/// Takes the first character off a text: `no_character`, and one byte, where it is not UTF-8.
std::int32_t take_character(std::string_view& text) {
    std::int32_t character = no_character;
    const auto length = utf8proc_iterate(reinterpret_cast<const std::uint8_t*>(text.data()),
                                         static_cast<utf8proc_ssize_t>(text.size()), &character);
    text.remove_prefix(length > 0 ? static_cast<std::size_t>(length) : 1);
    return length > 0 ? character : no_character;
}

/// Control and format characters, and separators of lines and paragraphs: none is seen.
bool steers(std::int32_t character) {
    if (character < 0x7F) {
        return character < 0x20;
    }
    switch (utf8proc_category(character)) {
    case UTF8PROC_CATEGORY_CC:
    case UTF8PROC_CATEGORY_CF:
    case UTF8PROC_CATEGORY_ZL:
    case UTF8PROC_CATEGORY_ZP:
        return character != joiner;
    default:
        return false;
    }
}

/// Whether each byte is a character that is seen, of one cell.
bool is_plain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return byte >= 0x20 && byte < 0x7F; });
}

/// What a reader takes for one character: a letter with its accents, the parts of an emoji.
struct cluster {
    std::string_view text;
    std::size_t width = 0;
};

bool is_half_of_flag(std::int32_t character) {
    return character >= 0x1F1E6 && character <= 0x1F1FF;
}

cluster take_cluster(std::string_view& text) {
    const std::string_view before = text;
    std::int32_t character = take_character(text);
    const auto width = [](std::int32_t of) {
        return of == no_character ? std::size_t{1}
                                  : static_cast<std::size_t>(utf8proc_charwidth(of));
    };
    cluster result{{}, width(character)};
    std::int32_t state = 0;
    while (character >= 0x20 && !text.empty() && (text.front() & 0x80) != 0) {
        std::string_view rest = text;
        const std::int32_t next = take_character(rest);
        if (next == no_character || utf8proc_grapheme_break_stateful(character, next, &state)) {
            break;
        }
        if (next == as_emoji || is_half_of_flag(next)) {
            result.width = 2;
        }
        character = next;
        text = rest;
    }
    result.text = before.substr(0, before.size() - text.size());
    return result;
}

/// The first characters of a text, as many as have room.
std::string_view first_cells(std::string_view text, std::size_t width) {
    std::string_view rest = text;
    while (!rest.empty()) {
        std::string_view behind = rest;
        const std::size_t needed = take_cluster(behind).width;
        if (needed > width) {
            break;
        }
        width -= needed;
        rest = behind;
    }
    return text.substr(0, text.size() - rest.size());
}

/// A document with each character that steers in another form. Below a space, a writer has escaped
/// what stands in a text; the others part the document's own lines.
template <class Escape> std::string escaped(std::string_view document, Escape escape) {
    std::string result;
    while (!document.empty()) {
        const std::string_view before = document;
        const std::int32_t character = take_character(document);
        if (character == '\r' || (character >= 0x20 && steers(character))) {
            result += escape(static_cast<unsigned>(character));
        } else {
            result += before.substr(0, before.size() - document.size());
        }
    }
    return result;
}

} // namespace

std::string harmless(std::string_view text, blanks shown) {
    if (is_plain(text)) {
        return std::string(text);
    }
    constexpr int most_marks = 8; // on one letter; more would cover the lines around it
    std::string result;
    result.reserve(text.size());
    int marks = 0;
    while (!text.empty()) {
        const std::string_view before = text;
        const std::int32_t character = take_character(text);
        const bool is_mark = character >= 0x80 && utf8proc_charwidth(character) == 0;
        marks = is_mark && marks < most_marks ? marks + 1 : 0;
        const bool blank = character == '\n' || character == '\r' || character == '\t';
        if (blank && shown == blanks::as_spaces) {
            result += ' ';
        } else if (character >= 0 && character < 0x20) {
            result += "\xE2\x90"; // Unicode has a picture of each: U+2400 and on
            result += static_cast<char>(0x80 + character);
        } else if (character == no_character || steers(character) || marks == most_marks) {
            result += sign;
        } else {
            result += before.substr(0, before.size() - text.size());
        }
    }
    return result;
}

std::string harmless_json(std::string_view document) {
    return escaped(document, [](unsigned character) {
        constexpr unsigned first_pair = 0x10000; // two halves in JSON
        return character < first_pair
                   ? fmt::format("\\u{:04x}", character)
                   : fmt::format("\\u{:04x}\\u{:04x}", 0xD7C0 + (character >> 10U),
                                 0xDC00 + (character & 0x3FFU));
    });
}

std::string harmless_xml(std::string_view document) {
    return escaped(document,
                   [](unsigned character) { return fmt::format("&#x{:04x};", character); });
}

std::size_t columns(std::string_view text) {
    if (is_plain(text)) {
        return text.size();
    }
    std::size_t count = 0;
    while (!text.empty()) {
        count += take_cluster(text).width;
    }
    return count;
}

std::string shortened(std::string_view text, std::size_t width) {
    if (text.size() <= width) { // no character takes more cells than bytes
        return std::string(text);
    }
    const std::string_view whole = first_cells(text, width);
    return whole.size() == text.size() ? std::string(text)
                                       : std::string(first_cells(text, width - 1)) + "…";
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        std::string_view line = first_cells(text, std::max<std::size_t>(width, 2));
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
