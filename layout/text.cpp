#include <layout/text.hpp>

#include <charconv>

namespace kivo::erp::v12::layout {

std::string number_text(std::uint64_t number, const form& how) {
    char chars[64];
    const auto written = std::to_chars(chars, chars + sizeof chars, number, how.base);
    std::string digits(chars, written.ptr);
    for (char& digit : digits) {
        digit = static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    }
    const std::size_t width = digits.size() <= how.width ? how.width : how.wide_width;
    if (digits.size() < width) {
        digits.insert(0, width - digits.size(), '0');
    }
    return digits;
}

core::v7::optional<std::uint64_t> number_of(std::string_view text, std::uint64_t largest,
                                            const form& how) {
    if (how.width != 0 && text.size() != how.width && text.size() != how.wide_width) {
        return {};
    }
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, how.base);
    if (error != std::errc() || stop != end || number > largest) {
        return {};
    }
    return number;
}

std::string expected_number(std::uint64_t largest, const form& how) {
    if (how.wide_width != 0) {
        return std::to_string(how.width) + " or " + std::to_string(how.wide_width) + " digits";
    }
    if (how.base == 16) {
        return std::to_string(how.width) + " digits or letters from A to F";
    }
    if (how.width != 0) {
        return std::to_string(how.width) + (how.width == 1 ? " digit" : " digits") +
               (how.optional ? ", not 0" : "");
    }
    return "a whole number up to " + std::to_string(largest);
}

} // namespace kivo::erp::v12::layout
