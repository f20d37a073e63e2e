#pragma once

#include <fiscal/types.hpp>

#include <variant>

/// For the sources of classes that hold one of several kinds of value.
namespace kivo::erp::v12::fiscal {

/// Replaces a choice. A value of another kind goes before the new one is copied: when the copy
/// fails, there is none. Assignment would copy aside what moves without failing, and keep the old.
template <class... Kinds>
void replace_choice(variant<Kinds...>& stored, const variant<Kinds...>& value) {
    if (stored.index() == value.index() || value.valueless_by_exception()) {
        stored = value;
    } else {
        std::visit([&]<class Kind>(const Kind& kind) { stored.template emplace<Kind>(kind); },
                   value);
    }
}

/// The same where the choice may be absent.
template <class... Kinds>
void replace_choice(optional<variant<Kinds...>>& stored, const optional<variant<Kinds...>>& value) {
    if (stored && value) {
        replace_choice(*stored, *value);
    } else {
        stored = value;
    }
}

} // namespace kivo::erp::v12::fiscal
