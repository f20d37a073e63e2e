// Writes what is installed beside nfe_summary from the texts of its help: a manual page in the
// chosen language, or completion for a shell, in the language of its environment.

#include "language.hpp"
#include "options.hpp"

#include <fmt/format.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

namespace nfe_summary {

namespace {

std::string replaced(std::string_view text, std::string_view characters, std::string_view before) {
    std::string result;
    for (const char character : text) {
        if (characters.find(character) != characters.npos) {
            result += before;
        }
        result += character;
    }
    return result;
}

/// A text in a manual page. A full stop at the begin of a line would be a command.
std::string roff(std::string_view text) {
    std::string result = "\\&";
    for (const char character : text) {
        result += character == '\\' ? "\\e" : character == '-' ? "\\-" : std::string(1, character);
    }
    return result;
}

void write_manual() {
    fmt::print(".TH NFE_SUMMARY 1 \"\" \"kivo-erp-fiscal {}\"\n", NFE_SUMMARY_VERSION);
    fmt::print(".SH {}\nnfe_summary \\- {}\n", tr("NAME"), tr(purpose()));
    fmt::print(".SH {}\n.B nfe_summary\n{}\n", tr("SYNOPSIS"), roff(tr("[OPTION...] FILE...")));
    fmt::print(".SH {}\n", tr("DESCRIPTION"));
    for (const char* const paragraph : description()) {
        fmt::print(".PP\n{}\n", roff(tr(paragraph)));
    }
    fmt::print(".SH {}\n", tr("OPTIONS"));
    for (const option_text& option : options()) {
        fmt::print(".TP\n\\fB\\-\\-{}\\fR", replaced(option.name, "-", "\\"));
        if (option.argument != nullptr) {
            fmt::print(" \\fI{}\\fR", tr(option.argument));
        }
        fmt::print("\n{}\n", roff(tr(option.help)));
    }
    fmt::print(".SH {}\n", tr("EXIT STATUS"));
    for (const status_text& status : statuses()) {
        fmt::print(".TP\n{}\n{}\n", status.status, roff(tr(status.help)));
    }
    fmt::print(".SH {}\n", tr("EXAMPLES"));
    for (const example_text& example : examples()) {
        fmt::print(".TP\n\\fB{}\\fR\n{}\n", roff(example.command), roff(tr(example.help)));
    }
}

/// What an option does, in few words: the first part of its help, without what is in parentheses.
std::string first_words(const option_text& option) {
    const std::string whole = tr(option.help);
    std::string words = whole.substr(0, whole.find_first_of(".;"));
    for (std::size_t begin = 0; (begin = words.find(" (")) != words.npos;) {
        words.erase(begin, words.find(')', begin) + 1 - begin);
    }
    return words;
}

void write_bash() {
    std::string names;
    std::string without_words;
    fmt::print("_nfe_summary() {{\n    local current=$2 previous=$3\n    case $previous in\n");
    for (const option_text& option : options()) {
        names += fmt::format(" --{}", option.name);
        if (option.values != nullptr) {
            fmt::print("    --{}) mapfile -t COMPREPLY < <(compgen -W '{}' -- \"$current\") ;;\n",
                       option.name, option.values);
        } else if (option.argument != nullptr) {
            without_words += fmt::format("{}--{}", without_words.empty() ? "" : " | ", option.name);
        }
    }
    fmt::print("    {}) COMPREPLY=() ;;\n", without_words);
    fmt::print("    *) [[ $current != -* ]] ||\n"
               "        mapfile -t COMPREPLY < <(compgen -W '{}' -- \"$current\") ;;\n",
               names.substr(1));
    fmt::print("    esac\n}}\ncomplete -o default -F _nfe_summary nfe_summary\n");
}

void write_zsh_options() {
    fmt::print("    _arguments \\\n");
    for (const option_text& option : options()) {
        std::string words = replaced(first_words(option), "[]:", "\\");
        for (std::size_t at = 0; (at = words.find('\'', at)) != words.npos; at += 4) {
            words.replace(at, 1, "'\\''");
        }
        fmt::print("        '--{}[{}]", option.name, words);
        if (option.argument != nullptr) {
            fmt::print(":{}:{}", tr(option.argument),
                       option.values == nullptr ? "" : fmt::format("({})", option.values));
        }
        fmt::print("' \\\n");
    }
    fmt::print("        '*:{}:_files'", tr("FILE"));
}

void write_zsh() {
    fmt::print("#compdef nfe_summary\ncase ${{LC_ALL:-${{LC_MESSAGES:-$LANG}}}} in\npt*)\n");
    choose_language("pt_BR");
    write_zsh_options();
    fmt::print(" ;;\n*)\n");
    choose_language("en");
    write_zsh_options();
    fmt::print(" ;;\nesac\n");
}

void write_fish_options() {
    for (const option_text& option : options()) {
        fmt::print("    complete -c nfe_summary -l {}{}{} -d '{}'\n", option.name,
                   option.argument == nullptr ? "" : " -x",
                   option.values == nullptr ? "" : fmt::format(" -a '{}'", option.values),
                   replaced(first_words(option), "'\\", "\\"));
    }
}

void write_fish() {
    fmt::print("set -l languages $LC_ALL $LC_MESSAGES $LANG\n"
               "if string match -q 'pt*' -- $languages[1]\n");
    choose_language("pt_BR");
    write_fish_options();
    fmt::print("else\n");
    choose_language("en");
    write_fish_options();
    fmt::print("end\n");
}

} // namespace

} // namespace nfe_summary

int main(int argc, char** argv) {
    const std::string_view wanted = argc > 1 ? argv[1] : "";
    nfe_summary::choose_language(argc > 2 ? argv[2] : "en");
    if (wanted == "manual") {
        nfe_summary::write_manual();
    } else if (wanted == "bash") {
        nfe_summary::write_bash();
    } else if (wanted == "zsh") {
        nfe_summary::write_zsh();
    } else if (wanted == "fish") {
        nfe_summary::write_fish();
    } else {
        return 1;
    }
    return std::fclose(stdout) == 0 ? 0 : 1;
}
