#include "options.hpp"

#include "language.hpp"
#include "text.hpp"

#include <fmt/format.h>

#include <getopt.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <sstream>

namespace nfe_summary {

namespace {

/// In the order of the table.
enum class id {
    by,
    csv,
    items,
    json,
    xml,
    only_fields,
    html,
    diff,
    check,
    width,
    limit,
    lang,
    help,
    version
};

constexpr std::array option_table{
    option_text{"by", mark("WHAT"), groupings,
                mark("Sum by issuer, recipient, month, cfop or ncm")},
    option_text{"csv", nullptr, nullptr,
                mark("Write a line for each invoice, for spreadsheets (RFC 4180). Columns have the "
                     "names of the layout's elements; a text that begins with =, +, - or @ gets an "
                     "apostrophe in front, so that it is no formula")},
    option_text{"items", nullptr, nullptr, mark("With --csv, write a line for each item instead")},
    option_text{"json", nullptr, nullptr,
                mark("Write all texts of each invoice with their paths, an invoice a line where "
                     "there are several; what is written can be given as a FILE again")},
    option_text{"xml", nullptr, nullptr,
                mark("Write the invoice of a file as an unsigned XML document")},
    option_text{"only-fields", nullptr, nullptr,
                mark("With --xml, leave out the elements for which the library has no field")},
    option_text{"html", nullptr, nullptr,
                mark("Write a page of an invoice for a browser and for paper, as the DANFE has it; "
                     "events in other FILEs are told on it")},
    option_text{"diff", nullptr, nullptr, mark("Write what differs between two files, by path")},
    option_text{"check", nullptr, nullptr,
                mark("Write what the layout does not allow in each invoice, a line each")},
    option_text{"width", "N", nullptr, mark("Fill N columns, from 40, instead of the terminal's")},
    option_text{"limit", "MB", nullptr,
                mark("Refuse files of more than so many megabytes, instead of 64")},
    option_text{"lang", mark("LANGUAGE"), "en pt_BR",
                mark("Speak en or pt_BR instead of the language of LANGUAGE, LC_ALL, LC_MESSAGES "
                     "or LANG")},
    option_text{"help", nullptr, nullptr, mark("Show this help")},
    option_text{"version", nullptr, nullptr, mark("Show the version")},
};

constexpr std::array status_table{
    status_text{all_well, mark("all is well; with --diff, the files are equal")},
    status_text{something_told,
                mark("a field cannot hold a text of the file; with --diff, the files differ; with "
                     "--check, the layout does not allow something")},
    status_text{trouble,
                mark("a file cannot be read, the output cannot be written, or the options are "
                     "wrong")},
};

constexpr std::array description_table{
    mark("Shows NF-e and NFC-e files to a person: one invoice whole; several, or folders, with a "
         "line for each and their sums. Invoices that are cancelled, denied, rejected, without "
         "authorisation or of the test environment are marked and summed apart, and so are "
         "returns, complements, adjustments, credit and debit notes and inbound invoices; one "
         "that comes twice counts once."),
    mark("A FILE is an XML document, alone, in a batch or inside a message of a web service, or "
         "what --json wrote; - is standard input. Of a folder, all files below it count whose name "
         "ends in .xml. Events given beside their invoices, such as cancellations, are taken into "
         "account."),
    mark("Nothing leaves the machine."),
};

constexpr std::array example_table{
    example_text{"nfe_summary nota.xml", mark("shows an invoice")},
    example_text{"nfe_summary notas/", mark("shows the invoices of a folder and their sums")},
    example_text{"nfe_summary --by month notas/", mark("sums them by month")},
    example_text{"nfe_summary --csv --items notas/ > itens.csv",
                 mark("writes their items for a spreadsheet")},
    example_text{"nfe_summary --html nota.xml > nota.html",
                 mark("makes a page to look at and print")},
    example_text{"nfe_summary --check nota.xml", mark("looks for what the layout does not allow")},
    example_text{"nfe_summary --json nota.xml | nfe_summary --xml -",
                 mark("makes a document of paths and texts")},
};

/// A whole number of the range.
std::size_t number(const char* name, const char* text, std::size_t least, std::size_t most) {
    std::size_t value = 0;
    const std::string_view whole = text;
    const auto [end, error] = std::from_chars(whole.data(), whole.data() + whole.size(), value);
    if (error != std::errc() || end != whole.data() + whole.size() || value < least ||
        value > most) {
        throw usage_error(
            say("--{} takes a number from {} to {}, not \"{}\"", name, least, most, text));
    }
    return value;
}

/// The word, if the option takes it.
std::string word(const option_text& option, const char* text) {
    std::istringstream words(option.values);
    for (std::string known; words >> known;) {
        if (known == text) {
            return known;
        }
    }
    throw usage_error(say("--{} takes one of {}, not \"{}\"", option.name, option.values, text));
}

void take(arguments& given, std::size_t index, const char* value) {
    const auto write = [&](output wanted) {
        if (given.wanted != output::summary && given.wanted != wanted) {
            throw usage_error(tr("only one of --csv, --json, --xml, --html, --diff and --check"));
        }
        given.wanted = wanted;
    };
    switch (static_cast<id>(index)) {
    case id::by:
        given.by = grouping_of(word(option_table[index], value));
        break;
    case id::csv:
        write(output::csv);
        break;
    case id::items:
        given.items = true;
        break;
    case id::json:
        write(output::json);
        break;
    case id::xml:
        write(output::xml);
        break;
    case id::only_fields:
        given.only_fields = true;
        break;
    case id::html:
        write(output::html);
        break;
    case id::diff:
        write(output::differences);
        break;
    case id::check:
        write(output::faults);
        break;
    case id::width:
        given.width = number("width", value, 40, 10'000);
        break;
    case id::limit:
        given.limit = megabyte * number("limit", value, 1, 4095); // what 32 bits hold
        break;
    case id::lang:
        given.language = word(option_table[index], value);
        choose_language(given.language); // also for what is wrong behind it
        break;
    case id::help:
        given.help = true;
        break;
    case id::version:
        given.version = true;
        break;
    }
}

void check(const arguments& given) {
    if (given.help || given.version) {
        return;
    }
    if (given.paths.empty()) {
        throw usage_error(tr("a file is needed"));
    }
    if (given.items && given.wanted != output::csv) {
        throw usage_error(tr("--items goes with --csv"));
    }
    if (given.only_fields && given.wanted != output::xml) {
        throw usage_error(tr("--only-fields goes with --xml"));
    }
    if (given.by != grouping::none && given.wanted != output::summary) {
        throw usage_error(
            tr("--by goes with none of --csv, --json, --xml, --html, --diff and --check"));
    }
    if (given.wanted == output::differences && given.paths.size() != 2) {
        throw usage_error(tr("--diff takes two files"));
    }
    if (given.wanted == output::xml && given.paths.size() != 1) {
        throw usage_error(tr("--xml takes one file"));
    }
    if (std::count(given.paths.begin(), given.paths.end(), "-") > 1) {
        throw usage_error(tr("standard input can be read once"));
    }
}

} // namespace

std::span<const option_text> options() { return option_table; }
std::span<const status_text> statuses() { return status_table; }
const char* purpose() {
    return mark("shows, sums, checks and converts Brazilian electronic invoices");
}
std::span<const char* const> description() { return description_table; }
std::span<const example_text> examples() { return example_table; }

arguments read_arguments(int argc, char** argv) {
    std::vector<option> known;
    known.reserve(std::size(option_table) + 1);
    for (const option_text& text : option_table) {
        known.push_back(
            {text.name, text.argument == nullptr ? no_argument : required_argument, nullptr, 0});
    }
    known.push_back({nullptr, 0, nullptr, 0});
    arguments given;
    opterr = 0; // what is wrong is told below
    for (;;) {
        int index = 0;
        const int found = getopt_long(argc, argv, ":", known.data(), &index);
        if (found == -1) {
            break;
        }
        if (found == ':') {
            throw usage_error(say("{} takes a value", argv[optind - 1]));
        }
        if (found == '?') {
            const bool letter = optopt != 0;
            throw usage_error(say("no option {}", letter ? fmt::format("-{:c}", optopt)
                                                         : std::string(argv[optind - 1])));
        }
        take(given, static_cast<std::size_t>(index), optarg);
    }
    given.paths.assign(argv + optind, argv + argc);
    check(given);
    return given;
}

std::string help_text() {
    constexpr std::size_t width = 80;
    constexpr std::size_t indent = 18;
    std::string result = say("Usage: {}", "nfe_summary ") + tr("[OPTION...] FILE...") + "\n\n";
    const auto add = [&](std::string_view head, std::string_view text, std::size_t column) {
        std::string first(head);
        for (const std::string& line : wrapped(text, width - column)) {
            result += left(first, column) + line + '\n';
            first.clear();
        }
    };
    for (const char* const paragraph : description_table) {
        add("", tr(paragraph), 0);
        result += '\n';
    }
    result += std::string(tr("Options:")) + '\n';
    for (const option_text& option : option_table) {
        add(fmt::format("  --{}{}{}", option.name, option.argument == nullptr ? "" : " ",
                        option.argument == nullptr ? "" : tr(option.argument)),
            tr(option.help), indent);
    }
    result += '\n' + std::string(tr("Ends with status:")) + '\n';
    for (const status_text& status : status_table) {
        add(fmt::format("  {}", status.status), tr(status.help), 5);
    }
    result += '\n' + std::string(tr("Examples:")) + '\n';
    for (const example_text& example : example_table) {
        result += fmt::format("  {}\n", example.command);
        add("      ", tr(example.help), 6);
    }
    return result;
}

} // namespace nfe_summary
