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
using erp::v12::layout::for_each_field;
using erp::v12::layout::group;
using erp::v12::layout::is_list;
using erp::v12::layout::is_optional;
using erp::v12::layout::is_variant;

/// A base value, a structure around one, or a number of that size.
template <class Value>
concept word = !group<Value> && !is_optional<Value> && !is_variant<Value> &&
               std::is_trivially_copyable_v<Value> && sizeof(Value) == sizeof(std::uint64_t);

/// A code, or a number that is none of those.
template <class Value>
concept code = (std::is_enum_v<Value> || std::unsigned_integral<Value>)&&!word<Value>;

template <word Value> std::uint64_t word_of(const Value& value) {
    std::uint64_t result = 0;
    std::memcpy(&result, &value, sizeof value);
    return result;
}

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

template <class... Accessor>
std::tuple<plain<typename Accessor::value_type>...>
    plain_fields(erp::v12::layout::types<Accessor...>);

/// A class as a plain structure: the same fields, its groups in place.
template <class Class> struct plain_group {
    decltype(plain_fields(erp::v12::layout::accessors<Class>())) fields;
};

using plain_invoice = plain_group<erp::v12::fiscal::nota_fiscal>;

} // namespace kivo::benchmarks
