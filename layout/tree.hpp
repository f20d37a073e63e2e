#pragma once

#include <base/optional.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// Documents as trees of elements, without the objects and without XML.
namespace kivo::erp::v12::layout {

/// An element of a document. The elements in it follow it in memory, so an element alone is all of
/// its content. An attribute is an element whose name begins with @, before the others of its
/// parent.
struct node {
    std::string_view name;  ///< without a namespace prefix
    std::string_view text;  ///< all of it in one piece; of a group, usually empty
    std::uint32_t size = 1; ///< number of elements: this one and all in it
    std::uint32_t up = 0;   ///< how many elements before this one its parent is; 0: it has none

    /// Whether it is more than a group of others.
    bool holds_text() const { return size == 1 || !text.empty(); }
};

/// The elements directly in another, in their order.
class children {
public:
    /// Goes from one to the next.
    class iterator {
    public:
        explicit iterator(const node* at) : at_(at) {}
        const node& operator*() const { return *at_; }
        iterator& operator++() {
            at_ += at_->size;
            return *this;
        }
        bool operator==(const iterator&) const = default;

    private:
        const node* at_;
    };

    explicit children(const node& parent) : begin_(&parent + 1), end_(&parent + parent.size) {}
    /// Those that stand behind one of them.
    children(const node& parent, const node& before)
        : begin_(&before + before.size), end_(&parent + parent.size) {}

    iterator begin() const { return iterator(begin_); }
    iterator end() const { return iterator(end_); }

private:
    const node* begin_;
    const node* end_;
};

/// The first of the elements directly in another that has this name; null when there is none.
const node* child_named(const node& parent, std::string_view name);

/// A document. It is built from the front to the back, and owns its texts.
class tree {
public:
    bool empty() const { return nodes_.empty(); }
    const node& root() const { return nodes_.front(); }

    /// Begins an element in the one that is open, and opens it. Names and texts are not copied;
    /// see `keep`.
    void open(std::string_view name, std::string_view text = {});
    /// Closes the element that was opened last.
    void close();
    /// Adds an element with nothing in it but a text.
    void add(std::string_view name, std::string_view text) {
        open(name, text);
        close();
    }
    /// Adds a copy of an element and of all in it; the texts stay where they are.
    void add(const node& copied);

    /// Makes a place that lives as long as the tree.
    char* place(std::size_t size);
    /// A copy of a text that lives as long as the tree.
    std::string_view keep(std::string_view text);

private:
    std::vector<node> nodes_;
    std::size_t open_ = 0; // index of the element that is open
    std::unique_ptr<std::pmr::monotonic_buffer_resource> texts_;
};

/// A text and its path, which names the elements that lead to it from below a root. Elements of the
/// same name in one parent are numbered from 1: `det[2]/prod/cProd`, `det[2]/@nItem`.
struct placed_text {
    std::string path;
    std::string text;

    bool operator==(const placed_text&) const = default;
};

/// Tells the paths of elements below a root.
class path_teller {
public:
    explicit path_teller(const node& root) : root_(&root) {}
    std::string operator()(const node& element);

private:
    const node* root_;
    std::unordered_set<const node*> counted_; // parents whose children have numbers
    std::unordered_map<const node*, std::uint32_t> number_of_; // of those that need one
};

/// All texts below an element, in their order. An element with nothing in it has an empty text.
std::vector<placed_text> texts_of(const node& root);

/// The tree of some texts below a root of the given name. Elements of one parent stand in the order
/// in which they are first named, attributes before the others; a number may be left out where
/// there is one element of the name. Throws std::invalid_argument for a path that is none, names an
/// element twice, or skips a number.
tree tree_of(std::string_view root, const std::vector<placed_text>& texts);

/// What stands at one path of two documents; absent where a document has no such text.
struct difference {
    std::string path;
    core::v7::optional<std::string> left;  ///< text in the first document
    core::v7::optional<std::string> right; ///< text in the second document
};

/// The texts in which two documents differ, in the order of the documents. Elements of one name
/// are compared in their order, and numbered where either document has more than one.
std::vector<difference> differences(const node& left, const node& right);

} // namespace kivo::erp::v12::layout
