// Reads NF-e and NFC-e files into value objects and shows a person what they hold.

#include "content.hpp"
#include "csv.hpp"
#include "exports.hpp"
#include "faults.hpp"
#include "html.hpp"
#include "in_order.hpp"
#include "language.hpp"
#include "options.hpp"
#include "overview.hpp"
#include "platform.hpp"
#include "reading.hpp"
#include "show.hpp"
#include "source.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <deque>
#include <exception>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace nfe_summary {

namespace {

/// A file, by `read_source` or `read_single`; what is wrong with it names it.
source read_named(const std::string& path, std::size_t limit,
                  source (*read)(const std::string&, std::size_t)) {
    try {
        return read(path, limit);
    } catch (const std::exception& failure) {
        throw std::runtime_error(path + ": " + failure.what());
    }
}

/// Tells the refused texts of an invoice on standard error. Answers the status.
int tell_refusals(const std::string& name, const layout::report& told) {
    for (const std::string& refusal : refusals(told)) {
        complain(name, refusal);
    }
    return told.refused.empty() ? all_well : something_told;
}

int run_xml(const arguments& given) {
    const std::string& path = given.paths.front();
    const source file = read_named(path, given.limit, read_single);
    layout::invoice_document document;
    std::string xml;
    try {
        document = read_invoice(*file.invoices.front());
        xml = xml_of(document, given.only_fields);
    } catch (const std::exception& failure) {
        throw std::runtime_error(path + ": " + translated(failure.what()));
    }
    fmt::print("{}\n", xml);
    const std::vector<std::string> lost = paths_without_field(document.report);
    if (given.only_fields && !lost.empty()) {
        complain(path, say("left out, without a field: {}", joined(lost)));
    }
    for (const std::string& change : changes(document)) {
        complain(path, change);
    }
    return tell_refusals(path, document.report);
}

/// A page of one invoice. What the other files hold, such as its cancellation, belongs to it.
int run_html(const arguments& given) {
    std::deque<named_source> files;
    const named_source* of_invoice = nullptr;
    std::size_t count = 0;
    for (const std::string& path : given.paths) {
        files.push_back({path, read_named(path, given.limit, read_source)});
        const std::size_t more = files.back().content.invoices.size();
        of_invoice = more == 0 ? of_invoice : &files.back();
        count += more;
    }
    if (count != 1) {
        throw std::runtime_error(say("--html takes one invoice, and what belongs to it; the files "
                                     "hold {} invoices",
                                     count));
    }
    const survey all = survey_of(files, survey_detail::invoices);
    const surveyed& told = all.invoices.front();
    if (!told.failure.empty()) {
        throw std::runtime_error(of_invoice->path + ": " + told.failure);
    }
    const layout::tree& tree = *of_invoice->content.invoices.front();
    const layout::invoice_document document = read_invoice(tree);
    fmt::print("{}\n", html_of(tree, document, told));
    return tell_refusals(of_invoice->path, document.report);
}

int run_differences(const arguments& given) {
    const std::string& left_path = given.paths.front();
    const std::string& right_path = given.paths.back();
    const source left = read_named(left_path, given.limit, read_single);
    const source right = read_named(right_path, given.limit, read_single);
    const bool differ =
        write_differences(left_path, *left.invoices.front(), right_path, *right.invoices.front());
    return differ ? something_told : all_well;
}

/// What is written of a file, and what is told beside it.
struct written_file {
    std::string text;
    std::vector<std::pair<std::string, std::string>> complaints;
    int status = all_well;

    void fail(const std::string& name, const std::string& reason) {
        complaints.emplace_back(name, reason);
        status = trouble;
    }
};

/// Writes something of each invoice, in their order. Files are read on all cores.
template <class Write>
int write_each(const std::vector<std::string>& paths, std::size_t limit, Write write) {
    int status = all_well;
    make_in_order(
        paths.size(),
        [&](std::size_t index) {
            const std::string& path = paths[index];
            written_file made;
            source file;
            try {
                file = read_source(path, limit);
            } catch (const std::exception& failure) {
                made.fail(path, failure.what());
            }
            for (std::size_t place = 0; place < file.invoices.size(); ++place) {
                const std::string name = name_in(path, file, place);
                try {
                    write(name, *file.invoices[place], file.invoices.size() > 1, made);
                } catch (const std::exception& failure) {
                    made.fail(name, failure.what());
                }
            }
            if (made.status == all_well && file.invoices.empty()) {
                made.complaints.emplace_back(path, tr("holds no invoice, but what belongs to one"));
            }
            return made;
        },
        [&](std::size_t, written_file&& made) {
            fmt::print("{}", made.text);
            for (const auto& [name, reason] : made.complaints) {
                complain(name, reason);
            }
            status = std::max(status, made.status);
        });
    return status;
}

int run_json(const arguments& given, const file_list& files) {
    const bool many = files.paths.size() > 1 || is_folder(given.paths.front());
    return write_each(
        files.paths, given.limit,
        [&](const std::string& name, const layout::tree& tree, bool several, written_file& made) {
            const layout::invoice_document document = read_invoice(tree);
            made.text += json_of(name, tree, document,
                                 many || several ? spread::one_line : spread::readable) +
                         '\n';
            for (const std::string& refusal : refusals(document.report)) {
                made.complaints.emplace_back(name, refusal);
                made.status = std::max(made.status, something_told);
            }
        });
}

int run_check(const arguments& given, const file_list& files) {
    return write_each(
        files.paths, given.limit,
        [](const std::string& name, const layout::tree& tree, bool, written_file& made) {
            for (const std::string& fault : faults_of(tree)) {
                made.text += fmt::format("{}\n", harmless(fmt::format("{}: {}", name, fault)));
                made.status = std::max(made.status, something_told);
            }
        });
}

/// Tells what could not be read. Answers the status.
int tell_failures(const survey& all) {
    int status = all_well;
    for (const surveyed& invoice : all.invoices) {
        if (!invoice.failure.empty()) {
            complain(invoice.file, invoice.failure);
            status = trouble;
        } else if (invoice.refused) {
            status = std::max(status, something_told);
        }
    }
    return status;
}

int run_csv(const arguments& given, const file_list& files) {
    const survey all = survey_of(files.paths, given.limit,
                                 given.items ? survey_detail::item_rows : survey_detail::rows);
    write_csv(all, given.items);
    return tell_failures(all);
}

/// A file alone: an invoice as a whole, or an event.
int show_file(const page& out, const std::string& path, const source& file) {
    if (file.invoices.empty()) {
        for (const layout::event& event : file.events) {
            show_event(out, event);
        }
        for (const layout::protocol& answer : file.answers) {
            show_answer(out, answer);
        }
        return all_well;
    }
    try {
        const layout::tree& tree = *file.invoices.front();
        const layout::invoice_document document = read_invoice(tree);
        show(out, tree, document);
        return document.report.refused.empty() ? all_well : something_told;
    } catch (const std::exception& failure) {
        complain(path, failure.what());
        return trouble;
    }
}

int run_summary(const arguments& given, const file_list& files) {
    const page terminal = page::of_terminal();
    const page out = given.width == 0 ? terminal : terminal.as_wide_as(given.width);
    const std::string& first = given.paths.front();
    if (given.paths.size() == 1 && given.by == grouping::none && !is_folder(first)) {
        source file;
        try {
            file = read_source(first, given.limit);
        } catch (const std::exception& failure) {
            complain(first, failure.what());
            return trouble;
        }
        const std::size_t parts = file.invoices.size() + file.events.size() + file.answers.size();
        if (parts == 1 || file.invoices.empty()) {
            return show_file(out, first, file);
        }
        std::deque<named_source> files_read;
        files_read.push_back({first, std::move(file)});
        const survey all = survey_of(files_read, survey_detail::invoices);
        show_overview(out, all);
        return tell_failures(all);
    }
    const bool items = given.by == grouping::cfop || given.by == grouping::ncm;
    const survey all =
        survey_of(files.paths, given.limit, items ? survey_detail::items : survey_detail::invoices);
    const int status = tell_failures(all);
    given.by == grouping::none ? show_overview(out, all) : show_groups(out, all, given.by);
    return status;
}

int run(const arguments& given) {
    if (given.help) {
        fmt::print("{}", help_text());
        return all_well;
    }
    if (given.version) {
        fmt::print("nfe_summary {}\n", NFE_SUMMARY_VERSION);
        return all_well;
    }
    if (given.wanted == output::xml) {
        return run_xml(given);
    }
    if (given.wanted == output::differences) {
        return run_differences(given);
    }
    if (given.wanted == output::html) {
        return run_html(given);
    }
    const file_list files = files_of(given.paths);
    const int status = given.wanted == output::json     ? run_json(given, files)
                       : given.wanted == output::faults ? run_check(given, files)
                       : given.wanted == output::csv    ? run_csv(given, files)
                                                        : run_summary(given, files);
    return files.complete ? status : trouble;
}

int parse_and_run(int argc, char** argv) {
    platform::prepare_streams();
    choose_language("");
    try {
        return run(read_arguments(argc, argv));
    } catch (const usage_error& wrong) {
        complain(say("{}; --help tells more", wrong.what()));
    } catch (const std::system_error& failure) { // its words are in the locale's encoding
        const std::string reason = system_reason(failure.code().value());
        complain(std::ferror(stdout) != 0 ? say("the output cannot be written: {}", reason)
                                          : reason);
    } catch (const std::exception& failure) {
        complain(failure.what());
    }
    return trouble;
}

} // namespace

} // namespace nfe_summary

int main(int argc, char** argv) {
    const int status = nfe_summary::parse_and_run(argc, argv);
    if (std::fclose(stdout) != 0) {
        nfe_summary::complain(nfe_summary::say("the output cannot be written: {}",
                                               nfe_summary::system_reason(errno)));
        return nfe_summary::trouble;
    }
    return status;
}
