#include "exports.hpp"

#include "text.hpp"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <vector>

namespace nfe_summary {

namespace {

using json = nlohmann::ordered_json;

/// A list, where there is room with an element on each line.
std::string list(const std::vector<json>& elements, spread how) {
    std::string result;
    for (const json& element : elements) {
        result += result.empty() ? "" : ",";
        result += how == spread::readable ? "\n" : "";
        // a byte that is not UTF-8 has no place in JSON
        result += element.dump(-1, ' ', false, json::error_handler_t::replace);
    }
    return '[' + result + ']';
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

std::string json_of(const std::string& file, const layout::tree& tree,
                    const layout::invoice_document& document, spread how) {
    layout::path_teller path(tree.root());
    const std::string invoice = path(layout::invoice_in(tree));
    std::vector<json> texts;
    std::vector<json> beside;
    for (const auto& placed : layout::texts_of(tree.root())) {
        if (placed.path.starts_with(invoice + '/')) {
            texts.push_back(
                {{"path", placed.path.substr(invoice.size() + 1)}, {"text", placed.text}});
        } else {
            beside.push_back({{"path", placed.path}, {"text", placed.text}});
        }
    }
    const layout::report& told = document.report;
    std::string result = "{";
    const auto add = [&](const char* name, const std::string& value) {
        result += result.size() == 1 ? "" : how == spread::readable ? ",\n" : ",";
        result += fmt::format("{}: {}", json(name).dump(), value);
    };
    const auto text = [](const std::string& value) {
        return json(value).dump(-1, ' ', false, json::error_handler_t::replace);
    };
    add("file", text(file));
    add("root", text(std::string(tree.root().name.text())));
    add("invoice", text(invoice));
    add("texts", list(texts, how));
    add("beside", list(beside, how));
    add("unknown", list({told.unknown.begin(), told.unknown.end()}, how));
    add("without_field", list({told.without_field.begin(), told.without_field.end()}, how));
    add("refused", list(remarks(told.refused), how));
    add("written_otherwise", list(remarks(told.written_otherwise), how));
    add("without_room", list(remarks(told.without_room), how));
    add("added", list(remarks(told.added), how));
    return harmless_json(result + '}');
}

std::string xml_of(const layout::invoice_document& document, bool only_fields) {
    return harmless_xml(only_fields ? layout::write_xml(document.invoice, document.outside)
                                    : layout::write_xml(document));
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
