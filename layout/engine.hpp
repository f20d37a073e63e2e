#pragma once

#include <layout/map.hpp>
#include <layout/node.hpp>
#include <layout/text.hpp>

#include <fiscal/types.hpp>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

/// The engine of the layout map, in both directions: `read_fields` fills an object from the
/// children of an element, `write_fields` makes these children from the object. Reading marks each
/// element that a field asks for, so that what none asks for can be told afterwards (`sum_up`).
namespace kivo::erp::v12::layout {

/// A value inside an optional stands in the layout at its default too.
constexpr form when_present(form how) {
    how.optional = false;
    how.empty = true;
    return how;
}

/// What an entry found, in the order in which the better of several counts.
enum class found { nothing, refused_text, value };

template <class Class>
found read_fields(node& parent, Class& object, std::string_view without = {});

template <class Value> found read_text_of(node& element, const form& how, Value& value) {
    if (!read_text(value, element.text, how)) {
        element.reading = node::state::refused;
        element.instead = expected_text<Value>(how);
        return found::refused_text;
    }
    const auto own_text = text_of(value, how);
    element.reading = own_text == element.text ? node::state::read : node::state::changed;
    element.instead = own_text.value_or("");
    return found::value;
}

/// The attribute that numbers the elements of a list holds nothing but what their order tells.
inline void read_position(node& element, const char* attribute, std::size_t position) {
    node* const number = element.next_unread(attribute);
    if (number != nullptr) {
        const bool in_order = number->text == std::to_string(position);
        number->reading = in_order ? node::state::read : node::state::refused;
        number->instead = in_order ? "" : "the element's place in the list";
    }
}

template <class Value>
found read_value(node& parent, std::string_view name, const form& how, Value& value) {
    if constexpr (is_optional<Value>) {
        typename Value::value_type content{};
        const found result = read_value(parent, name, when_present(how), content);
        if (result == found::value) {
            value = std::move(content);
        }
        return result;
    } else if constexpr (is_list<Value>) {
        for (;;) {
            typename Value::value_type item{};
            if (read_value(parent, name, how, item) == found::nothing) {
                return value.empty() ? found::nothing : found::value;
            }
            value.push_back(std::move(item));
        }
    } else if constexpr (group<Value>) {
        // elements of one name may belong to different fields: the content tells
        std::size_t position = 0;
        for (node& child : parent.children) {
            position += child.name == name ? 1 : 0;
            if (child.reading == node::state::unread && child.name == name &&
                (read_fields(child, value) != found::nothing || child.children.empty())) {
                child.reading = node::state::entered;
                if (how.position != nullptr) {
                    read_position(child, how.position, position);
                }
                return found::value;
            }
        }
        return found::nothing;
    } else {
        node* const child = parent.next_unread(name);
        return child == nullptr ? found::nothing : read_text_of(*child, how, value);
    }
}

template <class Value> found read_embedded(node& parent, std::string_view without, Value& value) {
    if constexpr (is_optional<Value>) {
        typename Value::value_type content{};
        const found result = read_fields(parent, content, without);
        if (result == found::value) {
            value = std::move(content);
        }
        return result;
    } else {
        return read_fields(parent, value, without);
    }
}

template <class Value> found read_place(node& parent, const char* name, Value& value) {
    return read_value(parent, name, form{}, value);
}

template <class Value> found read_place(node& parent, here_place, Value& value) {
    return read_fields(parent, value);
}

template <class Value> found read_place(node&, nowhere_place, Value&) { return found::nothing; }

/// Reads what `read_content` finds in the child of this name, and leaves alone a child in which it
/// finds nothing.
template <class Read> found read_child(node& parent, const char* name, Read read_content) {
    node* const child = parent.next_unread(name);
    if (child == nullptr) {
        return found::nothing;
    }
    const found result = read_content(*child);
    if (result != found::nothing) {
        child->reading = node::state::entered;
    }
    return result;
}

/// Reads the alternative that is there. Later ones are tried first: `here` behind a plain text
/// tells by a constant whether the text is its own.
template <class Variant, class... Places>
found read_choice(node& parent, const std::tuple<Places...>& places, Variant& value) {
    if constexpr (is_optional<Variant>) {
        typename Variant::value_type content = {};
        const found result = read_choice(parent, places, content);
        if (result == found::value) {
            value = std::move(content);
        }
        return result;
    } else {
        constexpr std::size_t last = sizeof...(Places) - 1;
        found result = found::nothing;
        const auto read_alternative = [&]<std::size_t index>() {
            std::variant_alternative_t<index, Variant> alternative{};
            result = read_place(parent, std::get<index>(places), alternative);
            if (result == found::value) {
                value.template emplace<index>(std::move(alternative));
            }
            return result != found::nothing;
        };
        [&]<std::size_t... step>(std::index_sequence<step...>) {
            (read_alternative.template operator()<last - step>() || ...);
        }
        (std::index_sequence_for<Places...>());
        return result;
    }
}

template <class Value, class... Places>
found read_place(node& parent, const inside<Places...>& place, Value& value) {
    return read_child(parent, place.name,
                      [&](node& child) { return read_choice(child, place.places, value); });
}

/// Sets a field to what `read_into` finds for it; a field that finds nothing is left alone.
template <class Class, class Entry, class Read>
found read_and_set(Class& object, const Entry& entry, Read read_into) {
    value_of<decltype(entry.get), Class> value{};
    const found result = read_into(value);
    if (result == found::value) {
        (object.*entry.set)(value);
    }
    return result;
}

template <class Class, class Get, class Set>
found read_entry(node& parent, Class& object, const field<Get, Set>& entry) {
    return read_and_set(object, entry, [&](auto& value) {
        return read_value(parent, entry.name, entry.how, value);
    });
}

template <class Class, class Get, class Set>
found read_entry(node& parent, Class& object, const embedded<Get, Set>& entry) {
    return read_and_set(object, entry,
                        [&](auto& value) { return read_embedded(parent, entry.without, value); });
}

template <class Class, class Get, class Set, class... Places>
found read_entry(node& parent, Class& object, const one_of<Get, Set, Places...>& entry) {
    return read_and_set(object, entry,
                        [&](auto& value) { return read_choice(parent, entry.places, value); });
}

template <class Class, class Get, class Set>
found read_entry(node&, Class&, const no_element<Get, Set>&) {
    return found::nothing;
}

template <class Class> found read_entry(node&, Class&, const outside&) { return found::nothing; }

template <class Class> found read_entry(node& parent, Class&, const constant& entry) {
    node* const child = parent.next_unread(entry.name);
    if (child == nullptr || child->text != entry.text) {
        return found::nothing;
    }
    child->reading = node::state::read;
    return found::value;
}

template <class Class, class... Entries>
found read_entry(node& parent, Class& object, const element<Entries...>& entry) {
    return read_child(parent, entry.name, [&](node& child) {
        return std::apply(
            [&](const auto&... inner) { return std::max({read_entry(child, object, inner)...}); },
            entry.entries);
    });
}

template <class Class, class Entry>
found read_entry(node& parent, Class& object, const again<Entry>& entry) {
    return read_entry(parent, object, entry.entry);
}

template <class Class, class Condition, class Entry>
found read_entry(node& parent, Class& object, const only_if<Condition, Entry>& entry) {
    return read_entry(parent, object, entry.entry);
}

/// The element name of an entry that has one.
template <class Entry> constexpr std::string_view name_of(const Entry& entry) {
    if constexpr (requires { entry.name; }) {
        return entry.name;
    } else {
        return {};
    }
}

template <class Class> found read_fields(node& parent, Class& object, std::string_view without) {
    return std::apply(
        [&](const auto&... entry) {
            return std::max({!without.empty() && name_of(entry) == without
                                 ? found::nothing
                                 : read_entry(parent, object, entry)...});
        },
        fields<Class>);
}

template <class Class>
void write_fields(node& parent, const Class& object, std::string_view without = {});

template <class Value>
void write_value(node& parent, const char* name, const form& how, const Value& value) {
    if constexpr (is_optional<Value>) {
        if (value) {
            write_value(parent, name, when_present(how), *value);
        }
    } else if constexpr (is_list<Value>) {
        for (const auto& item : value) {
            write_value(parent, name, when_present(how), item);
            if (how.position != nullptr) {
                auto& attributes = parent.children.back().children;
                attributes.emplace(attributes.begin(), how.position,
                                   std::to_string(&item - value.data() + 1));
            }
        }
    } else if constexpr (group<Value>) {
        node child(name);
        write_fields(child, value);
        // an optional or a list says that the group is there, even where it holds nothing
        if (!child.children.empty() || how.empty) {
            parent.children.push_back(std::move(child));
        }
    } else if (auto text = text_of(value, how)) {
        parent.children.emplace_back(name, std::move(*text));
    }
}

template <class Value>
void write_embedded(node& parent, std::string_view without, const Value& value) {
    if constexpr (is_optional<Value>) {
        if (value) {
            write_fields(parent, *value, without);
        }
    } else {
        write_fields(parent, value, without);
    }
}

template <class Value> void write_place(node& parent, const char* name, const Value& value) {
    write_value(parent, name, when_present({}), value);
}

template <class Value> void write_place(node& parent, here_place, const Value& value) {
    write_fields(parent, value);
}

template <class Value> void write_place(node&, nowhere_place, const Value&) {}

template <class Variant, class... Places>
void write_choice(node& parent, const std::tuple<Places...>& places, const Variant& value) {
    if constexpr (is_optional<Variant>) {
        if (value) {
            write_choice(parent, places, *value);
        }
    } else {
        const auto write_alternative = [&]<std::size_t index>() {
            if (value.index() == index) {
                write_place(parent, std::get<index>(places), std::get<index>(value));
            }
        };
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (write_alternative.template operator()<index>(), ...);
        }
        (std::index_sequence_for<Places...>());
    }
}

/// Adds a child of this name with what `write_content` writes, if that is anything.
template <class Write> void write_child(node& parent, const char* name, Write write_content) {
    node child(name);
    write_content(child);
    if (!child.children.empty()) {
        parent.children.push_back(std::move(child));
    }
}

template <class Value, class... Places>
void write_place(node& parent, const inside<Places...>& place, const Value& value) {
    write_child(parent, place.name, [&](node& child) { write_choice(child, place.places, value); });
}

template <class Class, class Get, class Set>
void write_entry(node& parent, const Class& object, const field<Get, Set>& entry) {
    write_value(parent, entry.name, entry.how, (object.*entry.get)());
}

template <class Class, class Get, class Set>
void write_entry(node& parent, const Class& object, const embedded<Get, Set>& entry) {
    write_embedded(parent, entry.without, (object.*entry.get)());
}

template <class Class, class Get, class Set, class... Places>
void write_entry(node& parent, const Class& object, const one_of<Get, Set, Places...>& entry) {
    write_choice(parent, entry.places, (object.*entry.get)());
}

template <class Class, class Get, class Set>
void write_entry(node&, const Class&, const no_element<Get, Set>&) {}

template <class Class> void write_entry(node& parent, const Class&, const outside& entry) {
    parent.children.emplace_back(entry.name);
}

template <class Class> void write_entry(node& parent, const Class&, const constant& entry) {
    parent.children.emplace_back(entry.name, entry.text);
}

template <class Class, class... Entries>
void write_entry(node& parent, const Class& object, const element<Entries...>& entry) {
    write_child(parent, entry.name, [&](node& child) {
        std::apply([&](const auto&... inner) { (write_entry(child, object, inner), ...); },
                   entry.entries);
    });
}

template <class Class, class Entry>
void write_entry(node& parent, const Class& object, const again<Entry>& entry) {
    write_entry(parent, object, entry.entry);
}

template <class Class, class Condition, class Entry>
void write_entry(node& parent, const Class& object, const only_if<Condition, Entry>& entry) {
    if (entry.condition(object)) {
        write_entry(parent, object, entry.entry);
    }
}

template <class Class>
void write_fields(node& parent, const Class& object, std::string_view without) {
    std::apply(
        [&](const auto&... entry) {
            ((!without.empty() && name_of(entry) == without ? void()
                                                            : write_entry(parent, object, entry)),
             ...);
        },
        fields<Class>);
}

} // namespace kivo::erp::v12::layout
