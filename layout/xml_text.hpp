#pragma once

#include <layout/tree.hpp>

#include <string>
#include <string_view>

namespace kivo::erp::v12::layout {

/// The tree of an XML document in UTF-8, UTF-16, ISO-8859-1 or Windows-1252. Prefixes and
/// declarations of namespaces, comments and instructions are left out. Throws std::runtime_error
/// for what is not well-formed, with line and column, and for bytes that are not the encoding that
/// the document declares.
tree parse_xml(std::string_view xml);

/// A tree as an XML document in UTF-8, on one line. Throws std::runtime_error where a text holds
/// what XML cannot hold: control characters, or bytes that are not UTF-8.
std::string xml_text(const node& root);

} // namespace kivo::erp::v12::layout
