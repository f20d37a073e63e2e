#include <layout/xml.hpp>

#include <layout/engine.hpp>
#include <layout/parties.hpp>

#include <pugixml.hpp>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kivo::erp::v12::layout {

namespace {

// far deeper than any invoice, far from the end of the stack
constexpr int deepest_level = 100;

std::string_view without_prefix(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == name.npos ? name : name.substr(colon + 1);
}

bool is_namespace(std::string_view attribute) {
    return attribute == "xmlns" || attribute.starts_with("xmlns:") || attribute.starts_with("xsi:");
}

node node_of(const pugi::xml_node& element, int level = 0) {
    if (level > deepest_level) {
        throw std::runtime_error("elements are nested too deeply for an invoice");
    }
    node result{std::string(without_prefix(element.name()))};
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        if (!is_namespace(attribute.name())) {
            result.children.emplace_back(std::string("@") + attribute.name(), attribute.value());
        }
    }
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element) {
            result.children.push_back(node_of(child, level + 1));
        } else if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            result.text += child.value();
        }
    }
    return result;
}

node& enter(node& parent, std::string_view name) {
    node* const child = parent.next_unread(name);
    if (child == nullptr) {
        throw std::runtime_error("not an NF-e or NFC-e: no " + std::string(name) + " in " +
                                 parent.name);
    }
    child->reading = node::state::entered;
    return *child;
}

void cut_prefix(std::string& path, std::string_view prefix) {
    if (path.starts_with(prefix)) {
        path.erase(0, prefix.size());
    }
}

void append(pugi::xml_node parent, const node& element) {
    pugi::xml_node added = parent.append_child(element.name.c_str());
    if (!element.text.empty()) {
        added.append_child(pugi::node_pcdata).set_value(element.text.c_str());
    }
    for (const node& child : element.children) {
        if (child.name.starts_with('@')) {
            added.append_attribute(child.name.c_str() + 1) = child.text.c_str();
        } else {
            append(added, child);
        }
    }
}

} // namespace

document read_xml(std::string_view xml) {
    pugi::xml_document parsed;
    // a text of spaces alone is a text
    const unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single;
    if (const auto outcome = parsed.load_buffer(xml.data(), xml.size(), options); !outcome) {
        throw std::runtime_error(std::string("not an XML document: ") + outcome.description());
    }
    node root = node_of(parsed.document_element());
    if (root.name != "NFe" && root.name != "nfeProc") {
        throw std::runtime_error("not an NF-e or NFC-e: the document is " + root.name);
    }
    const bool processed = root.name == "nfeProc";
    node& invoice = enter(processed ? enter(root, "NFe") : root, "infNFe");

    document result;
    read_value(invoice, "emit", {}, result.content.emitente);
    read_value(invoice, "dest", {}, result.content.destinatario);
    read_value(invoice, "entrega", {}, result.content.local_entrega);

    result.result = sum_up(root);
    const std::string_view prefix = processed ? "NFe/infNFe/" : "infNFe/";
    for (std::string& path : result.result.unread) {
        cut_prefix(path, prefix);
    }
    for (reading::refusal& refusal : result.result.refused) {
        cut_prefix(refusal.path, prefix);
    }
    return result;
}

document read_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    // a directory opens, and fails only when it is read
    if (!file || !(content << file.rdbuf())) {
        throw std::runtime_error("cannot be read");
    }
    return read_xml(content.view());
}

node write_node(const parties& content) {
    node invoice("infNFe");
    write_value(invoice, "emit", {}, content.emitente);
    write_value(invoice, "dest", {}, content.destinatario);
    write_value(invoice, "entrega", {}, content.local_entrega);
    return invoice;
}

std::string xml_of(const node& element) {
    pugi::xml_document written;
    append(written, element);
    std::ostringstream text;
    written.save(text, "", pugi::format_raw | pugi::format_no_declaration);
    return std::move(text).str();
}

} // namespace kivo::erp::v12::layout
