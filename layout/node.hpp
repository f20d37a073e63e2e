#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kivo::erp::v12::layout {

/// An element of an invoice: its name, and its text or its children in their order. An attribute
/// is a child whose name begins with @.
struct node {
    enum class state {
        unread,  ///< no field asked for it
        entered, ///< a group: its children tell for themselves
        read,    ///< its text is in a field
        changed, ///< its value is in a field, but would be written otherwise
        refused, ///< its field could not hold its text
    };

    std::string name;
    std::string text;
    std::vector<node> children;

    state reading = state::unread;
    std::string instead; ///< of a changed text: how it is written; of a refused one: what it is not

    explicit node(std::string node_name, std::string node_text = {})
        : name(std::move(node_name)), text(std::move(node_text)) {}

    /// The next child of this name that no field has asked for; null when there is none.
    node* next_unread(std::string_view child_name);
};

/// What became of the elements of a document that was read.
struct reading {
    struct remark {
        std::string path;
        std::string text;
        std::string instead;
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

} // namespace kivo::erp::v12::layout
