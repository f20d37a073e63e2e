#pragma once

#include <layout/elements.hpp>
#include <layout/tree.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Documents that nobody wrote: made from what the layout demands of each element.
namespace kivo::tests {

using erp::v12::layout::element_rule;
using erp::v12::layout::group_rule;
using erp::v12::layout::tree;

/// An element that a test makes or changes. Attributes are elements whose name begins with @.
struct element {
    std::string name;
    std::string text;
    std::vector<element> inner;

    /// The first element at a path below it. There has to be one.
    element& at(std::string_view path);
    /// The first element of a name in it; null where there is none.
    element* find(std::string_view wanted);
};

/// Whether an element has one at a path below it.
bool has(const element& root, std::string_view path);

/// A copy of an element of a tree, or a tree of it.
element copy_of(const erp::v12::layout::node& root);
tree tree_of(const element& root);

/// The XML document of an infNFe element.
std::string document_of(const element& infnfe);

/// Texts that an element may have: a usual one, the shortest and the longest, each code, the
/// fewest and the most digits, 0; of a group, an empty one.
std::vector<std::string> texts_for(const element_rule& rule);
/// The first of them, made once for all documents.
const std::string& usual_text(const element_rule& rule);

/// The smallest document that has an element, or one that differs from it in that element.
struct small_document {
    const element_rule* wanted = &erp::v12::layout::infnfe_rule();
    unsigned times = 1; ///< how often the element stands there
    /// What is written instead of its text; of a group, before what stands in it.
    core::v7::optional<std::string> text = {};

    element infnfe() const;
};

/// Large documents, each with one branch of each choice, and all other elements once. Together they
/// have every element and attribute of the layout.
std::vector<element> large_documents();

/// Calls `visit` for each element and attribute of the layout.
void for_each_rule(const std::function<void(const element_rule&)>& visit);

/// Calls `visit(element, rule)` for an element and all in it that the layout knows.
void for_each_element(element& root, const element_rule& rule,
                      const std::function<void(element&, const element_rule&)>& visit);

} // namespace kivo::tests
