#pragma once

#include <base/counted.hpp>

#include <cstddef>
#include <string>

/// Samples of the counted base values.
namespace kivo::tests {

template <class Value> Value base_sample(std::size_t number) { return Value(number); }

template <class Value> std::string base_text(const Value& value) {
    return std::to_string(value.number());
}

} // namespace kivo::tests
