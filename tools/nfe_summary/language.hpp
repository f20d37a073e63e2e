#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>
#include <utility>

/// The language of the person in front of the terminal. Texts stand in the sources in English, and
/// in po/ in others.
namespace nfe_summary {

/// Chooses the language of all that is said from here on: `pt_BR`, `en`, or what the environment
/// names where it is empty. Any other is English.
void choose_language(const std::string& language);

/// The languages in which everything is said.
inline constexpr const char* languages[] = {"en", "pt_BR"};

/// Marks a text for the translators where it is not yet said.
constexpr const char* mark(const char* text) { return text; }

/// A text in the chosen language.
const char* tr(const char* text);

/// A text in the chosen language, with what is to stand in its braces.
template <class... Arguments>
std::string say(fmt::format_string<Arguments...> text, Arguments&&... arguments) {
    const fmt::string_view english = text;
    return fmt::vformat(tr(english.data()), fmt::make_format_args(arguments...));
}

/// What the companion or the system says, in the chosen language. Names and texts in it stay.
std::string translated(std::string_view message);

} // namespace nfe_summary
