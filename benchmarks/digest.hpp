#pragma once

#include <concepts>
#include <cstdint>
#include <string>

/// What reading a single value comes to, in every holder: a text is touched at both ends.
namespace kivo::benchmarks {

inline std::uint64_t digest(const std::string& value) {
    return value.empty() ? 0
                         : value.size() + static_cast<unsigned char>(value.front()) +
                               static_cast<unsigned char>(value.back());
}

template <std::unsigned_integral Number> std::uint64_t digest(Number value) { return value; }

} // namespace kivo::benchmarks
