#include "overview.hpp"

#include "reading.hpp"
#include "table.hpp"
#include "values.hpp"

#include <layout/xml.hpp>

#include <fmt/format.h>

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <filesystem>
#include <optional>
#include <thread>

namespace nfe_summary {

namespace {

struct found_invoice {
    std::string key;
    std::string number;
    std::string date;
    std::string issuer;
    std::string recipient;
    fiscal::decimal total;
    std::string problems;
    bool refused = false;
    std::string failure; // why the file cannot be read; the rest is empty then
};

found_invoice read(const std::string& path) {
    found_invoice found;
    try {
        const layout::invoice_document document = layout::read_file(path);
        const fiscal::nota_fiscal& invoice = document.invoice;
        const auto recipient = invoice.get_destinatario();
        found.key = invoice.get_chave_44_digitos();
        found.number = fmt::to_string(invoice.get_numero());
        found.date = day(invoice.get_data_emissao().day());
        found.issuer = invoice.get_emitente().get_razao_social();
        found.recipient = recipient ? recipient->get_razao_social().value_or("") : "";
        found.total = invoice.get_total_nfe().get_total_icms().get_total_da_nota();
        found.problems = problems(document.report);
        found.refused = !document.report.refused.empty();
    } catch (const std::exception& failure) {
        found.failure = failure.what();
    }
    return found;
}

class progress {
public:
    explicit progress(std::size_t total) : total_(total) {}
    ~progress() {
        if (shown_) {
            fmt::print(stderr, "\r\x1b[K");
        }
    }
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// From any thread: one more file has been read.
    void step() {
        const std::size_t done = ++done_;
        if (shown_ && done * 100 / total_ != (done - 1) * 100 / total_) {
            fmt::print(stderr, "\r{} of {} files", done, total_);
        }
    }

private:
    std::size_t total_;
    bool shown_ = isatty(STDERR_FILENO) != 0;
    std::atomic<std::size_t> done_ = 0;
};

std::vector<found_invoice> read_all(const std::vector<std::string>& paths) {
    std::vector<found_invoice> found(paths.size());
    std::atomic<std::size_t> next = 0;
    progress shown(paths.size());
    const auto read_some = [&] {
        for (std::size_t index = next++; index < paths.size(); index = next++) {
            found[index] = read(paths[index]);
            shown.step();
        }
    };
    std::vector<std::jthread> others;
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t count = 1; count < std::min(cores, paths.size()); ++count) {
        others.emplace_back(read_some);
    }
    read_some();
    others.clear(); // waits for them
    return found;
}

/// Adds the .xml files below a folder; false where a folder cannot be listed.
bool add_files(const std::filesystem::path& folder, std::vector<std::string>& paths) {
    std::error_code error;
    bool complete = true;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored; // what is not there any more is neither
        const std::string extension = entry->path().extension().string();
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            complete = add_files(entry->path(), paths) && complete;
        } else if ((extension == ".xml" || extension == ".XML") &&
                   entry->is_regular_file(ignored)) {
            paths.push_back(entry->path().string());
        }
    }
    if (error) {
        complain(folder.string(), error.message());
    }
    return complete && !error;
}

} // namespace

file_list files_of(const std::vector<std::string>& arguments) {
    file_list files;
    for (const std::string& argument : arguments) {
        std::error_code ignored; // what is not there is told when it is read
        if (!std::filesystem::is_directory(argument, ignored)) {
            files.paths.push_back(argument);
            continue;
        }
        std::vector<std::string> below;
        files.complete = add_files(argument, below) && files.complete;
        std::sort(below.begin(), below.end());
        files.paths.insert(files.paths.end(), below.begin(), below.end());
    }
    return files;
}

int show_overview(const page& out, const std::vector<std::string>& paths) {
    table shown({{"Key", false, 3},
                 {"Number", true},
                 {"Date"},
                 {"Issuer", false, 0, 16},
                 {"Recipient", false, 2, 16},
                 {"Total", true},
                 {"Problems", false, 1, 10},
                 {"File", false, 4}});
    decimal_sum sum;
    std::size_t unreadable = 0;
    std::size_t refused = 0;
    const std::vector<found_invoice> all = read_all(paths);
    for (std::size_t index = 0; index < all.size(); ++index) {
        const found_invoice& found = all[index];
        if (!found.failure.empty()) {
            complain(found.failure);
            ++unreadable;
            continue;
        }
        shown.add({found.key, found.number, found.date, found.issuer, found.recipient,
                   amount(found.total), found.problems, paths[index]});
        sum.add(found.total);
        refused += found.refused ? 1 : 0;
    }
    const std::vector<std::string> lines = shown.lines(out.width);
    for (std::size_t index = 0; lines.size() > 1 && index < lines.size(); ++index) {
        index == 0 ? out.heading(lines[index]) : page::line(lines[index]);
    }
    out.left_out(shown.left_out(out.width));
    const auto if_any = [](std::size_t count, std::string_view what) {
        return count == 0 ? "" : fmt::format("{} {}", count, what);
    };
    out.heading(
        joined({fmt::format("Invoices: {}", all.size() - unreadable), labelled("total", sum.text()),
                if_any(refused, "with refused texts"), if_any(unreadable, "not read")}));
    return unreadable == 0 && refused == 0 ? 0 : 1;
}

} // namespace nfe_summary
