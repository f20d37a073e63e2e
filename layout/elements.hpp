#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

/// The layout as data: every element and attribute of an NF-e or NFC-e, where it may stand, how
/// often, and which texts it may have. It is `layout/elements.txt`, compiled in.
namespace kivo::erp::v12::layout {

/// A set of ASCII characters.
struct char_set {
    std::uint64_t halves[2] = {}; ///< a bit for each character: below 64, and from 64 on

    constexpr bool has(char character) const {
        const auto code = static_cast<unsigned char>(character);
        return code < 128 && ((halves[code / 64] >> (code % 64)) & 1) != 0;
    }
    constexpr void add(char character) {
        const auto code = static_cast<unsigned char>(character);
        halves[code / 64] |= std::uint64_t{1} << (code % 64);
    }
    bool operator==(const char_set&) const = default;
};

/// Characters of one set in a row.
struct char_run {
    char_set set;
    std::uint16_t least = 1; ///< how many there are at least
    std::uint16_t most = 1;  ///< how many there are at most
};

/// Some texts, one behind the other in memory, each behind its length.
class text_list {
public:
    /// Goes from one to the next.
    class iterator {
    public:
        using difference_type = std::ptrdiff_t;
        using value_type = std::string_view;

        explicit iterator(const char* at = nullptr) : at_(at) {}
        std::string_view operator*() const { return {at_ + 1, static_cast<unsigned char>(*at_)}; }
        iterator& operator++() {
            at_ += 1 + static_cast<unsigned char>(*at_);
            return *this;
        }
        iterator operator++(int) {
            const iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const iterator&) const = default;

    private:
        const char* at_;
    };

    text_list(const char* begin, const char* end) : begin_(begin), end_(end) {}
    iterator begin() const { return iterator(begin_); }
    iterator end() const { return iterator(end_); }

private:
    const char* begin_;
    const char* end_;
};

/// A way in which the text of an element may be written; the words are those of elements.txt.
struct text_rule {
    enum class kind : std::uint8_t {
        empty,    ///< no character
        text,     ///< characters up to U+00FF, no control characters, no blank at either end
        word,     ///< the same without any blank
        digits,   ///< digits
        number,   ///< a whole number without zeros in front
        decimal,  ///< a number without zeros in front, perhaps with digits behind a point
        codes,    ///< one of some texts
        like,     ///< runs of characters
        date,     ///< AAAA-MM-DD
        datetime, ///< AAAA-MM-DDThh:mm:ss-03:00
        aamm,     ///< year and month
        aaaa_mm,  ///< year and month, from 2025-01 on
        mm_aaaa,  ///< month, a slash and the year
        base64,   ///< bytes
    };

    kind is = kind::empty;
    bool above_zero = false;      ///< of a decimal: whether it is more than 0
    bool bare_zero = true;        ///< of a decimal: whether 0 may stand without a point
    std::uint8_t whole = 0;       ///< of a decimal: how many digits may stand before the point
    std::uint16_t least = 0;      ///< characters, or digits; of a decimal, digits behind a point
    std::uint16_t most = 0;       ///< likewise; of base64, bytes, or 0 for any number of them
    std::uint8_t small_least = 0; ///< of a decimal below 1: as `least`
    std::uint8_t small_most = 0;  ///< of a decimal below 1: as `most`
    std::uint16_t first = 0;      ///< see `runs` and `codes`
    std::uint16_t last = 0;       ///< see `runs` and `codes`
    std::uint32_t smallest = 0;   ///< of a number
    std::uint32_t largest = 0;    ///< of a number; of a decimal, 0 where only its digits limit it

    /// The runs of characters that make up a text that is `like` something; none of another.
    std::span<const char_run> runs() const;
    /// The texts of `codes`.
    text_list codes() const;
};

/// What stands in a group, or a part of that: an element, several in a row, or one of several. The
/// parts of it follow it in memory, each behind all of the one before.
struct group_rule {
    enum class kind : std::uint8_t {
        element,  ///< as many as the element's own rule says
        sequence, ///< all parts, in their order
        choice,   ///< one of the parts
    };

    kind is = kind::sequence;
    bool optional = false;      ///< whether it may be absent
    bool may_be_empty = false;  ///< whether that, or all in it, may be absent
    std::uint8_t position = 0;  ///< of an element
    std::uint8_t size = 1;      ///< number of parts: this one and all in it
    std::uint8_t to_group = 0;  ///< see `first_group`
    std::uint8_t to_next = 0;   ///< see `next_group`
    std::uint64_t elements = 0; ///< the positions of all elements in it, a bit for each
    std::uint64_t direct = 0;   ///< those of the elements directly in it
    std::uint64_t demanded = 0; ///< of a sequence: those that have to stand where one of it does

    /// The first part directly in it that is no element; null where all are.
    const group_rule* first_group() const { return to_group == 0 ? nullptr : this + to_group; }
    /// The next part of the same parent that is no element; null where there is none.
    const group_rule* next_group() const { return to_next == 0 ? nullptr : this + to_next; }
};

/// The largest number of a text that differs from its siblings' is below.
inline constexpr std::size_t unique_limit = 1000;

/// What the layout demands of an element or attribute. All of them stand in one table, each beside
/// its siblings in the layout's order, attributes first. The rule of infNFe itself has no name.
class element_rule {
public:
    constexpr element_rule() = default;
    element_rule(const element_rule&) = delete; // it knows others by their place beside it
    element_rule& operator=(const element_rule&) = delete;

    /// That of the element; of an attribute, with @ before it.
    std::string_view name() const { return {name_, name_size_}; }
    /// The names that lead to it from below infNFe: `ide/NFref/refNF`.
    std::string path() const;
    bool is_attribute() const { return name_[0] == '@'; }
    /// Whether elements or attributes stand in it, instead of a text.
    bool is_group() const { return children_ != 0; }

    /// The group in which it stands; null for infNFe.
    const element_rule* parent() const { return to_parent_ == 0 ? nullptr : this - to_parent_; }
    /// What stands in it, in the layout's order.
    std::span<const element_rule> children() const { return {this + to_children_, children_}; }
    /// Its place among the children of its parent, from 0.
    unsigned position() const { return position_; }
    /// What stands in it and has this name, null where nothing has. What is expected is tried
    /// first.
    const element_rule* child(std::string_view name, unsigned expected = 0) const {
        return expected < children_ && children()[expected].name() == name
                   ? this + to_children_ + expected
                   : search(name);
    }

    /// How often it may stand in its parent.
    unsigned most() const { return most_; }
    /// Whether it stands wherever its parent does.
    bool mandatory() const { return needed_ && !nested_; }
    /// Whether it is one of a choice, or of elements that may be absent together.
    bool nested() const { return nested_; }
    /// Whether it stands wherever what it is nested in does: the sequence, or this part of a
    /// choice.
    bool needed() const { return needed_; }
    /// Whether its text differs from that of the others of its name, in the siblings of its parent.
    bool unique() const { return unique_; }
    /// Whether a text of one of its children is unique.
    bool numbered() const { return numbered_; }

    /// Of a group: what stands in it.
    const group_rule& content() const;
    /// Of any other: the ways in which its text may be written.
    std::span<const text_rule> texts() const;

private:
    friend struct element_table;
    const element_rule* search(std::string_view name) const;

    char name_[20] = {};
    std::uint8_t name_size_ = 0;
    std::uint8_t position_ = 0;
    std::uint8_t children_ = 0;
    std::uint8_t texts_ = 0;
    std::uint16_t to_parent_ = 0;   // how many rules before this one
    std::uint16_t to_children_ = 0; // how many rules behind this one
    std::uint16_t content_ = 0;     // index of the group_rule, or of the first text_rule
    std::uint16_t most_ = 1;
    bool needed_ = true;
    bool nested_ = false;
    bool unique_ = false;
    bool numbered_ = false;
};

/// What stands in infNFe.
const element_rule& infnfe_rule();

/// The rule of the element at a path below infNFe, null where the layout knows none. Numbers in
/// brackets are passed over: `det[2]/prod/cProd`.
const element_rule* rule_at(std::string_view path);

/// The rule that follows in the layout's order: what stands in an element follows it. Null behind
/// the last.
const element_rule* next(const element_rule& rule);

/// Whether two children of one group may not stand in it together.
bool exclude_each_other(const element_rule& left, const element_rule& right);

/// How often an element stands in its parent, as a word: `1`, `0-1`, `1-990`; in parentheses where
/// it is nested.
std::string occurrence_word(const element_rule& rule);

/// What stands in an element, in words without its codes and bounds: `group`, `digits 2`,
/// `decimal 13.2`, `text 1-60`, `datetime`.
std::string content_word(const element_rule& rule);

/// The texts that an element may have, in a sentence: `1 to 60 characters, no blank at either end`.
std::string demanded_text(const element_rule& rule);

} // namespace kivo::erp::v12::layout
