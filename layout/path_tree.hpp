#pragma once

#include <layout/tree.hpp>

#include <base/optional.hpp>

#include <cstdint>
#include <list>
#include <map>
#include <string_view>
#include <utility>

namespace kivo::erp::v12::layout {

/// An element that grows by the paths of texts in it. It holds no texts of its own.
struct path_tree {
    std::string_view name;
    std::uint32_t number = 1;   ///< among the elements of its name
    std::string_view path = {}; ///< the first that names it
    core::v7::optional<std::string_view> text = {};
    std::list<path_tree> inner = {}; ///< in the order in which they were named first
    /// The same, by name and number.
    std::map<std::pair<std::string_view, std::uint32_t>, path_tree*> known = {};

    /// Adds a text at its path. Throws std::invalid_argument for a path that is none, or that has a
    /// text already.
    void add(const placed_text& placed);

    /// The element of a name and number in it; null where there is none.
    const path_tree* find(std::string_view wanted, std::uint32_t wanted_number) const;
};

} // namespace kivo::erp::v12::layout
