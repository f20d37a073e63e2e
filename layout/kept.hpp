#pragma once

#include <layout/engine.hpp>
#include <layout/tree.hpp>

#include <vector>

namespace kivo::erp::v12::layout {

/// A tree of what objects wrote, as an infNFe element, with texts of other elements of the layout
/// in their places. The table tells what has a field. Throws std::invalid_argument for a path that
/// leads to an element with a field, to one that the layout does not have there, to one more than
/// it takes, or into a group whose object is not there.
tree with_kept(tree written, const std::vector<placed_text>& kept, const table& known);

} // namespace kivo::erp::v12::layout
