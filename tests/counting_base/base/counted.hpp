#pragma once

#include <base/converter.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

/// Base values of one word that count and log every operation, and throw when they are told to.
namespace kivo::counting {

enum class operation { construct, copy, move, copy_assign, move_assign, destroy, allocate };

/// One operation on the value of a number, or the allocation of a block of so many bytes.
struct event {
    operation what;
    std::uint64_t number;
};

// of one kind in the library and in the tests
#define KIVO_SHARED __attribute__((visibility("default")))

/// What a base value throws.
struct KIVO_SHARED failure {};

inline KIVO_SHARED std::vector<event>* log = nullptr; // null: nothing is logged
inline KIVO_SHARED std::size_t live = 0;              // values that are not destroyed yet
inline KIVO_SHARED std::size_t allowed =
    std::numeric_limits<std::size_t>::max(); // before a failure
inline KIVO_SHARED bool failed = false;      // whether there was one

#undef KIVO_SHARED

/// Whether moves fail as all else does; a program of the tests has base values that never do.
#ifdef KIVO_MOVES_NEVER_THROW
inline constexpr bool moves_may_throw = false;
#else
inline constexpr bool moves_may_throw = true;
#endif

inline void note(operation what, std::uint64_t number) {
    const bool may_throw = what == operation::move || what == operation::move_assign
                               ? moves_may_throw
                               : what != operation::destroy;
    if (may_throw && allowed-- == 0) {
        failed = true;
        throw failure();
    }
    if (log != nullptr) {
        log->push_back({what, number});
    }
}

/// What the default constructor of a type owes.
enum class construction { may_throw, never_throws, none };

template <class Tag, construction by_default> class counted {
public:
    counted() requires(by_default == construction::may_throw) {
        note(operation::construct, 0);
        ++live;
    }
    counted() noexcept requires(by_default == construction::never_throws) { ++live; }
#ifdef KIVO_COMPANION // it has values to read texts into
    counted() requires(by_default == construction::none) : counted(0) {}
#endif
    explicit counted(std::uint64_t number) : number_(number) { ++live; }
    counted(const counted& other) : number_(other.number_) {
        note(operation::copy, number_);
        ++live;
    }
    counted(counted&& other) noexcept(!moves_may_throw) : number_(other.number_) {
        note(operation::move, number_);
        ++live;
    }
    counted& operator=(const counted& other) {
        note(operation::copy_assign, other.number_);
        number_ = other.number_;
        return *this;
    }
    counted& operator=(counted&& other) noexcept(!moves_may_throw) {
        note(operation::move_assign, other.number_);
        number_ = other.number_;
        return *this;
    }
    ~counted() {
        note(operation::destroy, number_);
        --live;
    }

    std::uint64_t number() const { return number_; }

    friend bool operator==(const counted&, const counted&) = default; // for the layout map alone

private:
    std::uint64_t number_ = 0;
};

/// The texts that were read, by the number of their values less one.
inline std::vector<std::string>& texts() {
    static std::vector<std::string> all;
    return all;
}

} // namespace kivo::counting

namespace kivo::core::v7 {

/// A value has the text that it was read from.
template <class Tag, counting::construction by_default>
struct chars_converter<counting::counted<Tag, by_default>> {
    static conversion_result make_chars(char* buffer, std::size_t& length,
                                        counting::counted<Tag, by_default> value) {
        if (value.number() == 0) {
            return conversion_invalid;
        }
        const std::string& text =
            counting::texts().at(static_cast<std::size_t>(value.number() - 1));
        if (length < text.size()) {
            return conversion_buffer_too_small;
        }
        length = text.copy(buffer, text.size());
        return conversion_success;
    }
};

template <class Tag, counting::construction by_default>
struct value_converter<counting::counted<Tag, by_default>> {
    static conversion_result make_value(counting::counted<Tag, by_default>& value, const char* text,
                                        std::size_t length) {
        std::vector<std::string>& all = counting::texts();
        const std::string_view wanted(text, length);
        const auto known = std::find(all.begin(), all.end(), wanted);
        const auto number = static_cast<std::uint64_t>(known - all.begin()) + 1;
        if (known == all.end()) {
            all.emplace_back(wanted);
        }
        value = counting::counted<Tag, by_default>(number);
        return conversion_success;
    }
};

} // namespace kivo::core::v7
