#pragma once

#include <base_samples.hpp>
#include <fiscal/types.hpp>
#include <layout/map.hpp>

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// Values for every field of every class, told apart by a number, and their texts.
namespace kivo::tests {

using erp::v12::layout::amount_structure;
using erp::v12::layout::for_each_field;
using erp::v12::layout::is_variant;

/// What a getter of the class returns.
template <class Accessor, class> using value_of = typename Accessor::value_type;

template <class Value> Value sample(std::size_t number);

/// What the tests do with every class. It reaches all that stands in an object: where a program has
/// several sources, one of them compiles it (see elsewhere.hpp).
template <class Class> struct of_class {
    static Class sample(std::size_t number);
    static std::vector<std::string> texts(const Class& object);
    static std::vector<std::string_view> getter_names();
};

namespace detail {

template <class Variant> Variant sample_variant(std::size_t number) {
    // neighbours differ, and so do the same field of neighbouring objects
    const std::size_t wanted = (number + number / 64) % std::variant_size_v<Variant>;
    core::v7::optional<Variant> result;
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        ((index == wanted
              ? void(result.emplace(std::in_place_index<index>,
                                    sample<std::variant_alternative_t<index, Variant>>(number)))
              : void()),
         ...);
    }
    (std::make_index_sequence<std::variant_size_v<Variant>>());
    return *result;
}

} // namespace detail

/// A value that differs from that of every number near it; in a class, every field is set.
template <class Value> Value sample(std::size_t number) {
    if constexpr (erp::v12::layout::is_optional<Value>) {
        return sample<typename Value::value_type>(number);
    } else if constexpr (erp::v12::layout::is_list<Value>) {
        using item = typename Value::value_type;
        Value result;
        result.push_back(sample<item>(number));
        result.push_back(sample<item>(number + 100));
        return result;
    } else if constexpr (is_variant<Value>) {
        return detail::sample_variant<Value>(number);
    } else if constexpr (erp::v12::layout::group<Value>) {
        return of_class<Value>::sample(number);
    } else if constexpr (std::same_as<Value, std::string>) {
        // the texts of one object differ in length too: their blocks tell them apart
        return "text " + std::to_string(number) + ", too long to stand in the string itself" +
               std::string(number % 64, '.');
    } else if constexpr (std::is_enum_v<Value> || std::unsigned_integral<Value>) {
        return static_cast<Value>(number % 251 + 1);
    } else if constexpr (std::same_as<Value, core::v7::monostate>) {
        return {};
    } else if constexpr (amount_structure<Value>) {
        return {base_sample<erp::v12::fiscal::decimal>(number)};
    } else {
        return base_sample<Value>(number);
    }
}

/// A field's own value for the object of a number, as `sample` sets it.
template <class Class, class Accessor> auto sample_for(std::size_t index, std::size_t number) {
    return sample<value_of<Accessor, Class>>(number * 64 + index);
}

/// The texts of all fields of an object, in the order of `for_each_field`.
template <class Class> std::vector<std::string> texts(const Class& object) {
    return of_class<Class>::texts(object);
}

/// A text that tells a value from every other of its type.
template <class Value> std::string text(const Value& value) {
    if constexpr (erp::v12::layout::is_optional<Value>) {
        return value ? "present " + text(*value) : "absent";
    } else if constexpr (erp::v12::layout::is_list<Value>) {
        std::string result = std::to_string(value.size()) + " of";
        for (const auto& item : value) {
            result += ' ' + text(item);
        }
        return result;
    } else if constexpr (is_variant<Value>) {
        if (value.valueless_by_exception()) {
            return "valueless";
        }
        return std::to_string(value.index()) + ": " +
               std::visit([](const auto& held) { return text(held); }, value);
    } else if constexpr (erp::v12::layout::group<Value>) {
        std::string result = "{";
        for (const std::string& field : texts(value)) {
            result += field + "; ";
        }
        return result + '}';
    } else if constexpr (std::same_as<Value, std::string>) {
        return '"' + value + '"';
    } else if constexpr (std::is_enum_v<Value> || std::unsigned_integral<Value>) {
        return std::to_string(static_cast<std::uint64_t>(value));
    } else if constexpr (std::same_as<Value, core::v7::monostate>) {
        return "nothing";
    } else if constexpr (amount_structure<Value>) {
        return base_text(value.valor);
    } else {
        return base_text(value);
    }
}

template <class Class> Class of_class<Class>::sample(std::size_t number) {
    Class result;
    for_each_field<Class>([&](const auto& field, std::size_t index) {
        using value = value_of<std::remove_cvref_t<decltype(field)>, Class>;
        (result.*field.set)(tests::sample<value>(number * 64 + index));
    });
    return result;
}

template <class Class> std::vector<std::string> of_class<Class>::texts(const Class& object) {
    std::vector<std::string> result;
    for_each_field<Class>(
        [&](const auto& field, std::size_t) { result.push_back(text((object.*field.get)())); });
    return result;
}

template <class Class> std::vector<std::string_view> of_class<Class>::getter_names() {
    std::vector<std::string_view> result;
    for_each_field<Class>(
        [&](const auto& field, std::size_t) { result.push_back(field.getter_name); });
    return result;
}

} // namespace kivo::tests
