#pragma once

#include <layout/outside_texts.hpp>
#include <layout/report.hpp>
#include <layout/tree.hpp>

#include <fiscal/nota_fiscal.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Invoices as documents. The elements are read and written by the layout map, XML by an XML
/// library; both are compiled once, into a small library of their own.
namespace kivo::erp::v12::layout {

/// An invoice that was read, and what became of each element.
struct invoice_document {
    fiscal::nota_fiscal invoice; ///< what has a field
    outside_texts outside;       ///< what has none, but is demanded
    /// What has none and rides along: the texts of the layout's other elements.
    std::vector<placed_text> kept;
    layout::report report; ///< what became of the elements of infNFe
    /// Paths of what stands around infNFe, such as the signature, from the document's root.
    std::vector<std::string> beside;
};

/// The infNFe element of a document: of an NFe, bare or inside nfeProc. Throws std::runtime_error
/// where there is none.
const node& invoice_in(const tree& document);

/// Reads the NF-e or NFC-e of a document. A text that a field cannot hold is reported and left out,
/// and the rest is read. One of another release than 4.00 is read as if it were of that;
/// `outside.versao` tells. Throws std::runtime_error where there is no invoice in it.
invoice_document read_document(const tree& document);

/// The same of an XML document, with or without namespace prefixes; see `parse_xml`.
invoice_document read_xml(std::string_view xml);

/// The same from a file, whose name is UTF-8 on Windows, too; also throws std::runtime_error where
/// the file cannot be read. What is thrown names the file.
invoice_document read_file(const std::string& path);

/// The XML document of a file; throws as `parse_xml` and `read_file` do.
tree parse_file(const std::string& path);

/// The infNFe element of an invoice, its elements in the layout's order. What is kept is put into
/// its places. Throws std::invalid_argument for a path that leads to an element with a field, to
/// one that the layout does not have there, to one more than it takes, or into a group that the
/// invoice does not have.
tree write_tree(const fiscal::nota_fiscal& invoice, const outside_texts& outside = {},
                const std::vector<placed_text>& kept = {});

/// An unsigned NFe document in UTF-8. The schema accepts it where the invoice, and what is kept,
/// hold what the schema demands. Throws as `write_tree` does, and std::runtime_error for texts that
/// XML cannot hold.
std::string write_xml(const fiscal::nota_fiscal& invoice, const outside_texts& outside = {},
                      const std::vector<placed_text>& kept = {});

/// The same of all that was read and may have changed since.
std::string write_xml(const invoice_document& document);

} // namespace kivo::erp::v12::layout
