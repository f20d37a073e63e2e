#pragma once

#include <layout/node.hpp>

#include <fiscal/nota_fiscal.hpp>

#include <string>
#include <string_view>

/// Invoices as XML documents. The document is read and written by an XML library, the elements by
/// the layout map; both are compiled once, into a small library of their own.
namespace kivo::erp::v12::layout {

/// Texts of elements that the layout demands and no object holds. Reading fills them, so that a
/// document that is read and written keeps them; an empty one is left out.
struct outside_texts {
    std::string versao = "4.00"; ///< release of the layout (attribute versao)
    std::string tp_imp;          ///< printed form (tpImp); empty: 1, or 4 for model 65
    std::string c_dv;            ///< check digit of the key (cDV); empty: the key's
    std::string proc_emi = "0";  ///< issuing process (procEmi); 0: own program
    std::string ver_proc = "kivo-erp-fiscal 12"; ///< version of the program (verProc)
};

/// An invoice that was read, and what became of each element.
struct invoice_document {
    fiscal::nota_fiscal invoice; ///< what has a field
    outside_texts outside;       ///< what has none, but is demanded
    /// Paths begin below infNFe; those of elements outside it begin at the document's root.
    reading result;
};

/// Reads an NF-e or NFC-e: an NFe document, bare or inside nfeProc, with or without namespace
/// prefixes. A text that a value refuses is reported and left out, and the rest is read.
/// Throws std::runtime_error where there is no XML document or no invoice in it.
invoice_document read_xml(std::string_view xml);

/// The same from a file; also throws std::runtime_error where the file cannot be read.
invoice_document read_file(const std::string& path);

/// The infNFe element of an invoice, its children in the layout's order.
node write_node(const fiscal::nota_fiscal& invoice, const outside_texts& outside = {});

/// An unsigned NFe document in UTF-8. The schema accepts it where the invoice holds what the
/// schema demands.
std::string write_xml(const fiscal::nota_fiscal& invoice, const outside_texts& outside = {});

} // namespace kivo::erp::v12::layout
