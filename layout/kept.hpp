#pragma once

#include <layout/engine.hpp>
#include <layout/tree.hpp>

#include <vector>

namespace kivo::erp::v12::layout {

/// Adds what objects wrote, an infNFe element, to a document, with texts of other elements of the
/// layout in their places. The table tells what has a field. Throws std::invalid_argument for a
/// path that leads to an element with a field, to one that the layout does not have there, to one
/// more than it takes, or into a group whose object is not there.
void add_with_kept(tree& out, tree written, const std::vector<placed_text>& kept,
                   const table& known);

} // namespace kivo::erp::v12::layout
