#pragma once

#include <base/optional.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kivo::erp::v12::layout {

/// An element of an invoice: its name, and its text or its children in their order. An attribute
/// is a child whose name begins with @.
struct node {
    /// What became of the element in reading.
    enum class state {
        unread,  ///< no field asked for it
        entered, ///< a group: its children tell for themselves
        read,    ///< its text is in a field
        changed, ///< its value is in a field, but would be written otherwise
        refused, ///< its field could not hold its text
    };

    std::string name;           ///< without a namespace prefix
    std::string text;           ///< empty in a group
    std::vector<node> children; ///< in the order of the document

    state reading = state::unread; ///< what became of the element
    std::string instead; ///< of a changed text: how it is written; of a refused one: what it is not

    /// An element without children, which nothing has read.
    explicit node(std::string node_name, std::string node_text = {})
        : name(std::move(node_name)), text(std::move(node_text)) {}

    /// The next child of this name that no field has asked for; null when there is none.
    node* next_unread(std::string_view child_name);
};

/// What became of the elements of a document that was read.
struct reading {
    /// What is to be told of one text.
    struct remark {
        std::string path;    ///< where it stands
        std::string text;    ///< as the document has it
        std::string instead; ///< how it is written, or what it should have been
    };

    std::size_t texts = 0;           ///< elements and attributes that hold a text
    std::size_t texts_read = 0;      ///< how many of them are in a field
    std::vector<std::string> unread; ///< paths without a field; of a whole group, only its own
    std::vector<remark> changed;     ///< texts that are in a field, and how they would be written
    std::vector<remark> refused;     ///< texts that their field could not hold, and what it holds
};

/// Sums up a document after its groups were read. Paths start below the node that is given, and
/// number the elements that stand there more than once: `det[2]/prod/cProd`.
reading sum_up(const node& document);

/// A text of a document, and where it stands.
struct placed_text {
    std::string path; ///< as `sum_up` tells it
    std::string text; ///< as the document has it
};

/// All texts of a document in their order, at the paths that `sum_up` tells.
std::vector<placed_text> placed_texts(const node& document);

/// What stands at one path of two documents; absent where a document has no such text.
struct difference {
    std::string path;                      ///< as `sum_up` tells it
    core::v7::optional<std::string> left;  ///< text in the first document
    core::v7::optional<std::string> right; ///< text in the second document
};

/// The texts in which two documents differ, in the order of the documents. Elements of one name
/// are compared in their order, and numbered where either document has more than one.
std::vector<difference> differences(const node& left, const node& right);

} // namespace kivo::erp::v12::layout
