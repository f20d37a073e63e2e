#pragma once

#include "source.hpp"

#include <string>

/// An invoice for other programs. What is made holds every text, but nothing that steers a
/// terminal.
namespace nfe_summary {

/// How a document stands in a text.
enum class spread {
    readable, ///< a path and its text on each line
    one_line, ///< as JSON Lines want it
};

/// All texts of a document with their paths, and what became of them in the objects.
std::string json_of(const std::string& file, const layout::tree& tree,
                    const layout::invoice_document& document, spread how);

/// An unsigned document: all that was read, or only what has a field.
std::string xml_of(const layout::invoice_document& document, bool only_fields);

/// Writes the texts in which two documents differ, by path: those of the first behind -, those of
/// the second behind +. Answers whether there are any.
bool write_differences(const std::string& left_path, const layout::tree& left,
                       const std::string& right_path, const layout::tree& right);

} // namespace nfe_summary
