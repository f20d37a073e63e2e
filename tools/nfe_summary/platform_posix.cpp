#include "platform.hpp"

#include <sys/ioctl.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace nfe_summary::platform {

void prepare_streams() {}

bool is_terminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

std::optional<std::size_t> terminal_columns() {
    if (!is_terminal(stdout)) {
        return {};
    }
    winsize size = {};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col != 0;
    return std::size_t{known ? size.ws_col : 80U};
}

std::string meaning_of(int error) {
    const char* const known = strerrordesc_np(error);
    return known == nullptr ? std::to_string(error) : known;
}

std::filesystem::path program() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
}

std::string language_of_settings() { return {}; }

void translate_into(const std::string& language) {
    // with any locale but C, gettext takes the language from this variable
    std::setlocale(LC_MESSAGES, language == "en" ? "C" : "C.UTF-8");
    setenv("LANGUAGE", language.c_str(), 1);
}

} // namespace nfe_summary::platform
