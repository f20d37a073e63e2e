#pragma once

#include <layout/node.hpp>

#include <fiscal/destinatario.hpp>
#include <fiscal/emitente.hpp>
#include <fiscal/local_entrega.hpp>

#include <string>
#include <string_view>

/// Invoices as XML documents. The document is read and written by an XML library, the elements by
/// the layout map; both are compiled once, into a small library of their own.
namespace kivo::erp::v12::layout {

/// The parties of an invoice.
struct parties {
    fiscal::emitente emitente;
    core::v7::optional<fiscal::destinatario> destinatario;
    core::v7::optional<fiscal::local_entrega> local_entrega;
};

/// An invoice that was read, and what became of each element.
struct document {
    parties content;
    /// Paths begin below infNFe; those of elements outside it begin at the document's root.
    reading result;
};

/// Reads an NF-e or NFC-e: an NFe document, bare or inside nfeProc, with or without namespace
/// prefixes. A text that a value refuses is reported and left out, and the rest is read.
/// Throws std::runtime_error where there is no XML document or no invoice in it.
document read_xml(std::string_view xml);

/// The same from a file; also throws std::runtime_error where the file cannot be read.
document read_file(const std::string& path);

/// The infNFe element of an invoice, its children in the layout's order.
node write_node(const parties& content);

/// An element as XML text in UTF-8, without declaration and white space.
std::string xml_of(const node& element);

} // namespace kivo::erp::v12::layout
