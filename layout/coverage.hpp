#pragma once

#include <layout/map.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The layout map laid beside the layout's own list of elements (`layout/elements.txt`): where
/// each field stands, where the two differ, and what has no field.
namespace kivo::erp::v12::layout {

/// One place of a field in an invoice. A class that stands in several places brings each of its
/// fields once for each of them.
struct place {
    enum class kind {
        element,     ///< an element or an attribute
        position,    ///< the attribute that numbers the elements of a list
        alternative, ///< the element of one alternative of a choice
        inside,      ///< no element of its own: what it holds stands in the holder's element
        none,        ///< the layout has no element for it
        outside,     ///< an element that no object holds and a writer fills in
    };
    enum class count { plain, optional, list };

    std::string path;       ///< below infNFe; of kind inside, the holder's; of kind none, empty
    std::string_view owner; ///< the class; empty where no object holds the element
    std::string_view getter;
    std::string_view setter;
    kind standing = kind::element;
    count times = count::plain;
    std::string type;          ///< what the getter returns, without optional and list
    std::string alternative;   ///< of a choice: which one, in words; of a choice in a choice, both
    std::uint64_t largest = 0; ///< of a whole number or a code; 0: neither
    bool group = false;        ///< a class, or a choice of classes
    bool fixed_point = false;  ///< a decimal
    bool conditional = false;  ///< written only where the object is of a certain kind
    bool run = false;          ///< the object as a whole is optional, without an element of its own
    form how = {};
};

/// All fields of an invoice, in the layout's order.
std::vector<place> places();

/// An element or attribute as the layout has it, in the words of `elements.txt`.
struct layout_element {
    std::string path;
    std::string occurs;
    std::string content;
};

/// Reads the list of the layout's elements, in the layout's order.
/// Throws std::runtime_error where it cannot be read.
std::vector<layout_element> read_elements(const std::string& file);

/// The elements in which nothing has a place; of a whole group, only the group.
std::vector<layout_element> without_field(const std::vector<layout_element>& elements,
                                          const std::vector<place>& all_places);

/// Where field and element disagree on whether the element may be absent; empty where they agree.
std::string absence(const place& field, const layout_element& element);

/// Where field and element differ: in absence, number, width and form.
std::vector<std::string> differences(const place& field, const layout_element& element);

} // namespace kivo::erp::v12::layout
