#pragma once

#include <base/converter.hpp>
#include <base/optional.hpp>

namespace kivo::core::v7 {

/// A calendar date of the years 1 to 9999, or no date.
class date {
public:
    /// No date: year, month and day are 0, and it has no text.
    constexpr date() noexcept = default;

    /// Absent when the calendar has no such day. To the setter of an optional field that is no
    /// value: pass it `date::make(year, month, day).value()`, which throws instead.
    [[nodiscard]] static constexpr optional<date> make(std::int64_t year, std::int64_t month,
                                                       std::int64_t day) noexcept {
        if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1 ||
            day > days_of(year, month)) {
            return {};
        }
        return date(static_cast<std::uint64_t>(year << 9 | month << 5 | day));
    }

    /// Only integers make a date, of a type that fits.
    template <class... Numbers>
    static optional<date> make(Numbers...) requires(!detail::integers<Numbers...>) = delete;

    /// The parts of the date; 0 in no date.
    constexpr unsigned year() const noexcept { return static_cast<unsigned>(word_ >> 9); }
    constexpr unsigned month() const noexcept { return static_cast<unsigned>(word_ >> 5 & 15); }
    constexpr unsigned day() const noexcept { return static_cast<unsigned>(word_ & 31); }

    friend constexpr bool operator==(date, date) noexcept = default;

private:
    constexpr explicit date(std::uint64_t word) noexcept : word_(word) {}

    static constexpr std::int64_t days_of(std::int64_t year, std::int64_t month) noexcept {
        if (month == 2) {
            return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
        }
        return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
    }

    std::uint64_t word_ = 0; // the year from bit 9 on, the month in 4 bits, the day in 5
};

/// `AAAA-MM-DD`; no date is invalid.
template <> struct chars_converter<date> {
    static conversion_result make_chars(char* buffer, std::size_t& length, date value) noexcept {
        if (value == date()) {
            return conversion_invalid;
        }
        char chars[] = "AAAA-MM-DD";
        detail::write_digits(chars, 4, value.year());
        detail::write_digits(chars + 5, 2, value.month());
        detail::write_digits(chars + 8, 2, value.day());
        return detail::write_chars({chars, sizeof chars - 1}, buffer, length);
    }
};

/// `AAAA-MM-DD`, a day of the calendar.
template <> struct value_converter<date> {
    static constexpr bool gives_back(std::string_view) noexcept { return true; }

    static conversion_result make_value(date& value, const char* text,
                                        std::size_t length) noexcept {
        const std::string_view chars(text, length);
        std::uint64_t year = 0;
        std::uint64_t month = 0;
        std::uint64_t day = 0;
        if (chars.size() != 10 || chars[4] != '-' || chars[7] != '-' ||
            !detail::read_digits(chars.substr(0, 4), year) ||
            !detail::read_digits(chars.substr(5, 2), month) ||
            !detail::read_digits(chars.substr(8, 2), day)) {
            return conversion_invalid;
        }
        const auto found = date::make(static_cast<unsigned>(year), static_cast<unsigned>(month),
                                      static_cast<unsigned>(day));
        if (!found) {
            return conversion_invalid;
        }
        value = *found;
        return conversion_success;
    }
};

} // namespace kivo::core::v7
