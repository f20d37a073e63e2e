#pragma once

#include <layout/envelope.hpp>
#include <layout/protocol.hpp>
#include <layout/tree.hpp>
#include <layout/xml.hpp>

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

/// What stands in the files that a person names.
namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

/// A file, parsed: XML, or what --json writes.
struct source {
    std::deque<layout::tree> trees;            ///< own all texts
    std::vector<const layout::tree*> invoices; ///< each an NFe, or an nfeProc around one
    std::vector<layout::protocol> answers;     ///< to invoices that are not in the file
    std::vector<layout::event> events;
};

/// A file that was read, with its name.
struct named_source {
    std::string path;
    source content;
};

/// Reads a file. Throws std::runtime_error, without its name, where that cannot be done, and where
/// neither an invoice is in it nor what belongs to one.
source read_source(const std::string& path, std::size_t limit);

/// The same of its content.
source parse_source(const std::string& content);

/// The only invoice of a file; throws as `read_source` does, and where there are more or none.
source read_single(const std::string& path, std::size_t limit);

/// Reads the objects of an invoice. Throws std::runtime_error where it has no content.
layout::invoice_document read_invoice(const layout::tree& tree);

/// CNPJ, CPF or foreign number of a group, as the document has it: not every one has a field.
std::string id_in(const layout::node& infnfe, const std::string& group);

/// The answer that stands beside an invoice.
kivo::core::v7::optional<layout::protocol> answer_in(const layout::tree& tree);

/// What is to be told of the key of an invoice, and of an answer that is not for it.
std::vector<std::string> key_problems(const layout::tree& tree);

/// `FILE`, or `FILE, invoice 2` where the file has several.
std::string name_in(const std::string& path, const source& file, std::size_t index);

} // namespace nfe_summary
