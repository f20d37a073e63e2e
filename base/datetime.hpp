#pragma once

#include <base/converter.hpp>
#include <base/date.hpp>
#include <base/optional.hpp>

namespace kivo::core::v7 {

/// A date and the time of day at it, to the second, with the offset from UTC at which it was
/// told; or no time at all. Two are equal when both the local time and the offset are.
class datetime {
public:
    /// No time: it has no text.
    constexpr datetime() noexcept = default;

    /// An offset from UTC. West is negative: `{true, 3, 0}` is -03:00.
    /// The sign belongs to the text: -00:00 is kept apart from +00:00.
    struct utc_offset {
        bool west = false;    ///< whether the sign is a minus
        unsigned hours = 0;   ///< 0 to 14
        unsigned minutes = 0; ///< 0 to 59

        friend constexpr bool operator==(const utc_offset&, const utc_offset&) noexcept = default;
    };

    /// Absent when there is no such day, time of day (00:00:00 to 23:59:59) or offset (up to
    /// 14:00). To the setter of an optional field that is no value: pass it what `.value()` gives,
    /// which throws instead.
    [[nodiscard]] static constexpr optional<datetime> make(date day, std::int64_t hour,
                                                           std::int64_t minute, std::int64_t second,
                                                           utc_offset offset) noexcept {
        if (day == date() || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 ||
            second > 59 || offset.minutes > 59 || offset.hours > 14 ||
            (offset.hours == 14 && offset.minutes > 0)) {
            return {};
        }
        std::uint64_t word = day.year();
        word = word << 4 | day.month();
        word = word << 5 | day.day();
        word = word << 5 | static_cast<std::uint64_t>(hour);
        word = word << 6 | static_cast<std::uint64_t>(minute);
        word = word << 6 | static_cast<std::uint64_t>(second);
        word = word << 1 | static_cast<unsigned>(offset.west);
        word = word << 4 | offset.hours;
        word = word << 6 | offset.minutes;
        return datetime(word);
    }

    /// Only integers make a time, of a type that fits.
    template <class Hour, class Minute, class Second>
    static optional<datetime>
        make(date, Hour, Minute, Second,
             utc_offset) requires(!detail::integers<Hour, Minute, Second>) = delete;

    /// The local day; no date when there is no time.
    constexpr date day() const noexcept {
        return date::make(bits(37, 14), bits(33, 4), bits(28, 5)).value_or(date());
    }

    /// The parts of the local time, and its offset; 0 when there is no time.
    constexpr unsigned hour() const noexcept { return bits(23, 5); }
    constexpr unsigned minute() const noexcept { return bits(17, 6); }
    constexpr unsigned second() const noexcept { return bits(11, 6); }
    constexpr utc_offset offset() const noexcept {
        return {bits(10, 1) != 0, bits(6, 4), bits(0, 6)};
    }

    friend constexpr bool operator==(datetime, datetime) noexcept = default;

private:
    constexpr explicit datetime(std::uint64_t word) noexcept : word_(word) {}

    constexpr unsigned bits(unsigned first, unsigned count) const noexcept {
        return static_cast<unsigned>(word_ >> first & ((1U << count) - 1));
    }

    std::uint64_t word_ = 0; // from the top: year, month, day, hour, minute, second, offset
};

/// `AAAA-MM-DDThh:mm:ss-03:00`; no time is invalid.
template <> struct chars_converter<datetime> {
    static conversion_result make_chars(char* buffer, std::size_t& length,
                                        datetime value) noexcept {
        if (value == datetime()) {
            return conversion_invalid;
        }
        char chars[] = "AAAA-MM-DDThh:mm:ss+hh:mm";
        std::size_t day_length = 10;
        static_cast<void>(chars_converter<date>::make_chars(chars, day_length, value.day()));
        detail::write_digits(chars + 11, 2, value.hour());
        detail::write_digits(chars + 14, 2, value.minute());
        detail::write_digits(chars + 17, 2, value.second());
        chars[19] = value.offset().west ? '-' : '+';
        detail::write_digits(chars + 20, 2, value.offset().hours);
        detail::write_digits(chars + 23, 2, value.offset().minutes);
        return detail::write_chars({chars, sizeof chars - 1}, buffer, length);
    }
};

/// `AAAA-MM-DDThh:mm:ss-03:00`: whole seconds, and an offset of hours and minutes.
template <> struct value_converter<datetime> {
    static constexpr bool gives_back(std::string_view) noexcept { return true; }

    static conversion_result make_value(datetime& value, const char* text,
                                        std::size_t length) noexcept {
        const std::string_view chars(text, length);
        if (chars.size() != 25 || chars[10] != 'T' || chars[13] != ':' || chars[16] != ':' ||
            (chars[19] != '-' && chars[19] != '+') || chars[22] != ':') {
            return conversion_invalid;
        }
        date day;
        std::uint64_t hour = 0;
        std::uint64_t minute = 0;
        std::uint64_t second = 0;
        std::uint64_t offset_hours = 0;
        std::uint64_t offset_minutes = 0;
        if (value_converter<date>::make_value(day, text, 10) != conversion_success ||
            !detail::read_digits(chars.substr(11, 2), hour) ||
            !detail::read_digits(chars.substr(14, 2), minute) ||
            !detail::read_digits(chars.substr(17, 2), second) ||
            !detail::read_digits(chars.substr(20, 2), offset_hours) ||
            !detail::read_digits(chars.substr(23, 2), offset_minutes)) {
            return conversion_invalid;
        }
        const auto found =
            datetime::make(day, static_cast<unsigned>(hour), static_cast<unsigned>(minute),
                           static_cast<unsigned>(second),
                           {chars[19] == '-', static_cast<unsigned>(offset_hours),
                            static_cast<unsigned>(offset_minutes)});
        if (!found) {
            return conversion_invalid;
        }
        value = *found;
        return conversion_success;
    }
};

} // namespace kivo::core::v7
