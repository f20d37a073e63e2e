#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

/// What each operating system does in its own way. Texts and file names are UTF-8 on all of them.
namespace nfe_summary::platform {

/// Makes the standard streams pass bytes as they are, and terminals obey their control sequences.
void prepare_streams();

/// Whether a stream is a terminal's.
bool is_terminal(std::FILE* stream);

/// The columns of the terminal that standard output is; absent where it is none.
std::optional<std::size_t> terminal_columns();

/// What an error number means, in English.
std::string meaning_of(int error);

/// The file that is run.
std::filesystem::path program();

/// The language of the person's settings, where there are such outside the environment.
std::string language_of_settings();

/// Makes gettext translate into a language, whether its locale is on the machine or not; `en` is
/// that of the sources.
void translate_into(const std::string& language);

} // namespace nfe_summary::platform
