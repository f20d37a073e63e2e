#pragma once

#include <base/optional.hpp>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

/// Documents as trees of elements, without the objects and without XML.
namespace kivo::erp::v12::layout {

/// The text that ends with a zero and has eight characters more behind it. Most are short: it
/// takes less than a call to find their end.
inline std::string_view text_in_buffer(const char* text) {
    if constexpr (std::endian::native == std::endian::little) {
        for (const char* at = text;; at += sizeof(std::uint64_t)) {
            std::uint64_t next = 0;
            std::memcpy(&next, at, sizeof next);
            const std::uint64_t zeros =
                (next - 0x0101010101010101) & ~next & std::uint64_t{0x8080808080808080};
            if (zeros != 0) {
                return {text, static_cast<std::size_t>(at - text) +
                                  static_cast<std::size_t>(std::countr_zero(zeros)) / 8};
            }
        }
    }
    return text;
}

/// The name of an element. Its first characters as a number tell most names apart.
class element_name {
public:
    constexpr element_name() = default;
    constexpr element_name(std::string_view text) // NOLINT(google-explicit-constructor): is a text
        : text_(text) {
        for (std::size_t index = 0; index < text.size() && index < sizeof first_; ++index) {
            add(text[index], index);
        }
    }
    constexpr element_name(const char* text) // NOLINT(google-explicit-constructor): is a text
        : element_name(std::string_view(text)) {}

    /// The name that ends with a zero and has eight characters more behind it.
    static element_name in_buffer(const char* text) {
        element_name result;
        result.text_ = text_in_buffer(text);
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(&result.first_, text, sizeof first_);
            if (result.text_.size() < sizeof first_) {
                result.first_ &= (std::uint64_t{1} << (8 * result.text_.size())) - 1;
            }
            return result;
        } else {
            return {result.text_};
        }
    }

    constexpr std::string_view text() const { return text_; }
    constexpr operator std::string_view() const { return text_; } // NOLINT: it is a text
    constexpr bool is_attribute() const { return text_.starts_with('@'); }

    /// Puts the name at a place with room for eight characters more; answers its end.
    char* put(char* place) const {
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(place, &first_, sizeof first_);
            if (text_.size() > sizeof first_) {
                text_.copy(place + sizeof first_, text_.npos, sizeof first_);
            }
        } else {
            text_.copy(place, text_.size());
        }
        return place + text_.size();
    }

    constexpr bool operator==(const element_name& other) const { // most names have few characters
        return first_ == other.first_ && text_.size() == other.text_.size() &&
               (text_.size() <= sizeof first_ ||
                text_.substr(sizeof first_) == other.text_.substr(sizeof first_));
    }

    constexpr bool operator==(std::string_view text) const { return text_ == text; }
    constexpr bool operator==(const char* text) const { return text_ == text; }

private:
    constexpr void add(char character, std::size_t index) {
        first_ |= std::uint64_t{static_cast<unsigned char>(character)} << (8 * index);
    }

    std::string_view text_;
    std::uint64_t first_ = 0;
};

/// An element of a document. The elements in it follow it in memory, so an element alone is all of
/// its content. An attribute is an element whose name begins with @, before the others of its
/// parent.
struct node {
    element_name name;      ///< without a namespace prefix
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
        using difference_type = std::ptrdiff_t;
        using value_type = node;
        using pointer = const node*;
        using reference = const node&;
        using iterator_category = std::input_iterator_tag;

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
const node* child_named(const node& parent, const element_name& name);

/// The element at a path without numbers, below another: `emit/CNPJ`, the first of each name; null
/// when there is none.
const node* child_at(const node& parent, std::string_view path);

/// The text of the element at a path; empty when there is none.
std::string_view text_at(const node& parent, std::string_view path);

/// A document. It is built from the front to the back, and owns its texts.
class tree {
public:
    bool empty() const { return nodes_.empty(); }
    const node& root() const { return nodes_.front(); }

    /// Begins an element in the one that is open, and opens it. Names and texts are not copied;
    /// see `keep`.
    void open(const element_name& name, std::string_view text = {}) {
        const std::size_t index = nodes_.size();
        nodes_.push_back({name, text, 1, static_cast<std::uint32_t>(index - open_)});
        open_ = index;
    }
    /// Closes the element that was opened last.
    void close() {
        node& closed = nodes_[open_];
        closed.size = static_cast<std::uint32_t>(nodes_.size() - open_);
        open_ -= closed.up;
    }
    /// The same; an element with nothing in it is taken away.
    void close_unless_empty();
    /// Adds an element with nothing in it but a text.
    void add(const element_name& name, std::string_view text) {
        open(name, text);
        close();
    }
    /// Adds a copy of an element and of all in it; the texts stay where they are.
    void add(const node& copied);
    /// Takes over the texts of another tree, for elements copied from it.
    void adopt_texts(tree& other);

    /// Adds an element whose place in another tree is known: how many elements its parent is before
    /// it. `measure` has to follow the last of them.
    void add_below(std::size_t up, const element_name& name, std::string_view text) {
        nodes_.push_back({name, text, 1, static_cast<std::uint32_t>(up)});
    }
    void measure();
    /// The number of elements so far.
    std::size_t size() const { return nodes_.size(); }
    /// The text of an element by its number, to change it.
    std::string_view& text_at(std::size_t number) { return nodes_[number].text; }

    /// Makes room for so many elements.
    void expect(std::size_t count) { nodes_.reserve(count); }
    /// Makes a place that lives as long as the tree.
    char* place(std::size_t size) {
        if (size > left_) {
            make_room(size);
        }
        left_ -= size;
        return std::exchange(next_, next_ + size);
    }
    /// A copy of a text that lives as long as the tree.
    std::string_view keep(std::string_view text);

private:
    void make_room(std::size_t size);

    std::vector<node> nodes_;
    std::size_t open_ = 0; // index of the element that is open
    std::vector<std::unique_ptr<char[]>> texts_;
    char* next_ = nullptr; // free place in the last of them
    std::size_t left_ = 0;
};

/// A text and its path, which names the elements that lead to it from below a root. Elements of the
/// same name in one parent are numbered from 1: `det[2]/prod/cProd`, `det[2]/@nItem`.
struct placed_text {
    std::string path;
    std::string text;

    bool operator==(const placed_text&) const = default;
};

/// A path, which may be that of the root, and a name below it.
std::string path_below(std::string path, std::string_view name);

/// A name with a number in brackets; alone where the number is 0.
std::string with_number(std::string_view name, std::size_t number);

/// Tells the paths of elements below a root.
class path_teller {
public:
    explicit path_teller(const node& root) : root_(&root) {}
    std::string operator()(const node& element);
    /// The number of an element among those of its name; 0 where it is the only one.
    std::uint32_t number_of(const node& element);

private:
    static constexpr std::uint32_t few = 64; // elements that are counted anew for each path

    std::uint32_t known_number_of(const node& parent, const node& element);

    const node* root_;
    std::unordered_set<const node*> counted_; // parents whose elements have their numbers
    std::unordered_map<const node*, std::uint32_t> numbers_;
};

/// All texts below an element, in their order. An element with nothing in it has an empty text.
std::vector<placed_text> texts_of(const node& root);

/// The tree of some texts below a root of the given name. Elements of one parent stand in the order
/// in which they are first named, attributes before the others; a number may be left out where
/// there is one element of the name. Throws std::invalid_argument for a path that is none, names an
/// element twice, or skips a number.
tree tree_of(std::string_view root, const std::vector<placed_text>& texts);

/// Takes out the texts of an element of several, `det[2]`, and renumbers those behind it: for the
/// texts beside an invoice from which an item was taken. Throws std::invalid_argument where the
/// path does not end with a number.
void take_out(std::vector<placed_text>& texts, std::string_view path);

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
