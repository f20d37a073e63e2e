#pragma once

#include "samples.hpp"

#include <base/optional.hpp>
#include <base/variant.hpp>

#include <fiscal/produto.hpp>

#include <string_view>
#include <type_traits>
#include <vector>

/// What the kinds of classes promise, read off their members.
namespace kivo::tests {

/// No record until a field is stored: the classes that can swap.
template <class Class>
concept lazy = requires(Class& left, Class& right) {
    left.swap(right);
};

/// A class whose copy may not fail: a failure ends the process.
template <class Class>
concept copy_ends = lazy<Class> && std::is_nothrow_copy_constructible_v<Class>;

/// Whether copying a value can end the process, by a class of that kind somewhere in it.
template <class Value> struct may_end {
    static bool value() {
        bool result = copy_ends<Value>;
        if constexpr (erp::v12::layout::group<Value>) {
            for_each_field<Value>([&](const auto& field, std::size_t) {
                using inner = typename std::remove_cvref_t<decltype(field)>::value_type;
                result = result || may_end<inner>::value();
            });
        }
        return result;
    }
};
template <class Value> struct may_end<core::v7::optional<Value>> : may_end<Value> {};
template <class Value> struct may_end<std::vector<Value>> : may_end<Value> {};
template <class... Alternatives> struct may_end<core::v7::variant<Alternatives...>> {
    static bool value() { return (may_end<Alternatives>::value() || ...); }
};

/// The fields that setting the field of this index removes: three accessor pairs of an item stand
/// for one field.
template <class Class> std::vector<std::size_t> removed_with(std::size_t changed) {
    std::vector<std::size_t> result;
    if constexpr (std::is_same_v<Class, erp::v12::fiscal::produto>) {
        bool removes = false;
        for_each_field<Class>([&](const auto& field, std::size_t index) {
            const std::string_view setter = field.setter_name;
            if (setter == "set_medicamentos" || setter == "set_armas" ||
                setter == "set_combustiveis") {
                index == changed ? void(removes = true) : result.push_back(index);
            }
        });
        if (!removes) {
            result.clear();
        }
    }
    return result;
}

} // namespace kivo::tests
