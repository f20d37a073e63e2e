#pragma once

#include <base/converter.hpp>
#include <base/optional.hpp>
#include <base/variant.hpp>

#include <fiscal/types.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// The layout map: which NF-e element each field is, in the layout's order, as data.
///
/// `map_of<Class>` has one list of entries per class, made of the words below. Whether a field is a
/// text, a group of its own, an optional or a list is told by the type of its getter. Record order
/// and layout order differ; this map knows the layout's alone.
namespace kivo::erp::v12::layout {

/// The map of a class: `c`, the class, and `fields`, its entries.
template <class Class> struct map_of;

/// A class of the map.
template <class Value>
concept group = requires {
    map_of<Value>::fields;
};

/// Entries, in the layout's order.
template <class... Entry> struct entries {
    explicit constexpr entries(const Entry&...) {}
    constexpr entries() requires(sizeof...(Entry) > 0) = default;
};

// What a field can hold

/// Whether a field may be absent.
template <class Value> inline constexpr bool is_optional = false;
template <class Value> inline constexpr bool is_optional<core::v7::optional<Value>> = true;

/// Whether a field holds any number of values.
template <class Value> inline constexpr bool is_list = false;
template <class Value> inline constexpr bool is_list<std::vector<Value>> = true;

/// Whether a field is a choice.
template <class Value> inline constexpr bool is_variant = false;
template <class... Alternatives>
inline constexpr bool is_variant<core::v7::variant<Alternatives...>> = true;

template <class Value> struct held_by { using type = Value; };
template <class Value> struct held_by<core::v7::optional<Value>> : held_by<Value> {};
template <class Value> struct held_by<std::vector<Value>> : held_by<Value> {};

/// What a field holds, without the optional and the list around it.
template <class Value> using content_of = typename held_by<Value>::type;

/// A value with converters of its own: a base value, or the emission type.
template <class Value>
concept convertible_value = requires(Value& value, char* chars, std::size_t& length) {
    core::v7::chars_converter<Value>::make_chars(chars, length, value);
    core::v7::value_converter<Value>::make_value(value, chars, length);
};

/// A structure of nothing but an amount.
template <class Value>
concept amount_structure = requires(Value& value) {
    { value.valor } -> std::same_as<fiscal::decimal&>;
};

/// An enumeration or a whole number without converters: it is written in digits.
template <class Value>
concept coded_value = (std::is_enum_v<Value> ||
                       std::unsigned_integral<Value>)&&!convertible_value<Value>;

/// A value that is the text of one element.
template <class Value>
concept single_value = std::same_as<Value, std::string> || convertible_value<Value> ||
    amount_structure<Value> || coded_value<Value>;

// How a text stands

/// A few characters, for use in types.
template <std::size_t size> struct characters {
    char chars[size] = {};

    constexpr characters() = default;
    constexpr characters(const char (&literal)[size]) { // NOLINT(google-explicit-constructor)
        for (std::size_t index = 0; index < size; ++index) {
            chars[index] = literal[index];
        }
    }
    constexpr std::string_view view() const { return {chars, size - 1}; }
    constexpr bool operator==(const characters&) const = default;
};

/// How a number, a code or a text stands in its element.
struct form {
    unsigned width = 0;        ///< digits, with leading zeros; 0: as many as the number needs
    unsigned wide_width = 0;   ///< the other width that the layout allows, if any
    bool fewer = false;        ///< a text of fewer digits is read, too
    bool omit_default = false; ///< left out at the field's default: 0, where 0 is no code, or ""
    bool even_empty = false;   ///< stands in the layout even when it is empty
    int base = 10;             ///< of the number

    constexpr form operator|(const form& more) const {
        form both = *this;
        both.omit_default = omit_default || more.omit_default;
        both.even_empty = even_empty || more.even_empty;
        return both;
    }
    constexpr bool operator==(const form&) const = default;
};

/// A code or number of so many digits, leading zeros included.
constexpr form digits(unsigned width) { return {.width = width}; }

/// A code of one of two widths; the number is written in the first that holds it.
constexpr form digits(unsigned narrow, unsigned wide) {
    return {.width = narrow, .wide_width = wide};
}

/// A number that is written with so many digits, and read with fewer, too.
constexpr form digits_up_to(unsigned width) { return {.width = width, .fewer = true}; }

/// A code of digits and letters, whose number is the code read as hexadecimal.
constexpr form hexadecimal(unsigned width) { return {.width = width, .base = 16}; }

/// Left out at the field's default: the layout lets the element be absent, or has no code for it.
inline constexpr form omit_default{.omit_default = true};

/// Stands even when there is nothing in it. Of a number or base value: the default is empty.
inline constexpr form even_empty{.even_empty = true};

// The accessors

namespace detail {

template <class Class, class Result> Class class_of(Result (Class::*)() const);

/// The last part of the name that the compiler gives to the one template argument of a function.
constexpr std::string_view argument_of(std::string_view function) {
    function.remove_prefix(function.find("argument = "));
    function = function.substr(0, function.find_first_of(";]"));
    return function.substr(function.rfind(':') + 1);
}

template <auto argument> constexpr std::string_view member_name() {
    return argument_of(__PRETTY_FUNCTION__);
}

template <class argument> constexpr std::string_view type_name() {
    return argument_of(__PRETTY_FUNCTION__);
}

} // namespace detail

/// One accessor pair of a class.
template <auto Get, auto Set> struct accessor {
    using class_type = decltype(detail::class_of(Get));
    using value_type = std::remove_cvref_t<std::invoke_result_t<decltype(Get), const class_type&>>;

    static_assert(std::is_invocable_v<decltype(Set), class_type&, const value_type&>,
                  "the setter does not take what the getter returns");

    static constexpr auto get = Get;
    static constexpr auto set = Set;
    static constexpr std::string_view getter_name = detail::member_name<Get>();
    static constexpr std::string_view setter_name = detail::member_name<Set>();
};

/// What the entries of the map are. All that they tell is in their types.
namespace word {

template <characters Name, auto Get, auto Set, form How> struct field : accessor<Get, Set> {
    static constexpr std::string_view name = Name.view();
    static constexpr form how = How;
    using held = content_of<typename accessor<Get, Set>::value_type>;

    static_assert((How.width == 0 && How.base == 10) || coded_value<held>,
                  "digits are for numbers and codes");
};

template <characters Name, auto Get, auto Set, characters Prefix>
struct behind : accessor<Get, Set> {
    static constexpr std::string_view name = Name.view();
    static constexpr std::string_view prefix = Prefix.view();

    static_assert(std::same_as<typename accessor<Get, Set>::value_type, std::string>,
                  "only a plain text stands behind others");
};

template <characters Name, auto Get, auto Set, characters Attribute>
struct numbered : accessor<Get, Set> {
    static constexpr std::string_view name = Name.view();
    static constexpr std::string_view attribute = Attribute.view();
    static constexpr form how = {};

    static_assert(is_list<typename accessor<Get, Set>::value_type>, "only lists are numbered");
};

template <auto Get, auto Set, class Part> struct embedded : accessor<Get, Set> {
    using part = Part;
};

template <bool EvenEmpty, characters Name, class... Entry> struct element {
    static constexpr std::string_view name = Name.view();
    static constexpr bool even_empty = EvenEmpty;
    using inner = entries<Entry...>;
};

template <auto Get, auto Set, class... Place> struct one_of : accessor<Get, Set> {
    using places = entries<Place...>;
};

template <characters Name> struct as { static constexpr std::string_view name = Name.view(); };

template <characters Name, class... Place> struct inside {
    static constexpr std::string_view name = Name.view();
    using places = entries<Place...>;
};

template <characters Name, characters Text> struct marked_by {
    static constexpr std::string_view name = Name.view();
    static constexpr std::string_view text = Text.view();
};

struct nowhere {};

template <characters Name, class... List> struct sorted_by_content {
    static constexpr std::string_view name = Name.view();
    using inner = entries<List...>;
};

template <auto Get, auto Set> struct list : accessor<Get, Set> {
    static_assert(is_list<typename accessor<Get, Set>::value_type>,
                  "only lists share the name of their elements");
};

template <class... Entry> struct exclusive { using inner = entries<Entry...>; };

template <auto Condition, class Entry> struct only_if {
    static constexpr auto condition = Condition;
    using entry = Entry;
};

template <class Entry> struct again { using entry = Entry; };

template <characters Name, auto Member, auto Derive> struct outside {
    static constexpr std::string_view name = Name.view();
    static constexpr auto member = Member;
    static constexpr auto derive = Derive;
};

template <auto Get, auto Set> struct no_element : accessor<Get, Set> {};

} // namespace word

// The words of the map, as entries are written.

/// A field that is an element: `field<"vFCP", &c::get_valor, &c::set_valor>`.
template <characters Name, auto Get, auto Set, form How = form{}>
inline constexpr word::field<Name, Get, Set, How> field{};

/// A text behind some characters that are always the same, in one element.
template <characters Name, auto Get, auto Set, characters Prefix>
inline constexpr word::behind<Name, Get, Set, Prefix> behind{};

/// A list of groups that an attribute of their elements numbers, from 1.
template <characters Name, auto Get, auto Set, characters Attribute>
inline constexpr word::numbered<Name, Get, Set, Attribute> numbered{};

/// A field that is a group without an element of its own: its elements stand in the holder's.
/// `Part` has those that the layout knows there.
template <auto Get, auto Set,
          class Part = map_of<content_of<typename accessor<Get, Set>::value_type>>>
inline constexpr word::embedded<Get, Set, Part> embedded{};

/// Entries of the same class that stand one element further down.
template <characters Name, class... Entry>
constexpr word::element<false, Name, Entry...> element(entries<Entry...>) {
    return {};
}

/// The same, of an element that stands even when there is nothing in it.
template <characters Name, class... Entry>
constexpr word::element<true, Name, Entry...> mandatory_element(entries<Entry...>) {
    return {};
}

/// A field that is a variant: for each alternative, in index order, where it stands.
template <auto Get, auto Set, class... Place>
inline constexpr word::one_of<Get, Set, Place...> one_of{};

/// An alternative that is an element.
using word::as;
/// An alternative that stands in another entry, or is empty.
using word::nowhere;
/// An alternative that is a variant itself: its alternatives, one element further down.
using word::inside;
/// An alternative whose elements stand in the holder's own, behind one with a text that tells it
/// from the alternative before it.
using word::marked_by;

/// Lists that share the name of their elements: what stands in one tells its list.
template <characters Name, class... List>
constexpr word::sorted_by_content<Name, List...> sorted_by_content(entries<List...>) {
    return {};
}

/// A list of groups in `sorted_by_content`.
template <auto Get, auto Set> inline constexpr word::list<Get, Set> list{};

/// Entries of which one leaves no room for the others.
template <class... Entry> constexpr word::exclusive<Entry...> exclusive(entries<Entry...>) {
    return {};
}

/// An entry that is read wherever it stands, but written only where the object is of its kind, as
/// the condition tells: `bool (const Class&)`.
template <auto Condition, class Entry>
constexpr word::only_if<Condition, Entry> only_if(const Entry&) {
    return {};
}

/// Another place of a field that stands in an earlier entry.
template <class Entry> constexpr word::again<Entry> again(const Entry&) { return {}; }

/// An element that the layout demands and no object holds. The member of `outside_texts` is its
/// text; where that is empty, a function may make one of the object.
template <characters Name, auto Member, auto Derive = nullptr>
inline constexpr word::outside<Name, Member, Derive> outside{};

/// A field for which the layout has no element.
template <auto Get, auto Set> inline constexpr word::no_element<Get, Set> no_element{};

// Walking a map

/// Where an entry of a map stands that is a field or an element of its own.
template <class Entry, bool Conditional, bool Again, class... Element> struct placed {
    using entry = Entry;
    static constexpr bool conditional = Conditional; ///< it is not always written
    static constexpr bool again = Again;             ///< its field stands in an earlier entry, too

    /// The path of the element that holds it, below that of the class; with a slash at its end.
    static std::string path() { return (std::string() + ... + (std::string(Element::name) + '/')); }
};

/// Types in their order.
template <class... Type> struct types {};

namespace detail {

template <class... Left, class... Right>
constexpr types<Left..., Right...> operator+(types<Left...>, types<Right...>) {
    return {};
}

/// The places of an entry, or of all in it.
template <bool Conditional, bool Again, class... Element> struct walk {
    template <class... Entry> static constexpr auto all(entries<Entry...>) {
        return (types<>() + ... + one<Entry>());
    }

    template <class Entry> static constexpr auto one() {
        if constexpr (requires { typename Entry::inner; }) {
            if constexpr (requires { Entry::name; }) {
                return walk<Conditional, Again, Element..., Entry>::all(typename Entry::inner());
            } else {
                return all(typename Entry::inner());
            }
        } else if constexpr (requires { Entry::condition; }) {
            return walk<true, Again, Element...>::template one<typename Entry::entry>();
        } else if constexpr (requires { typename Entry::entry; }) {
            return walk<Conditional, true, Element...>::template one<typename Entry::entry>();
        } else {
            static_assert(
                requires { typename Entry::value_type; } || requires { Entry::member; },
                "a word of the map that the walk does not know");
            return types<placed<Entry, Conditional, Again, Element...>>();
        }
    }
};

/// The accessor pair of an entry that has one which no entry before it has.
template <class Placed> constexpr auto accessor_of() {
    if constexpr (requires { typename Placed::entry::value_type; } && !Placed::again) {
        return types<accessor<Placed::entry::get, Placed::entry::set>>();
    } else {
        return types<>();
    }
}

template <class... Placed> constexpr auto accessors_of(types<Placed...>) {
    return (types<>() + ... + accessor_of<Placed>());
}

} // namespace detail

/// The accessor pairs of a class, in the layout's order.
template <group Class>
using accessors =
    decltype(detail::accessors_of(detail::walk<false, false>::all(map_of<Class>::fields)));

/// Calls `visit(placed)` for each entry of a map that is a field or an element of its own, in the
/// layout's order.
template <class Map, class Visit> constexpr void for_each_entry(Visit visit) {
    [&]<class... Placed>(types<Placed...>) {
        (visit(Placed()), ...);
    }(detail::walk<false, false>::all(Map::fields));
}

/// Calls `visit(accessor, index)` for each accessor pair of a class, in the layout's order; the
/// index is a constant.
template <group Class, class Visit> constexpr void for_each_field(Visit visit) {
    [&]<class... Accessor>(types<Accessor...>) {
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (visit(Accessor(), std::integral_constant<std::size_t, index>()), ...);
        }
        (std::index_sequence_for<Accessor...>());
    }(accessors<Class>());
}

} // namespace kivo::erp::v12::layout
