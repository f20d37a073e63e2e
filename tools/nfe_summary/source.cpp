#include "source.hpp"

#include "content.hpp"
#include "language.hpp"
#include "text.hpp"

#include <layout/access_key.hpp>
#include <layout/xml_text.hpp>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace nfe_summary {

namespace {

using nlohmann::json;

[[noreturn]] void refuse_json(const std::string& reason) {
    throw std::runtime_error(say("not what --json writes: {}", reason));
}

/// A path may come from anywhere, and its names go into documents.
void check_path(const std::string& path) {
    constexpr std::ptrdiff_t deepest = 100;
    const auto is_allowed = [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
               (character >= '0' && character <= '9') ||
               std::string_view("_-./[]@").find(character) != std::string_view::npos;
    };
    if (!std::all_of(path.begin(), path.end(), is_allowed) ||
        std::count(path.begin(), path.end(), '/') > deepest) {
        refuse_json(say("{} is no path", path));
    }
}

std::string text_in(const json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end() || !found->is_string()) {
        refuse_json(say("no text \"{}\"", name));
    }
    return found->get<std::string>();
}

void add_texts(const json& list, const std::string& before,
               std::vector<layout::placed_text>& texts) {
    if (!list.is_array()) {
        refuse_json(tr("no list of paths and texts"));
    }
    for (const json& placed : list) {
        if (!placed.is_object()) {
            refuse_json(tr("no list of paths and texts"));
        }
        texts.push_back({before + text_in(placed, "path"), text_in(placed, "text")});
        check_path(texts.back().path);
    }
}

/// The document of what --json wrote of one invoice: all its texts and paths. Of those that a
/// program made, a list of the texts below infNFe is enough.
layout::tree document_of(const json& written) {
    std::string root = "NFe";
    std::string invoice = "infNFe";
    if (written.is_object() && written.contains("root")) {
        root = text_in(written, "root");
        invoice = text_in(written, "invoice");
        check_path(root);
    }
    std::vector<layout::placed_text> texts;
    if (written.is_array()) {
        add_texts(written, invoice + '/', texts);
    } else if (written.is_object() && written.contains("texts")) {
        add_texts(written["texts"], invoice + '/', texts);
        if (written.contains("beside")) {
            add_texts(written["beside"], "", texts);
        }
    } else {
        refuse_json(tr("no list of paths and texts"));
    }
    try {
        return layout::tree_of(root, texts);
    } catch (const std::invalid_argument& failure) {
        refuse_json(translated(failure.what()));
    }
}

/// Each value of a text in JSON, as JSON Lines have several.
std::vector<layout::tree> parse_json(const std::string& content) {
    std::vector<layout::tree> documents;
    std::istringstream stream(content);
    try {
        while ((stream >> std::ws).peek() != std::istringstream::traits_type::eof()) {
            json value;
            stream >> value;
            documents.push_back(document_of(value));
        }
    } catch (const json::exception&) {
        refuse_json(say("no JSON behind {} invoices", documents.size()));
    }
    return documents;
}

bool is_json(const std::string& content) {
    const std::size_t first = content.find_first_not_of(" \t\r\n");
    return first != content.npos && (content[first] == '{' || content[first] == '[');
}

/// Takes apart what one document holds.
void add_document(layout::tree parsed, source& result) {
    const layout::tree& document = result.trees.emplace_back(std::move(parsed));
    const layout::envelope found = layout::open_envelope(document);
    for (const layout::enveloped_invoice& invoice : found.invoices) {
        const layout::node* const whole = invoice.around == nullptr ? invoice.nfe : invoice.around;
        const bool alone = whole == &document.root() && invoice.protnfe == nullptr;
        const bool answered = whole == &document.root() && invoice.around != nullptr;
        result.invoices.push_back(alone || answered
                                      ? &document
                                      : &result.trees.emplace_back(layout::document_of(invoice)));
    }
    for (const layout::node* const answer : found.answers) {
        result.answers.push_back(layout::read_protocol(*answer));
    }
    for (const layout::node* const event : found.events) {
        result.events.push_back(layout::read_event(*event));
    }
    if (found.empty()) {
        throw std::runtime_error(translated("not an NF-e or NFC-e: the document is " +
                                            std::string(document.root().name.text())));
    }
}

} // namespace

source parse_source(const std::string& content) {
    source result;
    if (is_json(content)) {
        for (layout::tree& document : parse_json(content)) {
            add_document(std::move(document), result);
        }
    } else {
        try {
            add_document(layout::parse_xml(content), result);
        } catch (const std::runtime_error& failure) {
            throw std::runtime_error(translated(failure.what()));
        }
    }
    return result;
}

source read_source(const std::string& path, std::size_t limit) {
    return parse_source(content_of(path, limit));
}

source read_single(const std::string& path, std::size_t limit) {
    source result = read_source(path, limit);
    if (result.invoices.empty()) {
        throw std::runtime_error(tr("holds no invoice, but what belongs to one"));
    }
    if (result.invoices.size() > 1) {
        throw std::runtime_error(
            say("holds {} invoices, where one is asked for", result.invoices.size()));
    }
    return result;
}

layout::invoice_document read_invoice(const layout::tree& tree) {
    const auto has_elements = [](const layout::node& infnfe) {
        const layout::children all(infnfe);
        return std::any_of(all.begin(), all.end(),
                           [](const layout::node& child) { return !child.name.is_attribute(); });
    };
    try {
        if (!has_elements(layout::invoice_in(tree))) {
            throw std::runtime_error(tr("an invoice without content"));
        }
        return layout::read_document(tree);
    } catch (const std::runtime_error& failure) {
        throw std::runtime_error(translated(failure.what()));
    }
}

std::string id_in(const layout::node& infnfe, const std::string& group) {
    for (const char* const name : {"CNPJ", "CPF", "idEstrangeiro"}) {
        std::string id(layout::text_at(infnfe, group + '/' + name));
        if (!id.empty()) {
            return id;
        }
    }
    return {};
}

kivo::core::v7::optional<layout::protocol> answer_in(const layout::tree& tree) {
    const layout::node* const answer = layout::child_named(tree.root(), "protNFe");
    return answer == nullptr ? kivo::core::v7::optional<layout::protocol>()
                             : layout::read_protocol(*answer);
}

std::vector<std::string> key_problems(const layout::tree& tree) {
    const layout::node& infnfe = layout::invoice_in(tree);
    std::vector<std::string> problems;
    for (const layout::key_fault& fault : layout::key_faults(infnfe)) {
        using kind = layout::key_fault::kind;
        switch (fault.is) {
        case kind::missing:
            problems.emplace_back(tr("no access key"));
            break;
        case kind::form:
            problems.push_back(say("the access key \"{}\" is none", shortened(fault.in_key, 60)));
            break;
        case kind::check_digit:
            problems.push_back(say("the key's check digit is {}, and should be {}", fault.in_key,
                                   fault.elsewhere));
            break;
        case kind::part:
            problems.push_back(say("the key has {} where {} is {}", fault.in_key, fault.element,
                                   shortened(fault.elsewhere, 60)));
            break;
        }
    }
    const auto answer = answer_in(tree);
    if (answer && !answer->key.empty() && answer->key != layout::key_of(infnfe)) {
        problems.push_back(say("the authorisation beside it is of another key, {}", answer->key));
    }
    return problems;
}

std::string name_in(const std::string& path, const source& file, std::size_t index) {
    return file.invoices.size() < 2 ? path : say("{}, invoice {}", path, index + 1);
}

} // namespace nfe_summary
