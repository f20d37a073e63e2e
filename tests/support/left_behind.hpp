#pragma once

#include "kinds.hpp"
#include "record_order.hpp"
#include "same_fields.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// What a failure may leave of an object, by name.
namespace kivo::tests {

/// The object is as it was.
template <class Class> class left_unchanged {
public:
    explicit left_unchanged(const Class& old) : old_(texts(old)) {}
    template <class Evidence> void operator()(const Class& found, const Evidence&) const {
        EXPECT_TRUE(same_fields(found, old_));
    }

private:
    std::vector<std::string> old_;
};

/// What is wrong with objects after failures. It reaches all that stands in them: where a program
/// has several sources, one of them compiles it (see elsewhere.hpp).
template <class Class> struct faults_of {
    static std::string of_change(const Class& found, const Class& old, const Class& fresh);
};

namespace detail {

template <class Value>
std::string fault_between(const Value& found, const Value& old, const Value& fresh);

/// A value whose change always succeeds.
template <class Value>
inline constexpr bool never_fails = std::is_arithmetic_v<Value> || std::is_enum_v<Value>;
template <class Value>
inline constexpr bool never_fails<core::v7::optional<Value>> = never_fails<Value>;

/// Goes through values in the order in which they become new: new ones, one that may be in between,
/// and old ones.
class order_of_change {
public:
    /// Tells what is wrong with the next value; nothing: it is as it may be.
    template <class Value>
    std::string fault_of(const Value& found, const Value& old, const Value& fresh) {
        const std::string now = text(found);
        const std::string before = text(old);
        if (failed_) {
            return now == before ? "" : "new behind the failure: " + difference(now, before);
        }
        const std::string after = text(fresh);
        failed_ = now != after;
        if (never_fails<Value> && failed_ && !hidden_) {
            return "old ahead of the failure: " + now;
        }
        hidden_ = hidden_ || (!never_fails<Value> && before == after);
        return failed_ && now != before ? fault_between(found, old, fresh) : "";
    }

private:
    bool failed_ = false;
    bool hidden_ = false; // the failure may be in a value that shows none
};

/// What is wrong with a value whose own change failed, and which is neither old nor new: in part,
/// it may be new already.
template <class Value>
std::string fault_between(const Value& found, const Value& old, const Value& fresh) {
    if constexpr (erp::v12::layout::is_optional<Value>) {
        if (found && old && fresh) {
            return fault_between(*found, *old, *fresh);
        }
    } else if constexpr (erp::v12::layout::is_list<Value>) {
        if (found.size() == old.size()) {
            order_of_change order;
            std::string result;
            for (std::size_t index = 0; index < found.size(); ++index) {
                result += order.fault_of(found[index], old[index],
                                         index < fresh.size() ? fresh[index] : old[index]);
            }
            return result;
        }
    } else if constexpr (is_variant<Value>) {
        if (found.valueless_by_exception()) {
            return {};
        }
        if (found.index() == old.index() && found.index() == fresh.index()) {
            return std::visit(
                [&](const auto& held) {
                    using alternative = std::remove_cvref_t<decltype(held)>;
                    return fault_between(held, std::get<alternative>(old),
                                         std::get<alternative>(fresh));
                },
                found);
        }
    } else if constexpr (erp::v12::layout::group<Value> && !lazy<Value>) {
        return faults_of<Value>::of_change(found, old, fresh);
    }
    return "neither old nor new: " + difference(text(found), text(fresh));
}

} // namespace detail

template <class Class>
std::string faults_of<Class>::of_change(const Class& found, const Class& old, const Class& fresh) {
    detail::order_of_change order;
    std::string result;
    for (const std::size_t place : fields_in_record_order<Class>()) {
        for_each_field<Class>([&](const auto& field, std::size_t index) {
            if (index == place) {
                const std::string fault =
                    order.fault_of((found.*field.get)(), (old.*field.get)(), (fresh.*field.get)());
                if (!fault.empty()) {
                    result += '\n' + std::string(field.getter_name) + ": " + fault;
                }
            }
        });
    }
    return result;
}

/// Fields that come first in the record are new, those behind the failure old.
template <class Class> class new_then_old {
public:
    new_then_old(Class old, Class fresh) : old_(std::move(old)), fresh_(std::move(fresh)) {}
    template <class Evidence> void operator()(const Class& found, const Evidence&) const {
        EXPECT_EQ(faults_of<Class>::of_change(found, old_, fresh_), "");
    }

private:
    Class old_;
    Class fresh_;
};

/// Fields that come first in the record are as a move leaves them, those behind the failure old.
template <class Class> new_then_old<Class> emptied_then_old(const Class& old) {
    Class emptied = old;
    [[maybe_unused]] const Class taken = std::move(emptied);
    return new_then_old<Class>(old, emptied); // NOLINT(bugprone-use-after-move)
}

/// What the kind of a class promises of a failed assignment's target.
template <class Class>
using left_by_assignment =
    std::conditional_t<lazy<Class>, left_unchanged<Class>, new_then_old<Class>>;

/// Makes what the promise needs to know.
template <class Class>
left_by_assignment<Class> after_assignment(const Class& old, const Class& fresh) {
    if constexpr (lazy<Class>) {
        return left_unchanged<Class>(old);
    } else {
        return new_then_old<Class>(old, fresh);
    }
}

/// A promise about the first of two objects.
template <class Promise> auto of_first(const Promise& promise) {
    return
        [promise](const auto& objects, const auto& evidence) { promise(objects.first, evidence); };
}

} // namespace kivo::tests
