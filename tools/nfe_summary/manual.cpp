// Writes what is installed beside nfe_summary from the texts of its help: a manual page in the
// chosen language, or completion for a shell.

#include "language.hpp"
#include "options.hpp"

#include <fmt/format.h>

#include <algorithm>
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

/// What an option does, in few words.
std::string_view first_words(const option_text& option) {
    const std::string_view whole = option.help;
    return whole.substr(0, std::min(whole.find_first_of(".;"), whole.find(" (")));
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

void write_zsh() {
    fmt::print("#compdef nfe_summary\n_arguments \\\n");
    for (const option_text& option : options()) {
        std::string words = replaced(first_words(option), "[]:", "\\");
        for (std::size_t at = 0; (at = words.find('\'', at)) != words.npos; at += 4) {
            words.replace(at, 1, "'\\''");
        }
        fmt::print("    '--{}[{}]", option.name, words);
        if (option.argument != nullptr) {
            fmt::print(":{}:{}", option.argument,
                       option.values == nullptr ? "" : fmt::format("({})", option.values));
        }
        fmt::print("' \\\n");
    }
    fmt::print("    '*:FILE:_files'\n");
}

void write_fish() {
    for (const option_text& option : options()) {
        fmt::print("complete -c nfe_summary -l {}{}{} -d '{}'\n", option.name,
                   option.argument == nullptr ? "" : " -x",
                   option.values == nullptr ? "" : fmt::format(" -a '{}'", option.values),
                   replaced(first_words(option), "'\\", "\\"));
    }
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
