#pragma once

#include <cstddef>
#include <utility>
#include <variant>

namespace kivo::tests {

namespace detail {

/// Whatever is to be made of it fails.
template <class Value> struct refusing {
    struct refusal {};
    operator Value() const { throw refusal(); }
};

template <std::size_t index, class Variant> bool made_valueless(Variant& value) {
    using alternative = refusing<std::variant_alternative_t<index, Variant>>;
    try {
        value.template emplace<index>(alternative());
    } catch (const typename alternative::refusal&) {
    }
    return value.valueless_by_exception();
}

} // namespace detail

/// Leaves a variant without an alternative, as a failed change does. Tells whether it could: some
/// alternatives keep the old one, and a variant of nothing else always holds one.
template <class Variant> bool make_valueless(Variant& value) {
    return [&]<std::size_t... index>(std::index_sequence<index...>) {
        return (detail::made_valueless<index>(value) || ...);
    }
    (std::make_index_sequence<std::variant_size_v<Variant>>());
}

} // namespace kivo::tests
