#pragma once

#include "samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kivo::tests {

/// The part of a text that begins shortly before a place in it.
inline std::string part_from(const std::string& text, std::size_t place) {
    const std::size_t begin = place < 40 ? 0 : place - 40;
    return (begin == 0 ? "" : "...") + text.substr(begin, 120) +
           (text.size() > begin + 120 ? "..." : "");
}

/// Two texts that differ, from shortly before they do.
inline std::string difference(const std::string& found, const std::string& expected) {
    const auto differ =
        std::mismatch(found.begin(), found.end(), expected.begin(), expected.end()).first;
    const auto place = static_cast<std::size_t>(differ - found.begin());
    return part_from(found, place) + " instead of " + part_from(expected, place);
}

/// Whether texts are these; if not, it names those that differ.
inline ::testing::AssertionResult same_texts(const std::vector<std::string_view>& names,
                                             const std::vector<std::string>& found,
                                             const std::vector<std::string>& expected) {
    ::testing::AssertionResult result = ::testing::AssertionSuccess();
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (found[index] != expected[index]) {
            result = ::testing::AssertionFailure()
                     << result.message() << '\n'
                     << names[index] << ": " << difference(found[index], expected[index]);
        }
    }
    return result;
}

/// Whether the texts of an object's fields are these; if not, it names the fields that differ.
template <class Class>
::testing::AssertionResult same_fields(const Class& object,
                                       const std::vector<std::string>& expected) {
    return same_texts(of_class<Class>::getter_names(), texts(object), expected);
}

template <erp::v12::layout::group Class>
::testing::AssertionResult same_fields(const Class& object, const Class& expected) {
    return same_fields(object, texts(expected));
}

} // namespace kivo::tests
