#include "overview.hpp"

#include "language.hpp"
#include "table.hpp"

#include <fmt/format.h>

#include <map>
#include <tuple>
#include <utility>

namespace nfe_summary {

namespace {

/// Why an invoice is not summed with the others; empty where it is.
std::string mark_of(validity valid) {
    switch (valid) {
    case validity::authorised:
        return "";
    case validity::unauthorised:
        return tr("without authorisation");
    case validity::cancelled:
        return tr("cancelled");
    case validity::denied:
        return tr("denied");
    case validity::rejected:
        return tr("rejected");
    case validity::test:
        return tr("test environment");
    }
    return "";
}

std::string mark_of(nature kind) {
    switch (kind) {
    case nature::regular:
        return "";
    case nature::inbound:
        return tr("inbound");
    case nature::complement:
        return tr("complement");
    case nature::adjustment:
        return tr("adjustment");
    case nature::returned:
        return tr("return");
    case nature::credit_note:
        return tr("credit note");
    case nature::debit_note:
        return tr("debit note");
    }
    return "";
}

std::string marks_of(const surveyed& invoice) {
    return joined(
        {invoice.repeated ? tr("repeated") : "", mark_of(invoice.valid), mark_of(invoice.kind)});
}

/// What sets a sum apart: invoices that do not count are summed, each kind for itself.
using share = std::pair<validity, nature>;

share share_of(const surveyed& invoice) { return {invoice.valid, invoice.kind}; }

std::string name_of(const share& which) {
    return joined({mark_of(which.first), mark_of(which.second)});
}

struct counted_sum {
    std::size_t count = 0;
    decimal_sum total;

    void add(const fiscal::decimal& value) {
        ++count;
        total.add(value);
    }
};

/// `AAAA-MM-DDT...` as `DD/MM/AAAA`.
std::string day_text(const std::string& issued) {
    const std::string whole = time_text(issued);
    return whole == issued ? issued : whole.substr(0, 10);
}

void show_table(const page& out, const table& shown) {
    const std::vector<std::string> lines = shown.lines(out.width);
    for (std::size_t index = 0; lines.size() > 1 && index < lines.size(); ++index) {
        index == 0 ? out.heading(lines[index]) : page::line(lines[index]);
    }
    out.left_out(shown.left_out(out.width));
}

/// The sums, one for each share; what is in none of them is counted.
void show_sums(const page& out, const survey& all) {
    std::map<share, counted_sum> sums{{{validity::authorised, nature::regular}, {}}};
    std::size_t repeated = 0;
    std::size_t failed = 0;
    for (const surveyed& invoice : all.invoices) {
        failed += invoice.failure.empty() ? 0 : 1;
        repeated += invoice.repeated ? 1 : 0;
        if (invoice.counts()) {
            sums[share_of(invoice)].add(invoice.total);
        }
    }
    std::vector<std::vector<std::string>> rows;
    for (const auto& [which, sum] : sums) {
        const std::string name = name_of(which);
        rows.push_back(
            {name.empty() ? tr("authorised") : name, fmt::to_string(sum.count), sum.total.text()});
    }
    if (repeated != 0) {
        rows.push_back({tr("repeated, not summed"), fmt::to_string(repeated), ""});
    }
    if (failed != 0) {
        rows.push_back({tr("not read"), fmt::to_string(failed), ""});
    }
    const column count = {tr("Invoices"), true};
    const column total = {tr("Total"), true};
    table whole({{tr("Sums")}, count, total});
    table figures({count, total});
    for (const std::vector<std::string>& row : rows) {
        whole.add(row);
        figures.add({row[1], row[2]});
    }
    if (whole.fits(out.width)) {
        show_table(out, whole);
        return;
    }
    // where there is no room beside them, what is summed stands above its figures
    const std::vector<std::string> lines = figures.lines(out.width);
    out.heading(tr("Sums"));
    out.heading(lines.front());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        page::line(shortened(rows[index].front(), out.width));
        page::line(lines[index + 1]);
    }
}

/// What is to be told of files that hold no invoice.
void show_others(const page& out, const survey& all) {
    for (const surveyed_event& event : all.events) {
        if (!event.has_invoice) {
            out.note(fmt::format("{}: {}", event.file,
                                 say("{}; its invoice {} is not among the files",
                                     event_text(event.told), event.told.key)));
        }
    }
    for (const surveyed_answer& answer : all.answers) {
        if (!answer.has_invoice) {
            out.note(fmt::format("{}: {}", answer.file,
                                 say("{} {}; its invoice {} is not among the files",
                                     answer.told.status, answer.told.reason, answer.told.key)));
        }
    }
}

} // namespace

void show_overview(const page& out, const survey& all) {
    table shown({{tr("Key"), false, 5},
                 {tr("Number"), true},
                 {tr("Date"), false, 2},
                 {tr("Issuer"), false, 1, 14},
                 {tr("Recipient"), false, 4, 14},
                 {tr("Total"), true},
                 {tr("Marks"), false, 0, 10},
                 {tr("File"), false, 6}});
    std::vector<const surveyed*> in_table;
    for (const surveyed& invoice : all.invoices) {
        if (invoice.failure.empty()) {
            shown.add({invoice.key, invoice.number, day_text(invoice.issued), invoice.issuer.name,
                       invoice.recipient.name, amount(invoice.total), marks_of(invoice),
                       invoice.file});
            in_table.push_back(&invoice);
        }
    }
    const std::vector<std::string> lines = shown.lines(out.width);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (index == 0) {
            if (!in_table.empty()) {
                out.heading(lines[index]);
            }
            continue;
        }
        page::line(lines[index]);
        const surveyed& invoice = *in_table[index - 1];
        for (const std::string& problem : invoice.problems) {
            out.note(fmt::format("{}: {}", invoice.file, problem));
        }
        for (const std::string& told : invoice.notes) {
            out.note(fmt::format("{}: {}", invoice.file, told));
        }
    }
    out.left_out(shown.left_out(out.width));
    show_others(out, all);
    page::line("");
    show_sums(out, all);
}

namespace {

/// What a line of groups is for: its key first, for the order.
struct group {
    std::string id;
    share which;
    bool outside = false; ///< items that are not part of a total

    auto operator<=>(const group&) const = default; // NOLINT: the compiler writes it
};

struct group_sums {
    std::string name;
    counted_sum values;
    decimal_sum icms;
    decimal_sum ipi;
};

using groups = std::map<group, group_sums>;

groups groups_of_invoices(const survey& all, grouping by) {
    groups result;
    for (const surveyed& invoice : all.invoices) {
        if (!invoice.counts()) {
            continue;
        }
        const party& whose = by == grouping::issuer ? invoice.issuer : invoice.recipient;
        const bool month = by == grouping::month;
        group_sums& sums =
            result[{month ? invoice.issued.substr(0, 7) : whose.id, share_of(invoice)}];
        sums.name = month ? "" : whose.name;
        sums.values.add(invoice.total);
    }
    return result;
}

groups groups_of_items(const survey& all, grouping by) {
    groups result;
    for (const surveyed& invoice : all.invoices) {
        for (const surveyed_item& item : invoice.items) {
            if (!invoice.counts()) {
                continue;
            }
            group_sums& sums = result[{by == grouping::cfop ? item.cfop : item.ncm,
                                       share_of(invoice), !item.counts}];
            sums.values.add(item.value);
            sums.icms.add(item.icms);
            sums.ipi.add(item.ipi);
        }
    }
    return result;
}

std::string heading_of(grouping by) {
    switch (by) {
    case grouping::issuer:
        return tr("Issuer");
    case grouping::recipient:
        return tr("Recipient");
    case grouping::month:
        return tr("Month");
    case grouping::cfop:
        return "CFOP";
    case grouping::ncm:
        return "NCM";
    case grouping::none:
        break;
    }
    return "";
}

} // namespace

void show_groups(const page& out, const survey& all, grouping by) {
    const bool items = by == grouping::cfop || by == grouping::ncm;
    table shown({{heading_of(by)},
                 {tr("Name"), false, 1, 16},
                 {tr("Marks"), false, 0, 8},
                 {items ? tr("Items") : tr("Invoices"), true, 2},
                 {items ? tr("Products") : tr("Total"), true},
                 {"ICMS", true, 3},
                 {"IPI", true, 4}});
    for (const auto& [which, sums] :
         items ? groups_of_items(all, by) : groups_of_invoices(all, by)) {
        shown.add({which.id, sums.name,
                   joined({name_of(which.which), which.outside ? tr("outside the total") : ""}),
                   fmt::to_string(sums.values.count), sums.values.total.text(), sums.icms.text(),
                   sums.ipi.text()});
    }
    show_table(out, shown);
    for (const surveyed& invoice : all.invoices) {
        for (const std::string& problem : invoice.problems) {
            out.note(fmt::format("{}: {}", invoice.file, problem));
        }
    }
    show_others(out, all);
    page::line("");
    show_sums(out, all);
}

grouping grouping_of(const std::string& word) {
    const std::map<std::string, grouping> known{{"issuer", grouping::issuer},
                                                {"recipient", grouping::recipient},
                                                {"month", grouping::month},
                                                {"cfop", grouping::cfop},
                                                {"ncm", grouping::ncm}};
    const auto found = known.find(word);
    return found == known.end() ? grouping::none : found->second;
}

} // namespace nfe_summary
