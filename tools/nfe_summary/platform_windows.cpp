#include "platform.hpp"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdlib>
#include <cstring>

/// Tells the start-up code to list the files that *.xml names: the shells leave that to programs.
extern "C" {
int _dowildcard = -1;
}

namespace nfe_summary::platform {

namespace {

HANDLE handle_of(std::FILE* stream) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

} // namespace

void prepare_streams() {
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    for (std::FILE* const stream : {stdout, stderr}) {
        DWORD mode = 0;
        if (GetConsoleMode(handle_of(stream), &mode) != 0) {
            SetConsoleMode(handle_of(stream), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        }
    }
}

bool is_terminal(std::FILE* stream) {
    DWORD mode = 0;
    return GetConsoleMode(handle_of(stream), &mode) != 0;
}

std::optional<std::size_t> terminal_columns() {
    CONSOLE_SCREEN_BUFFER_INFO screen = {};
    if (GetConsoleScreenBufferInfo(handle_of(stdout), &screen) == 0) {
        return {};
    }
    return static_cast<std::size_t>(screen.srWindow.Right - screen.srWindow.Left + 1);
}

std::string meaning_of(int error) { return std::strerror(error); }

std::filesystem::path program() {
    std::wstring name(32'767, L'\0'); // the longest
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

std::string language_of_settings() {
    return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_PORTUGUESE ? "pt_BR" : "en";
}

void translate_into(const std::string& language) {
    _putenv_s("LC_ALL", language == "en" ? "C" : language.c_str());
    _putenv_s("LANGUAGE", language.c_str());
}

} // namespace nfe_summary::platform
