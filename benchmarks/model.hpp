#pragma once

#include <layout/invoice.hpp>
#include <layout/text.hpp>

#include <fiscal/types.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// The classes of the library as data, taken from the layout map, and the first of the other
/// holders of an invoice: plain structures.
namespace kivo::benchmarks {

using erp::v12::layout::amount_structure;
using erp::v12::layout::coded_value;
using erp::v12::layout::group;
using erp::v12::layout::is_list;
using erp::v12::layout::is_optional;

template <class Value> inline constexpr bool is_variant = false;
template <class... Alternatives>
inline constexpr bool is_variant<std::variant<Alternatives...>> = true;

/// A base value, a structure around one, or a number of that size.
template <class Value>
concept word = !group<Value> && !is_optional<Value> && !is_variant<Value> &&
               std::is_trivially_copyable_v<Value> && sizeof(Value) == sizeof(std::uint64_t);

template <word Value> std::uint64_t word_of(const Value& value) {
    std::uint64_t result = 0;
    std::memcpy(&result, &value, sizeof value);
    return result;
}

namespace detail {

/// The accessor pairs of an entry of the map, or of the entries inside it. A second place of a
/// field and elements that are no field have none.
template <class Entry> constexpr auto accessors_of(const Entry& entry) {
    if constexpr (requires { entry.set; }) {
        return std::make_tuple(std::pair{entry.get, entry.set});
    } else if constexpr (requires { entry.entries; }) {
        return std::apply(
            [](const auto&... inner) { return std::tuple_cat(accessors_of(inner)...); },
            entry.entries);
    } else if constexpr (requires { entry.condition; }) {
        return accessors_of(entry.entry);
    } else {
        return std::tuple{};
    }
}

} // namespace detail

/// The accessor pairs of a class, getter first.
template <class Class>
inline constexpr auto accessors =
    std::apply([](const auto&... entry) { return std::tuple_cat(detail::accessors_of(entry)...); },
               erp::v12::layout::fields<Class>);

/// Calls `visit(accessor pair, index)` for each accessor pair of a class; the index is a constant.
template <class Class, class Visit> void for_each_accessor(Visit visit) {
    constexpr std::size_t count = std::tuple_size_v<decltype(accessors<Class>)>;
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        (visit(std::get<index>(accessors<Class>), std::integral_constant<std::size_t, index>()),
         ...);
    }
    (std::make_index_sequence<count>());
}

/// What the getter of an accessor pair returns.
template <class Class, class Accessor>
using value_of = erp::v12::layout::value_of<typename Accessor::first_type, Class>;

template <class Class> struct plain_group;

template <class Value> struct plain_type { using type = Value; };
template <class Value> using plain = typename plain_type<Value>::type;

template <group Class> struct plain_type<Class> { using type = plain_group<Class>; };
template <class Value> struct plain_type<std::optional<Value>> {
    using type = std::optional<plain<Value>>;
};
template <class Value> struct plain_type<std::vector<Value>> {
    using type = std::vector<plain<Value>>;
};
template <class... Alternatives> struct plain_type<std::variant<Alternatives...>> {
    using type = std::variant<plain<Alternatives>...>;
};

template <class Class, class... Accessors>
std::tuple<plain<value_of<Class, Accessors>>...> plain_fields(const std::tuple<Accessors...>&);

/// A class as a plain structure: the same fields, its groups in place.
template <class Class> struct plain_group {
    decltype(plain_fields<Class>(accessors<Class>)) fields;
};

using plain_invoice = plain_group<erp::v12::fiscal::nota_fiscal>;

} // namespace kivo::benchmarks
