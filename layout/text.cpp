#include <layout/text.hpp>

#include <charconv>

namespace kivo::erp::v12::layout {

bool value_chars::put_number(std::uint64_t number, const form& how) {
    if (number == 0 && how.even_empty) {
        return show("");
    }
    char* begin = chars_ + sizeof chars_;
    char* const end = begin;
    for (const auto base = static_cast<unsigned>(how.base); begin == end || number != 0;
         number /= base) {
        *--begin = "0123456789ABCDEF"[number % base];
    }
    const auto written = static_cast<unsigned>(end - begin);
    for (unsigned width = written <= how.width ? how.width : how.wide_width; width > written;
         --width) {
        *--begin = '0';
    }
    return show({begin, static_cast<std::size_t>(end - begin)});
}

std::size_t value_chars::make_larger(char*& chars, std::size_t room) {
    large_.resize(2 * room);
    chars = large_.data();
    return large_.size();
}

core::v7::optional<std::uint64_t> number_of(std::string_view text, std::uint64_t largest,
                                            const form& how) {
    if (how.width != 0 && text.size() != how.width && text.size() != how.wide_width &&
        !(how.fewer && text.size() < how.width)) {
        return {};
    }
    if (text.empty() && how.even_empty) {
        return 0;
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
        return (how.fewer ? "at most " : "") + std::to_string(how.width) +
               (how.width == 1 ? " digit" : " digits") + (how.omit_default ? ", not 0" : "");
    }
    return "a whole number up to " + std::to_string(largest);
}

std::string expected_identifier(std::string_view name, std::string_view text) {
    const bool repeated = text.size() >= 11 && text.find_first_not_of(text.front()) == text.npos;
    return "a " + std::string(name) +
           (repeated ? "; those of one repeated digit are not issued" : " with their check digits");
}

} // namespace kivo::erp::v12::layout
