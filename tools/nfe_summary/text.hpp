#pragma once

#include <base/optional.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Texts for a person in front of a terminal. Texts are UTF-8, and their widths are those of a
/// terminal's cells.
namespace nfe_summary {

using kivo::core::v7::optional;

/// The width of a pipe or a file: nothing is shortened or wrapped.
inline constexpr std::size_t unlimited = std::string_view::npos;

/// What becomes of a line break or a tab.
enum class blanks {
    as_spaces, ///< for a person who reads the text
    as_signs,  ///< for one who compares it
};

/// A text on one line and without anything that steers a terminal, turns its direction or is not
/// seen: such a character becomes a visible sign, and so does a byte that is not UTF-8.
std::string harmless(std::string_view text, blanks shown = blanks::as_spaces);

/// A JSON or XML document whose texts may steer a terminal, with these characters escaped.
std::string harmless_json(std::string_view document);
std::string harmless_xml(std::string_view document);

/// How many cells a text takes. Accents take none, characters of East Asia and emoji two.
std::size_t columns(std::string_view text);

/// A text that takes at most so many cells; an ellipsis ends one that is cut.
std::string shortened(std::string_view text, std::size_t width);

/// The lines of a text, broken at spaces where it has some.
std::vector<std::string> wrapped(std::string_view text, std::size_t width);

/// A text behind so many spaces that it ends at the width.
std::string right(std::string_view text, std::size_t width);

/// A text before so many spaces that they end at the width.
std::string left(std::string_view text, std::size_t width);

/// The texts that are not empty, with a separator between them.
std::string joined(const std::vector<std::string>& texts, std::string_view separator = ", ");

/// A text behind a word that tells what it is; nothing where there is no text.
std::string labelled(std::string_view label, const optional<std::string>& text);

} // namespace nfe_summary
