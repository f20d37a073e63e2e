#include <layout/xml.hpp>

#include <layout/elements.hpp>
#include <layout/engine.hpp>
#include <layout/invoice.hpp>
#include <layout/kept.hpp>
#include <layout/xml_text.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace kivo::erp::v12::layout {

namespace {

constexpr const table& invoice_table() { return table_of<map_of<fiscal::nota_fiscal>>(); }

const node& only_child(const node& parent, const element_name& name) {
    const node* const found = child_named(parent, name);
    if (found == nullptr) {
        throw std::runtime_error("not an NF-e or NFC-e: no " + std::string(name.text()) + " in " +
                                 std::string(parent.name.text()));
    }
    return *found;
}

/// Adds the paths of all that is in an element, but for another element and those around it.
void add_beside(const node& parent, const node& invoice, path_teller& path,
                std::vector<std::string>& result) {
    if (!parent.text.empty()) {
        result.push_back(path_below(path(parent), "text()"));
    }
    for (const node& child : children(parent)) {
        if (&child == &invoice) {
            continue;
        }
        const bool around = &child < &invoice && &invoice < &child + child.size;
        if (around) {
            add_beside(child, invoice, path, result);
        } else {
            result.push_back(path(child));
        }
    }
}

/// Adds the infNFe element of an invoice to a document, with what is kept in its places.
void add_invoice(tree& out, const fiscal::nota_fiscal& invoice, const outside_texts& outside,
                 const std::vector<placed_text>& kept) {
    if (!kept.empty()) {
        tree written;
        add_invoice(written, invoice, outside, {});
        add_with_kept(out, std::move(written), kept, invoice_table());
        return;
    }
    out.expect(1024); // elements of an invoice with a few items
    out.open("infNFe");
    writer(out, outside).write_whole(invoice_table(), &invoice);
    out.close();
}

} // namespace

const node& invoice_in(const tree& document) {
    const node& root = document.root();
    if (root.name != "NFe" && root.name != "nfeProc") {
        throw std::runtime_error("not an NF-e or NFC-e: the document is " +
                                 std::string(root.name.text()));
    }
    return only_child(root.name == "NFe" ? root : only_child(root, "NFe"), "infNFe");
}

invoice_document read_document(const tree& document) {
    const node& infnfe = invoice_in(document);
    invoice_document result;
    reader(infnfe, invoice_table(), &infnfe_rule(), result.outside, result.kept, result.report)
        .read(&result.invoice);
    path_teller path(document.root());
    add_beside(document.root(), infnfe, path, result.beside);
    return result;
}

invoice_document read_xml(std::string_view xml) { return read_document(parse_xml(xml)); }

namespace {

/// What is made of the content of a file; a failure names the file.
template <class Make> auto from_file(const std::string& path, Make make) {
    try {
        const std::filesystem::path name(std::u8string(path.begin(), path.end()));
        std::ifstream file(name, std::ios::binary);
        std::ostringstream content;
        // a directory opens, and fails only when it is read
        if (!file || !(content << file.rdbuf())) {
            throw std::runtime_error("cannot be read");
        }
        return make(content.view());
    } catch (const std::runtime_error& failure) {
        throw std::runtime_error(path + ": " + failure.what());
    }
}

} // namespace

invoice_document read_file(const std::string& path) { return from_file(path, read_xml); }

tree parse_file(const std::string& path) { return from_file(path, parse_xml); }

tree write_tree(const fiscal::nota_fiscal& invoice, const outside_texts& outside,
                const std::vector<placed_text>& kept) {
    tree result;
    add_invoice(result, invoice, outside, kept);
    return result;
}

std::string write_xml(const fiscal::nota_fiscal& invoice, const outside_texts& outside,
                      const std::vector<placed_text>& kept) {
    tree document;
    document.open("NFe");
    document.add("@xmlns", "http://www.portalfiscal.inf.br/nfe");
    add_invoice(document, invoice, outside, kept);
    document.close();
    return xml_text(document.root());
}

std::string write_xml(const invoice_document& document) {
    return write_xml(document.invoice, document.outside, document.kept);
}

} // namespace kivo::erp::v12::layout
