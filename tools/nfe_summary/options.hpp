#pragma once

#include "content.hpp"
#include "overview.hpp"

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

/// What a person can ask for, and what is said about it: help, manual page and completion are made
/// of the same texts.
namespace nfe_summary {

/// What is written.
enum class output { summary, json, xml, csv, html, differences, faults };

struct arguments {
    std::vector<std::string> paths;
    output wanted = output::summary;
    grouping by = grouping::none;
    bool only_fields = false;          ///< --xml: without what has no field
    bool items = false;                ///< --csv: a line for each
    std::size_t limit = 64 * megabyte; ///< bytes of a file
    std::size_t width = 0;             ///< 0: the terminal's
    std::string language;              ///< empty: the environment's; chosen already
    bool help = false;
    bool version = false;
};

/// An option.
struct option_text {
    const char* name;
    const char* argument; ///< what it takes; null for nothing
    const char* values;   ///< the words that it takes, parted by spaces; null where it takes others
    const char* help;
};
std::span<const option_text> options();

/// A status with which the program ends.
struct status_text {
    int status;
    const char* help;
};
std::span<const status_text> statuses();

inline constexpr int all_well = 0;
inline constexpr int something_told = 1;
inline constexpr int trouble = 2;

/// What the program does, in one line and in paragraphs.
const char* purpose();
std::span<const char* const> description();
/// Commands that show what can be asked for, each with what it does.
struct example_text {
    const char* command;
    const char* help;
};
std::span<const example_text> examples();

/// Wrong use; says what is wrong.
class usage_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line. Throws usage_error.
arguments read_arguments(int argc, char** argv);

/// The help, in the chosen language.
std::string help_text();

} // namespace nfe_summary
