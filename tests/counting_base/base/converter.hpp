#pragma once

namespace kivo::core::v7 {

enum conversion_result : int {
    conversion_success = 0,
    conversion_buffer_too_small = 1,
    conversion_invalid = 3,
};

template <class T> struct chars_converter;
template <class T> struct value_converter;

} // namespace kivo::core::v7
