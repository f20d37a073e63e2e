#pragma once

#include <layout/xml.hpp>

#include <string>

/// An invoice for other programs. What is written holds every text, but nothing that steers a
/// terminal.
namespace nfe_summary {

/// The whole content as pairs of path and text in the layout's order, and what became of the rest.
void write_json(const kivo::erp::v12::layout::invoice_document& document);

/// An unsigned document.
void write_xml(const kivo::erp::v12::layout::invoice_document& document);

/// The texts in which two documents differ, by path: those of the first behind -, those of the
/// second behind +.
/// Answers whether there are any.
bool write_differences(const std::string& left_path, const kivo::erp::v12::layout::tree& left,
                       const std::string& right_path, const kivo::erp::v12::layout::tree& right);

} // namespace nfe_summary
