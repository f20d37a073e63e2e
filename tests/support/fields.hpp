#pragma once

#include <layout/map.hpp>

#include <cstddef>
#include <tuple>

/// Walks the accessor pairs of a class, as the layout map lists them.
namespace kivo::tests {

/// One accessor pair, and where the layout has it.
template <class Get, class Set> struct accessor {
    const char* element;
    Get get;
    Set set;
};

namespace detail {

template <class Entry> const char* name_of(const Entry& entry) {
    if constexpr (requires { entry.name; }) {
        return entry.name;
    } else {
        return "a field without an element of its own";
    }
}

/// A second place of a field and elements that are no field have neither accessors nor entries.
template <class Entry, class Visit> void visit_entry(const Entry& entry, Visit& visit) {
    if constexpr (requires { entry.set; }) {
        visit(accessor<decltype(entry.get), decltype(entry.set)>{name_of(entry), entry.get,
                                                                 entry.set});
    } else if constexpr (requires { entry.entries; }) {
        std::apply([&](const auto&... inner) { (visit_entry(inner, visit), ...); }, entry.entries);
    } else if constexpr (requires { entry.condition; }) {
        visit_entry(entry.entry, visit);
    }
}

} // namespace detail

/// Calls `visit(accessor, index)` for each accessor pair of a class.
template <class Class, class Visit> void for_each_field(Visit visit) {
    std::size_t index = 0;
    auto visit_next = [&](const auto& found) { visit(found, index++); };
    std::apply([&](const auto&... entry) { (detail::visit_entry(entry, visit_next), ...); },
               erp::v12::layout::fields<Class>);
}

} // namespace kivo::tests
