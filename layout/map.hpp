#pragma once

#include <base/optional.hpp>

#include <tuple>
#include <type_traits>
#include <vector>

/// The layout map: which NF-e element each field is, in the layout's order, as data.
///
/// `fields<Class>` is one tuple per class, made of the words below. Whether a field is a text, a
/// group of its own, an optional or a list is told by the type of its getter. Record order and
/// layout order differ; this map knows the layout's alone.
namespace kivo::erp::v12::layout {

/// The entries of a class. A class without a specialisation is no group of the layout.
template <class Class> inline constexpr std::tuple<> fields;

/// Whether a field may be absent.
template <class Value> inline constexpr bool is_optional = false;
template <class Value> inline constexpr bool is_optional<core::v7::optional<Value>> = true;

/// Whether a field holds any number of values.
template <class Value> inline constexpr bool is_list = false;
template <class Value> inline constexpr bool is_list<std::vector<Value>> = true;

/// A class of the map.
template <class Value>
concept group = (std::tuple_size_v<std::remove_const_t<decltype(fields<Value>)>> != 0);

/// What a getter returns.
template <class Get, class Class> using value_of = std::invoke_result_t<Get, const Class&>;

/// How a number, a code or a text stands in its element.
struct form {
    unsigned width = 0;      ///< digits, with leading zeros; 0: as many as the number needs
    unsigned wide_width = 0; ///< the other width that the layout allows, if any
    bool optional = false;   ///< left out at the field's default: 0, where 0 is no code, or ""
    bool empty = false;      ///< a text that stands in the layout even when it is empty
    int base = 10;           ///< of the number
    const char* before = ""; ///< what stands before the text of the field, in the same element
    const char* position = nullptr; ///< of a list: the attribute that numbers the elements from 1

    /// The layout lets the element be absent, or has no code for the default.
    constexpr form or_absent() const {
        form changed = *this;
        changed.optional = true;
        return changed;
    }
};

/// A code or number of so many digits, leading zeros included.
constexpr form digits(unsigned width) { return {.width = width}; }

/// A code of one of two widths; the number is written in the first that holds it.
constexpr form digits(unsigned narrow, unsigned wide) {
    return {.width = narrow, .wide_width = wide};
}

/// A code of digits and letters, whose number is the code read as hexadecimal.
constexpr form hexadecimal(unsigned width) { return {.width = width, .base = 16}; }

/// A text behind some characters that are always the same.
constexpr form behind(const char* before) { return {.before = before}; }

/// A list whose elements are numbered by an attribute, from 1.
constexpr form numbered(const char* attribute) { return {.position = attribute}; }

/// A plain field whose element is left out at the field's default.
inline constexpr form or_absent = form{}.or_absent();

/// A plain text whose element stands even when the text is empty.
inline constexpr form or_empty{.empty = true};

/// A field that is an element: `field{"vFCP", &grupo_fcp::get_valor, &grupo_fcp::set_valor}`.
template <class Get, class Set> struct field {
    const char* name; ///< of the element
    Get get;          ///< member function of the class that returns the field
    Set set;          ///< member function of the class that stores the field
    form how = {};    ///< how the element holds it
};
template <class Get, class Set> field(const char*, Get, Set) -> field<Get, Set>;
template <class Get, class Set> field(const char*, Get, Set, form) -> field<Get, Set>;

/// A field that is a group without an element of its own: its elements stand in the holder's, but
/// for the one that the layout does not know there.
template <class Get, class Set> struct embedded {
    Get get;                  ///< as that of a field
    Set set;                  ///< as that of a field
    const char* without = ""; ///< name of the element that is left out
};
template <class Get, class Set> embedded(Get, Set) -> embedded<Get, Set>;
template <class Get, class Set> embedded(Get, Set, const char*) -> embedded<Get, Set>;

/// Entries of the same class that stand one element further down.
template <class... Entries> struct element {
    /// The element's name, and what stands in it.
    constexpr element(const char* element_name, Entries... element_entries)
        : name(element_name), entries(element_entries...) {}

    const char* name;               ///< of the element
    std::tuple<Entries...> entries; ///< what stands in it
};

/// A field that is a variant: for each alternative, in index order, where it stands: the name of
/// its element, `here`, `nowhere`, or `inside{...}`.
template <class Get, class Set, class... Places> struct one_of {
    /// The accessors of the field, and a place for each alternative.
    constexpr one_of(Get getter, Set setter, Places... alternatives)
        : get(getter), set(setter), places(alternatives...) {}

    Get get;                      ///< as that of a field
    Set set;                      ///< as that of a field
    std::tuple<Places...> places; ///< one for each alternative
};

/// Place of an alternative whose elements stand in the holder's own element.
struct here_place {};
inline constexpr here_place here; ///< for `one_of`

/// Place of an alternative that is not written here: it is empty, or stands in a later entry.
struct nowhere_place {};
inline constexpr nowhere_place nowhere; ///< for `one_of`

/// Place of an alternative that is a variant itself: its own alternatives, one element further
/// down.
template <class... Places> struct inside {
    /// The element's name, and a place for each alternative in it.
    constexpr inside(const char* element_name, Places... alternatives)
        : name(element_name), places(alternatives...) {}

    const char* name;             ///< of the element
    std::tuple<Places...> places; ///< one for each alternative
};

/// An element with a text of its own, which tells a group from another.
struct constant {
    const char* name; ///< of the element
    const char* text; ///< in the element
};

/// An element that the layout demands and no object holds. It is written empty, in its place, for
/// the one who knows its text.
struct outside {
    const char* name; ///< of the element
};

/// An entry that is read wherever it stands, but written only where the object is of its kind.
template <class Condition, class Entry> struct only_if {
    Condition condition; ///< `bool (const Class&)`: whether the object is of the kind
    Entry entry;         ///< what is written then
};
template <class Condition, class Entry> only_if(Condition, Entry) -> only_if<Condition, Entry>;

/// Another place of a field that stands in an earlier entry.
template <class Entry> struct again {
    Entry entry; ///< as the earlier one, with its other place
};
template <class Entry> again(Entry) -> again<Entry>;

/// A field for which the layout has no element.
template <class Get, class Set> struct no_element {
    Get get; ///< as that of a field
    Set set; ///< as that of a field
};
template <class Get, class Set> no_element(Get, Set) -> no_element<Get, Set>;

} // namespace kivo::erp::v12::layout
