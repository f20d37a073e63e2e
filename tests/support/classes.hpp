#pragma once

#include <layout/map.hpp>

#include <set>
#include <type_traits>
#include <typeindex>

namespace kivo::tests {

namespace detail {

template <class Visit> class class_walk {
public:
    explicit class_walk(Visit visit) : visit_(visit) {}

    template <class Value> void enter() {
        using content = erp::v12::layout::content_of<Value>;
        if constexpr (erp::v12::layout::is_variant<content>) {
            enter_each(std::type_identity<content>());
        } else if constexpr (erp::v12::layout::group<content>) {
            if (known_.insert(typeid(content)).second) {
                visit_(std::type_identity<content>());
                erp::v12::layout::for_each_field<content>([&](const auto& field, std::size_t) {
                    enter<typename std::remove_cvref_t<decltype(field)>::value_type>();
                });
            }
        }
    }

private:
    template <class... Alternatives>
    void enter_each(std::type_identity<core::v7::variant<Alternatives...>>) {
        (enter<Alternatives>(), ...);
    }

    Visit visit_;
    std::set<std::type_index> known_;
};

} // namespace detail

/// Calls `visit(std::type_identity<Class>())` for a class and for each that stands in it.
template <class Class, class Visit> void for_each_class(Visit visit) {
    detail::class_walk<Visit>(visit).template enter<Class>();
}

} // namespace kivo::tests
