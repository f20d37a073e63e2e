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

std::vector<json> remarks(const std::vector<layout::reading::remark>& told) {
    std::vector<json> result;
    result.reserve(told.size());
    for (const auto& remark : told) {
        result.push_back(
            {{"path", remark.path}, {"text", remark.text}, {"instead", remark.instead}});
    }
    return result;
}

} // namespace

void write_json(const layout::invoice_document& document) {
    std::vector<json> texts;
    for (const auto& placed :
         layout::placed_texts(layout::write_node(document.invoice, document.outside))) {
        texts.push_back({{"path", placed.path}, {"text", placed.text}});
    }
    const layout::reading& result = document.result;
    const std::string written = fmt::format(
        R"({{"texts": {},
"without_field": {},
"changed": {},
"refused": {}}})",
        list(texts), list({result.unread.begin(), result.unread.end()}),
        list(remarks(result.changed)), list(remarks(result.refused)));
    fmt::print("{}\n", escaped(written, "\\u", ""));
}

void write_xml(const layout::invoice_document& document) {
    fmt::print("{}\n", escaped(layout::write_xml(document.invoice, document.outside), "&#x", ";"));
}

bool write_differences(const std::string& left_path, const layout::invoice_document& left,
                       const std::string& right_path, const layout::invoice_document& right) {
    const auto found = layout::differences(layout::write_node(left.invoice, left.outside),
                                           layout::write_node(right.invoice, right.outside));
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
