// Reads NF-e and NFC-e files into value objects and shows a person what they hold.

#include "exports.hpp"
#include "overview.hpp"
#include "reading.hpp"
#include "show.hpp"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace nfe_summary {

namespace {

struct arguments {
    std::vector<std::string> paths;
    bool json = false;
    bool xml = false;
    bool diff = false;
    std::size_t width = 0; // 0: the terminal's
};

/// Tells the refused texts of a file on standard error. Answers the status.
int tell_refusals(const std::string& path, const layout::report& told) {
    for (const std::string& refusal : refusals(told)) {
        complain(path, refusal);
    }
    return told.refused.empty() ? 0 : 1;
}

/// Tells on standard error in what a file differs from what was written of it.
int tell_changes(const std::string& path, const layout::report& told) {
    for (const std::string& change : changes(told)) {
        complain(path, change);
    }
    return tell_refusals(path, told);
}

int run_json(const std::string& path) {
    const layout::invoice_document document = layout::read_file(path);
    write_json(document);
    return tell_refusals(path, document.report);
}

int run_xml(const std::string& path) {
    const layout::invoice_document document = layout::read_file(path);
    nfe_summary::write_xml(document);
    return tell_changes(path, document.report);
}

int run_diff(const std::string& left_path, const std::string& right_path) {
    const bool differ = write_differences(left_path, layout::parse_file(left_path), right_path,
                                          layout::parse_file(right_path));
    return differ ? 1 : 0;
}

int run_show(const arguments& given) {
    const page terminal = page::of_terminal();
    const page out = given.width == 0 ? terminal : terminal.as_wide_as(given.width);
    const std::string& first = given.paths.front();
    std::error_code ignored; // what is not there is told when it is read
    if (given.paths.size() > 1 || std::filesystem::is_directory(first, ignored)) {
        const file_list files = files_of(given.paths);
        const int status = show_overview(out, files.paths);
        return files.complete ? status : 1;
    }
    const layout::invoice_document document = layout::read_file(first);
    show(out, document);
    return document.report.refused.empty() ? 0 : 1;
}

void check(const arguments& given) {
    if (given.paths.empty()) {
        throw CLI::ValidationError("a file is needed");
    }
    if ((given.json && (given.xml || given.diff)) || (given.xml && given.diff)) {
        throw CLI::ValidationError("only one of --json, --xml and --diff");
    }
    if (given.diff && given.paths.size() != 2) {
        throw CLI::ValidationError("--diff takes two files");
    }
    if ((given.json || given.xml) && given.paths.size() != 1) {
        throw CLI::ValidationError("--json and --xml take one file");
    }
}

int parse_and_run(int argc, char** argv) {
    arguments given;
    CLI::App app("Shows NF-e and NFC-e files to a person: one file whole, several files or folders "
                 "with a\nline for each and their sum.",
                 "nfe_summary");
    app.add_option("FILE", given.paths, "XML files, or folders of them")->type_name("");
    app.add_flag("--json", given.json, "Write the whole content of a file, as paths and texts");
    app.add_flag("--xml", given.xml, "Write the invoice of a file as an unsigned XML document");
    app.add_flag("--diff", given.diff, "Write what differs between two files, by path");
    app.add_option("--width", given.width, "Columns to fill, from 40, instead of the terminal's")
        ->check(CLI::Range(40, 10'000).description(""))
        ->type_name("N");
    app.footer("Ends with status 0; with 1 where a file cannot be read, a field cannot hold a "
               "text, or\ntwo files differ.");
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return "nfe_summary: " + harmless(error.what()) + "; --help tells more\n";
    });
    try {
        app.parse(argc, argv);
        check(given);
    } catch (const CLI::ParseError& outcome) {
        return app.exit(outcome) == 0 ? 0 : 1;
    }
    const std::string& first = given.paths.front();
    return given.json   ? run_json(first)
           : given.xml  ? run_xml(first)
           : given.diff ? run_diff(first, given.paths.back())
                        : run_show(given);
}

} // namespace

} // namespace nfe_summary

int main(int argc, char** argv) {
    try {
        const int status = nfe_summary::parse_and_run(argc, argv);
        if (std::fflush(stdout) != 0) {
            nfe_summary::complain("standard output", "cannot be written");
            return 1;
        }
        return status;
    } catch (const std::exception& failure) {
        nfe_summary::complain(failure.what());
    }
    return 1;
}
