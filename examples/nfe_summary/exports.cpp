#include "exports.hpp"

#include "text.hpp"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <vector>

namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

namespace {

using json = nlohmann::ordered_json;

/// A list with an element on each line.
std::string list(const std::vector<json>& elements) {
    std::string lines;
    for (const json& element : elements) {
        lines += lines.empty() ? "\n" : ",\n";
        // a byte that is not UTF-8 has no place in JSON
        lines += element.dump(-1, ' ', false, json::error_handler_t::replace);
    }
    return '[' + lines + ']';
}

std::vector<json> remarks(const std::vector<layout::report::remark>& told) {
    std::vector<json> result;
    result.reserve(told.size());
    for (const auto& remark : told) {
        result.push_back(
            {{"path", remark.path}, {"text", remark.text}, {"instead", remark.instead}});
    }
    return result;
}

/// What stands around the invoice of a document, without the elements around it.
layout::tree beside_invoice(const layout::tree& document) {
    const layout::node& invoice = layout::invoice_in(document);
    layout::tree result;
    result.open("");
    for (const layout::node* parent = &invoice; parent->up != 0;) {
        const layout::node* const inner = parent;
        parent -= parent->up;
        for (const layout::node& child : layout::children(*parent)) {
            if (&child != inner) {
                result.add(child);
            }
        }
    }
    result.close();
    return result;
}

} // namespace

void write_json(const layout::invoice_document& document) {
    std::vector<json> texts;
    const layout::tree written =
        layout::write_tree(document.invoice, document.outside, document.kept);
    for (const auto& placed : layout::texts_of(written.root())) {
        texts.push_back({{"path", placed.path}, {"text", placed.text}});
    }
    const layout::report& told = document.report;
    const std::string whole = fmt::format(
        R"({{"texts": {},
"without_field": {},
"refused": {},
"written_otherwise": {},
"without_room": {},
"unknown": {},
"added": {},
"beside": {}}})",
        list(texts), list({told.without_field.begin(), told.without_field.end()}),
        list(remarks(told.refused)), list(remarks(told.written_otherwise)),
        list(remarks(told.without_room)), list({told.unknown.begin(), told.unknown.end()}),
        list(remarks(told.added)), list({document.beside.begin(), document.beside.end()}));
    fmt::print("{}\n", escaped(whole, "\\u", ""));
}

void write_xml(const layout::invoice_document& document) {
    fmt::print("{}\n", escaped(layout::write_xml(document), "&#x", ";"));
}

bool write_differences(const std::string& left_path, const layout::tree& left,
                       const std::string& right_path, const layout::tree& right) {
    std::vector<layout::difference> found =
        layout::differences(layout::invoice_in(left), layout::invoice_in(right));
    for (const layout::difference& beside :
         layout::differences(beside_invoice(left).root(), beside_invoice(right).root())) {
        found.push_back(beside);
    }
    if (!found.empty()) {
        fmt::print("--- {}\n+++ {}\n", harmless(left_path), harmless(right_path));
    }
    for (const layout::difference& difference : found) {
        if (difference.left) {
            fmt::print("- {}: {}\n", difference.path, harmless(*difference.left, blanks::as_signs));
        }
        if (difference.right) {
            fmt::print("+ {}: {}\n", difference.path,
                       harmless(*difference.right, blanks::as_signs));
        }
    }
    return !found.empty();
}

} // namespace nfe_summary
