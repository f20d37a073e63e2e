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

template <class Get, class Set, class Visit>
void visit_entry(const erp::v12::layout::field<Get, Set>& entry, Visit& visit) {
    visit(accessor<Get, Set>{entry.name, entry.get, entry.set});
}

template <class Get, class Set, class Visit>
void visit_entry(const erp::v12::layout::embedded<Get, Set>& entry, Visit& visit) {
    visit(accessor<Get, Set>{"an embedded group", entry.get, entry.set});
}

template <class Get, class Set, class... Places, class Visit>
void visit_entry(const erp::v12::layout::one_of<Get, Set, Places...>& entry, Visit& visit) {
    visit(accessor<Get, Set>{"a choice", entry.get, entry.set});
}

template <class Get, class Set, class Visit>
void visit_entry(const erp::v12::layout::no_element<Get, Set>& entry, Visit& visit) {
    visit(accessor<Get, Set>{"a field without an element", entry.get, entry.set});
}

template <class Visit> void visit_entry(const erp::v12::layout::constant&, Visit&) {}

template <class Entry, class Visit>
void visit_entry(const erp::v12::layout::again<Entry>&, Visit&) {}

template <class Condition, class Entry, class Visit>
void visit_entry(const erp::v12::layout::only_if<Condition, Entry>& entry, Visit& visit) {
    visit_entry(entry.entry, visit);
}

template <class... Entries, class Visit>
void visit_entry(const erp::v12::layout::element<Entries...>& entry, Visit& visit) {
    std::apply([&](const auto&... inner) { (visit_entry(inner, visit), ...); }, entry.entries);
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
