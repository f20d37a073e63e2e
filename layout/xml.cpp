#include <layout/xml.hpp>

#include <layout/engine.hpp>
#include <layout/invoice.hpp>

#include <pugixml.hpp>

#include <algorithm>
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

/// The elements of the layout that no object holds, each with its place.
struct outside_text {
    const char* group; // below infNFe; "" for infNFe itself
    const char* name;
    std::string outside_texts::*text;
};
constexpr outside_text outside_elements[] = {
    {"", "@versao", &outside_texts::versao},      {"ide", "tpImp", &outside_texts::tp_imp},
    {"ide", "cDV", &outside_texts::c_dv},         {"ide", "procEmi", &outside_texts::proc_emi},
    {"ide", "verProc", &outside_texts::ver_proc},
};

/// The group of an element that no object holds; null where the invoice has no such group.
node* group_of(node& invoice, const outside_text& element) {
    if (*element.group == '\0') {
        return &invoice;
    }
    const auto found = std::find_if(invoice.children.begin(), invoice.children.end(),
                                    [&](const node& child) { return child.name == element.group; });
    return found == invoice.children.end() ? nullptr : &*found;
}

outside_texts read_outside_texts(node& invoice) {
    outside_texts result;
    for (const outside_text& element : outside_elements) {
        node* const group = group_of(invoice, element);
        node* const found = group != nullptr ? group->next_unread(element.name) : nullptr;
        if (found != nullptr && !found->text.empty()) {
            result.*element.text = found->text;
            found->reading = node::state::read;
            group->reading = node::state::entered;
        }
    }
    return result;
}

/// Puts the texts into the places that the map keeps for them; a place without a text goes.
void write_outside_texts(node& invoice, const outside_texts& texts) {
    for (const outside_text& element : outside_elements) {
        std::vector<node>& children = group_of(invoice, element)->children;
        const auto place = std::find_if(children.begin(), children.end(), [&](const node& child) {
            return child.name == element.name;
        });
        place->text = texts.*element.text;
        if (place->text.empty()) {
            children.erase(place);
        }
    }
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

invoice_document read_xml(std::string_view xml) {
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
    node& infnfe = enter(processed ? enter(root, "NFe") : root, "infNFe");

    invoice_document result;
    read_fields(infnfe, result.invoice);
    result.outside = read_outside_texts(infnfe);

    result.result = sum_up(root);
    const std::string_view prefix = processed ? "NFe/infNFe/" : "infNFe/";
    for (std::string& path : result.result.unread) {
        cut_prefix(path, prefix);
    }
    for (auto* const remarks : {&result.result.changed, &result.result.refused}) {
        for (reading::remark& remark : *remarks) {
            cut_prefix(remark.path, prefix);
        }
    }
    return result;
}

invoice_document read_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    // a directory opens, and fails only when it is read
    if (!file || !(content << file.rdbuf())) {
        throw std::runtime_error("cannot be read");
    }
    return read_xml(content.view());
}

node write_node(const fiscal::nota_fiscal& invoice, const outside_texts& outside) {
    node infnfe("infNFe");
    write_fields(infnfe, invoice);
    outside_texts texts = outside;
    const std::string key = invoice.get_chave_44_digitos();
    if (texts.c_dv.empty() && !key.empty()) {
        texts.c_dv = key.back();
    }
    if (texts.tp_imp.empty()) {
        // the printed form of a consumer invoice is a form of its own
        texts.tp_imp = invoice.get_modelo_emissao() == "65" ? "4" : "1";
    }
    write_outside_texts(infnfe, texts);
    return infnfe;
}

std::string write_xml(const fiscal::nota_fiscal& invoice, const outside_texts& outside) {
    pugi::xml_document written;
    pugi::xml_node declaration = written.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    pugi::xml_node root = written.append_child("NFe");
    root.append_attribute("xmlns") = "http://www.portalfiscal.inf.br/nfe";
    append(root, write_node(invoice, outside));
    std::ostringstream text;
    written.save(text, "", pugi::format_raw | pugi::format_no_empty_element_tags,
                 pugi::encoding_utf8);
    return std::move(text).str();
}

} // namespace kivo::erp::v12::layout
