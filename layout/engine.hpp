#pragma once

#include <layout/map.hpp>
#include <layout/outside_texts.hpp>
#include <layout/report.hpp>
#include <layout/text.hpp>
#include <layout/tree.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

/// The engine of the layout map, in both directions. The compiler makes a table of each map: the
/// names that can stand in an element, and for each entry a function that reads it and one that
/// writes it, which stand next to each other here. What leads from entry to entry is the same for
/// all tables, and compiled once.
namespace kivo::erp::v12::layout {

class element_rule;
class reader;
class writer;
struct table;

/// What an entry took of the elements in a group.
struct taken {
    bool stored = false; ///< the object holds something of them
    bool all = false;    ///< the entry has seen to all of its elements, those behind as well
};

/// An entry of a map.
struct table_entry {
    /// Reads the first of the entry's elements in a parent, or all of them.
    taken (*read)(reader&, const node& parent, const node& first, void* object);
    void (*write)(writer&, const void* object);
    bool (*stands)(const void* object); ///< whether it is written; null: always
    std::size_t field; ///< the first of the entries that leave no room for each other, by index
};

/// A name that can stand in an element, and the entry that knows it.
struct table_name {
    element_name name;
    const table* inner = nullptr; ///< what is known in it; null: it is a text
    bool of_object = false;       ///< it is there where an object of its own is
    std::size_t entry = 0;
};

/// A map, or the entries of an element in it, as data.
struct table {
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::span<const table_name> names; ///< in the layout's order
    std::span<const table_entry> entries;
    /// The entries that cannot tell absence, as bits: they may be written though nothing was read.
    std::uint64_t plain;
    std::uint64_t conditional; ///< those that have a condition, as bits

    /// Where a name stands, looked for from where it is expected; `none` where it does not.
    std::size_t find(const element_name& name, std::size_t expected = 0) const {
        return expected < names.size() && names[expected].name == name ? expected
                                                                       : search(name, expected);
    }
    /// Whether anything in an element has a name that stands here.
    bool knows_content_of(const node& element) const;

private:
    std::size_t search(const element_name& name, std::size_t expected) const;
};

/// Which entries of a table have read something, as bits.
struct frame {
    std::uint64_t stored = 0;  ///< the object holds something of the entry
    std::uint64_t seen_to = 0; ///< all elements of the entry were read or reported
    std::uint64_t taken = 0;   ///< the field of the entry has no room for more
    std::uint64_t empty = 0;   ///< an element of the entry was there, and nothing was stored
};

/// Reads objects from a document, and reports.
class reader {
public:
    /// What stands outside the objects is left empty where the document does not have it. `kept`
    /// takes what no field takes and the layout has, if the layout's rule of the root is given.
    reader(const node& root, const table& known, const element_rule* rule, outside_texts& outside,
           std::vector<placed_text>& kept, report& told);

    outside_texts& outside() const { return *outside_; }

    /// Reads the root.
    void read(void* object);
    /// Reads all elements in a group, and then what `finish` tells.
    void read_whole(const table& known, const node& parent, void* object,
                    std::string_view numbering = {});
    /// Reads an item of a list, whose number stands in an attribute if that has a name.
    void read_item(const table& known, const node& element, void* object,
                   std::string_view numbering, std::size_t number);
    /// Reads a group in an element of its own. Answers whether the object holds something of it:
    /// an optional that is there does, unless all that is in it was refused.
    bool read_group(const table& known, const node& element, void* object, bool always);
    /// Reads those elements of a group that a table knows, from one on. Answers whether the object
    /// holds something of them.
    bool read_embedded(const table& known, const node& parent, const node& first, void* object);

    /// Reads the text of an element. Answers whether the value holds it.
    template <single_value Value>
    [[gnu::noinline]] bool read_single(const node& element, const form& how, Value& value) {
        if (!read_text(value, element.text, how)) {
            tell_refused(element, expected_text<Value>(element.text, how));
            return false;
        }
        if (gives_back<Value>(element.text, how) && !how.omit_default) {
            tell_held(element);
            return true;
        }
        value_chars own;
        if (!put_text(own, value, how)) {
            tell_no_room(element);
            return false;
        }
        tell_held(element, own.text());
        return true;
    }
    /// Reads a text as it is, behind others that are always the same; null where it is refused. It
    /// is there until the next one is read.
    const core::v7::optional<std::string>* read_string(const node& element, bool empty_too,
                                                       std::string_view prefix = {});

    void tell_held(const node& element) {
        ++told_->texts_in_fields;
        if (element.size != 1) {
            tell_inner(element);
        }
    }
    void tell_held(const node& element, std::string_view own) {
        // a call costs more than to compare the few characters here
        if (!std::equal(own.begin(), own.end(), element.text.begin(), element.text.end())) {
            tell_otherwise(element, own);
        }
        tell_held(element);
    }
    void tell_otherwise(const node& element, std::string_view own);
    void tell_refused(const node& element, std::string expected);
    void tell_moved(const node& element, std::string to);
    /// Tells that an element of several of its name is written as another one of them. It is told
    /// before the element is read.
    void tell_renumbered(const node& element, std::size_t number);
    void tell_no_field(const node& element);
    /// Tells that a group has a text of its own.
    void tell_text_in_group(const node& group);
    /// Whether the layout knows something of what is in an element.
    bool rides_along(const node& element) const;
    void tell_no_room(const node& element);

private:
    frame read_elements(const table& known, const node& parent, void* object,
                        std::string_view numbering);
    void take(const table& known, std::size_t name, const node& parent, const node& child,
              void* object, frame& read);
    void finish(const table& known, const frame& read, const node& parent, const void* object);
    void tell_inner(const node& element);
    /// Takes back what was told to be written in an element that is not.
    void take_back(const node& element);
    /// Tells of a group with nothing in it that no entry stored, and that is not written, and of
    /// those in it.
    void tell_lost(const table_name& name, const node& element, const node* written_parent);
    /// The same of elements before the first of their name that an entry stored.
    void tell_lost_before(const table_name& name, const node& parent, const node& stored);
    /// Tells what is written behind something that it stands before. What is not written at all
    /// moves nothing, and is known when all is read.
    void tell_order();
    /// The layout's rule of an element; null where it has none.
    const element_rule* rule_of(const node& element) const;
    /// What is known in an element, by any of those that read its parent; null where nothing is.
    const table* table_of(const node& element) const;
    bool has_field(const node& element) const;
    /// Tells of an element that no entry reads: one has no field, or its field is of another kind
    /// of element.
    void tell_unread(const node& element);
    /// The path of an element in the document that is written.
    std::string written_path(const node& element);
    void keep(const node& element, const element_rule& rule, const std::string& path);
    void tell_added(const node& parent, std::string_view path, std::string_view text);

    path_teller path_;
    const node* root_;
    const table* known_;       // in the root
    const element_rule* rule_; // of the root
    std::unordered_map<const node*, std::uint32_t> renumbered_;
    std::set<const node*> mixed_; // groups whose elements may have to move
    outside_texts* outside_;
    std::vector<placed_text>* kept_;
    report* told_;
    core::v7::optional<std::string> string_; // its memory serves all texts
};

/// Writes objects into a document.
class writer {
public:
    writer(tree& out, const outside_texts& outside) : out_(&out), outside_(&outside) {}

    tree& out() const { return *out_; }
    const outside_texts& outside() const { return *outside_; }

    /// Writes all entries of a table.
    void write_whole(const table& known, const void* object);
    void write_item(const table& known, const element_name& name, const void* object,
                    std::string_view numbering, std::size_t number);
    /// Writes a group in an element of its own, which stands where something is in it, or always.
    void write_group(const table& known, const element_name& name, const void* object, bool always);

    template <single_value Value>
    [[gnu::noinline]] void write_single(const element_name& name, const form& how,
                                        const Value& value, std::string_view prefix = {}) {
        value_chars chars;
        if (put_text(chars, value, how)) {
            add(name, prefix, chars.text());
        }
    }

private:
    void add(const element_name& name, std::string_view prefix, std::string_view text);

    tree* out_;
    const outside_texts* outside_;
};

/// The table of some entries of a class.
template <class Class, class Entries> struct tables;

/// A table of names that `Names::names` visits, without entries.
template <class Names> struct name_tables;

/// The table of a map.
template <class Map> constexpr const table& table_of() {
    static_assert(
        requires { Map::fields; }, "a class without a map");
    return tables<typename Map::c, std::remove_const_t<decltype(Map::fields)>>::whole;
}

/// A name in the types of the map, as it stands in a document.
template <characters Name> inline constexpr element_name name_of{Name.view()};

/// A name that holds a value, or values, of a type.
template <characters Name, class Value> constexpr table_name name_in_table() {
    if constexpr (group<content_of<Value>>) {
        return {name_of<Name>, &table_of<map_of<content_of<Value>>>(), true};
    } else {
        return {name_of<Name>};
    }
}

/// What a field holds, in an element of its own, or in several of one name where it is a list.
template <class Value> struct held {
    static taken read(reader& in, const node&, const node& first, Value& value, const form& how,
                      std::string_view = {}) {
        if constexpr (group<Value>) {
            return {in.read_group(table_of<map_of<Value>>(), first, &value, false)};
        } else {
            return {in.read_single(first, how, value)};
        }
    }

    static void write(writer& out, const element_name& name, const Value& value, const form& how,
                      std::string_view = {}) {
        if constexpr (group<Value>) {
            out.write_group(table_of<map_of<Value>>(), name, &value, false);
        } else {
            out.write_single(name, how, value);
        }
    }
};

template <class Item> struct held<std::vector<Item>> {
    static taken read(reader& in, const node& parent, const node& first, std::vector<Item>& items,
                      const form&, std::string_view numbering = {}) {
        std::size_t count = 0;
        for (const node& child : children(parent)) {
            count += child.name == first.name ? 1 : 0;
        }
        items.reserve(count);
        for (const node& child : children(parent)) {
            if (child.name == first.name) {
                Item& item = items.emplace_back();
                in.read_item(table_of<map_of<Item>>(), child, &item, numbering, items.size());
            }
        }
        return {true, true};
    }

    static void write(writer& out, const element_name& name, const std::vector<Item>& items,
                      const form&, std::string_view numbering = {}) {
        std::size_t number = 0;
        for (const Item& item : items) {
            out.write_item(table_of<map_of<Item>>(), name, &item, numbering, ++number);
        }
    }
};

/// What is in an optional, or an alternative of a choice: it stands at its default, too.
template <class Value> struct held_if_present : held<Value> {
    static constexpr form present(form how) {
        how.omit_default = false;
        how.even_empty = how.even_empty || std::same_as<Value, std::string>;
        return how;
    }

    static taken read(reader& in, const node& parent, const node& first, Value& value,
                      const form& how, std::string_view numbering = {}) {
        if constexpr (group<Value>) {
            return {in.read_group(table_of<map_of<Value>>(), first, &value, true)};
        } else {
            return held<Value>::read(in, parent, first, value, present(how), numbering);
        }
    }

    static void write(writer& out, const element_name& name, const Value& value, const form& how,
                      std::string_view numbering = {}) {
        if constexpr (group<Value>) {
            out.write_group(table_of<map_of<Value>>(), name, &value, true);
        } else {
            held<Value>::write(out, name, value, present(how), numbering);
        }
    }
};

template <class Value> struct held<core::v7::optional<Value>> {
    static taken read(reader& in, const node& parent, const node& first,
                      core::v7::optional<Value>& value, const form& how,
                      std::string_view numbering = {}) {
        return held_if_present<Value>::read(in, parent, first, value.emplace(), how, numbering);
    }

    static void write(writer& out, const element_name& name, const core::v7::optional<Value>& value,
                      const form& how, std::string_view numbering = {}) {
        if (value) {
            held_if_present<Value>::write(out, name, *value, how, numbering);
        }
    }
};

/// Where an alternative of a choice stands. `names` are those that it can have in the element that
/// holds the choice; `read` answers whether the element is its own.
template <class Place, class Alternative> struct alternative;

/// A choice: the places of its alternatives, in index order.
template <class Places, class Variant> struct choice;
template <class... Place, class... Alternative>
struct choice<entries<Place...>, core::v7::variant<Alternative...>> {
    using variant = core::v7::variant<Alternative...>;
    static constexpr std::size_t count = sizeof...(Place);
    static_assert(count == sizeof...(Alternative), "a place for each alternative, in index order");

    template <class Visit> static constexpr void names(Visit visit) {
        (alternative<Place, Alternative>::names(visit), ...);
    }

    static bool knows(const element_name& name) {
        bool known = false;
        names([&](const table_name& own) { known = known || own.name == name; });
        return known;
    }

    /// `make.operator()<index...>()` makes the alternative and answers it.
    template <class Make>
    static taken read(reader& in, const node& parent, const node& first, Make make) {
        taken result;
        const auto read_one = [&]<std::size_t index>() {
            using type = std::variant_alternative_t<index, variant>;
            using place = alternative<std::tuple_element_t<index, std::tuple<Place...>>, type>;
            if (!place::is_own(parent, first)) {
                return false;
            }
            result = place::read(
                in, parent, first, [&]<std::size_t... inner>()->auto& {
                    return make.template operator()<index, inner...>();
                });
            if constexpr (is_list<type>) {
                for (const node& child : children(parent, first)) {
                    if (child.name != first.name && knows(child.name)) {
                        in.tell_no_room(child);
                    }
                }
            }
            return true;
        };
        // later ones first: a mark tells whether a text is that of the alternative before it
        const bool any = [&]<std::size_t... step>(std::index_sequence<step...>) {
            return (read_one.template operator()<count - 1 - step>() || ...);
        }
        (std::make_index_sequence<count>());
        if (!any) {
            in.tell_no_room(first);
        }
        return result;
    }

    static void write(writer& out, const variant& value) {
        const auto write_one = [&]<std::size_t index>() {
            if (value.index() == index) {
                alternative<std::tuple_element_t<index, std::tuple<Place...>>,
                            std::variant_alternative_t<index, variant>>::write(out,
                                                                               std::get<index>(
                                                                                   value));
            }
        };
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (write_one.template operator()<index>(), ...);
        }
        (std::make_index_sequence<count>());
    }
};

template <characters Name, class Alternative> struct alternative<word::as<Name>, Alternative> {
    template <class Visit> static constexpr void names(Visit visit) {
        visit(name_in_table<Name, Alternative>());
    }
    static bool is_own(const node&, const node& first) { return first.name == name_of<Name>; }

    template <class Make>
    static taken read(reader& in, const node& parent, const node& first, Make make) {
        return held_if_present<Alternative>::read(in, parent, first, make.template operator()<>(),
                                                  {});
    }

    static void write(writer& out, const Alternative& value) {
        held_if_present<Alternative>::write(out, name_of<Name>, value, {});
    }
};

template <class Alternative> struct alternative<word::nowhere, Alternative> {
    template <class Visit> static constexpr void names(Visit) {}
    static bool is_own(const node&, const node&) { return false; }
    template <class Make> static taken read(reader&, const node&, const node&, Make) { return {}; }
    static void write(writer&, const Alternative&) {}
};

template <characters Name, class... Place, class Alternative>
struct alternative<word::inside<Name, Place...>, Alternative> {
    using inner = choice<entries<Place...>, Alternative>;

    template <class Visit> static constexpr void names(Visit visit) {
        visit(table_name{name_of<Name>, &name_tables<inner>::whole});
    }
    static bool is_own(const node&, const node& first) { return first.name == name_of<Name>; }

    template <class Make> static taken read(reader& in, const node&, const node& outer, Make make) {
        taken result;
        in.tell_text_in_group(outer);
        for (const node& child : children(outer)) {
            if (!inner::knows(child.name)) {
                in.tell_no_field(child);
            } else if (result.stored) {
                in.tell_no_room(child);
            } else {
                result = inner::read(in, outer, child, make);
            }
        }
        return {result.stored};
    }

    static void write(writer& out, const Alternative& value) {
        out.out().open(name_of<Name>);
        inner::write(out, value);
        out.out().close_unless_empty();
    }
};

template <characters Name, characters Text, class Alternative>
struct alternative<word::marked_by<Name, Text>, Alternative> {
    template <class Visit> static constexpr void names(Visit visit) {
        visit(table_name{name_of<Name>});
        for (const table_name& known : table_of<map_of<Alternative>>().names) {
            visit(known);
        }
    }

    static bool is_own(const node& parent, const node&) {
        const node* const mark = child_named(parent, name_of<Name>);
        return mark != nullptr && mark->text == Text.view();
    }

    template <class Make>
    static taken read(reader& in, const node& parent, const node& first, Make make) {
        const node& mark = *child_named(parent, name_of<Name>);
        in.tell_held(mark);
        for (const node& child : children(parent, mark)) {
            if (child.name == name_of<Name>) {
                in.tell_no_room(child);
            }
        }
        in.read_embedded(table_of<map_of<Alternative>>(), parent, first,
                         &make.template operator()<>());
        return {true, true};
    }

    static void write(writer& out, const Alternative& value) {
        out.out().add(name_of<Name>, Text.view());
        out.write_whole(table_of<map_of<Alternative>>(), &value);
    }
};

/// The alternative of a choice, or that of a choice in it.
template <std::size_t index, std::size_t... inner, class Variant>
auto& alternative_in(Variant& value) {
    if constexpr (sizeof...(inner) == 0) {
        return std::get<index>(value);
    } else {
        return alternative_in<inner...>(std::get<index>(value));
    }
}

/// A word whose element has its name.
template <characters Name, class Value = std::string> struct named_word {
    template <class Visit> static constexpr void names(Visit visit) {
        visit(name_in_table<Name, Value>());
    }
};

/// What a word does in the map of a class: it knows the names of its elements, reads and writes.
template <class Class, class Entry> struct action;

/// Whether a field cannot tell absence.
template <class Value> inline constexpr bool is_plain = !is_optional<Value> && !is_list<Value>;

/// The value itself, or the one that an optional is given.
template <class Value> auto& content_in(Value& value) {
    if constexpr (is_optional<Value>) {
        return value.emplace();
    } else {
        return value;
    }
}

/// The value itself, or the one in an optional; null when there is none.
template <class Value> const auto* content_in(const Value* value) {
    if constexpr (is_optional<Value>) {
        return *value ? &**value : nullptr;
    } else {
        return value;
    }
}

template <class Class, characters Name, auto Get, auto Set, form How>
struct action<Class, word::field<Name, Get, Set, How>>
    : named_word<Name, typename accessor<Get, Set>::value_type> {
    using value_type = typename accessor<Get, Set>::value_type;
    static constexpr bool plain = is_plain<value_type>;
    static_assert(group<content_of<value_type>> || single_value<content_of<value_type>>,
                  "neither a class with a map nor a single value");

    static taken read(reader& in, const node& parent, const node& first, void* object) {
        auto& target = *static_cast<Class*>(object);
        if constexpr (std::same_as<value_type, std::string>) {
            const auto* const text = in.read_string(first, How.even_empty);
            if (text != nullptr) {
                (target.*Set)(**text);
            }
            return {text != nullptr};
        } else if constexpr (std::same_as<value_type, core::v7::optional<std::string>>) {
            const auto* const text = in.read_string(first, true);
            if (text != nullptr) {
                (target.*Set)(*text);
            }
            return {text != nullptr};
        } else {
            value_type value{};
            const taken result = held<value_type>::read(in, parent, first, value, How);
            if (result.stored) {
                (target.*Set)(value);
            }
            return result;
        }
    }

    static void write(writer& out, const void* object) {
        held<value_type>::write(out, name_of<Name>, (static_cast<const Class*>(object)->*Get)(),
                                How);
    }
};

template <class Class, characters Name, auto Get, auto Set, characters Prefix>
struct action<Class, word::behind<Name, Get, Set, Prefix>> : named_word<Name> {
    static constexpr bool plain = true;

    static taken read(reader& in, const node&, const node& first, void* object) {
        const auto* const text = in.read_string(first, false, Prefix.view());
        if (text != nullptr) {
            (static_cast<Class*>(object)->*Set)(**text);
        }
        return {text != nullptr};
    }

    static void write(writer& out, const void* object) {
        out.write_single(name_of<Name>, {}, (static_cast<const Class*>(object)->*Get)(),
                         Prefix.view());
    }
};

template <class Class, characters Name, auto Get, auto Set, characters Attribute>
struct action<Class, word::numbered<Name, Get, Set, Attribute>>
    : named_word<Name, typename accessor<Get, Set>::value_type> {
    using value_type = typename accessor<Get, Set>::value_type;
    static constexpr bool plain = false;

    static taken read(reader& in, const node& parent, const node& first, void* object) {
        value_type value;
        const taken result = held<value_type>::read(in, parent, first, value, {}, Attribute.view());
        (static_cast<Class*>(object)->*Set)(value);
        return result;
    }

    static void write(writer& out, const void* object) {
        held<value_type>::write(out, name_of<Name>, (static_cast<const Class*>(object)->*Get)(), {},
                                Attribute.view());
    }
};

template <class Class, auto Get, auto Set, class Part>
struct action<Class, word::embedded<Get, Set, Part>> {
    using value_type = typename accessor<Get, Set>::value_type;
    static constexpr bool plain = is_plain<value_type>;

    template <class Visit> static constexpr void names(Visit visit) {
        for (const table_name& known : table_of<Part>().names) {
            visit(known);
        }
    }

    static taken read(reader& in, const node& parent, const node& first, void* object) {
        value_type value{};
        const bool stored = in.read_embedded(table_of<Part>(), parent, first, &content_in(value));
        if (stored) {
            (static_cast<Class*>(object)->*Set)(value);
        }
        return {stored, true};
    }

    static void write(writer& out, const void* object) {
        const value_type value = (static_cast<const Class*>(object)->*Get)();
        if (const auto* const content = content_in(&value)) {
            out.write_whole(table_of<Part>(), content);
        }
    }
};

template <class Class, bool EvenEmpty, characters Name, class... Entry>
struct action<Class, word::element<EvenEmpty, Name, Entry...>> {
    static constexpr bool plain = true;

    template <class Visit> static constexpr void names(Visit visit) {
        visit(table_name{name_of<Name>, &tables<Class, entries<Entry...>>::whole});
    }

    static taken read(reader& in, const node&, const node& first, void* object) {
        return {in.read_group(tables<Class, entries<Entry...>>::whole, first, object, EvenEmpty)};
    }

    static void write(writer& out, const void* object) {
        out.write_group(tables<Class, entries<Entry...>>::whole, name_of<Name>, object, EvenEmpty);
    }
};

template <class Class, auto Get, auto Set, class... Place>
struct action<Class, word::one_of<Get, Set, Place...>> {
    using value_type = typename accessor<Get, Set>::value_type;
    using alternatives = choice<entries<Place...>, content_of<value_type>>;
    static constexpr bool plain = is_plain<value_type>;

    template <class Visit> static constexpr void names(Visit visit) { alternatives::names(visit); }

    static taken read(reader& in, const node& parent, const node& first, void* object) {
        core::v7::optional<content_of<value_type>> value;
        const auto make = [&]<std::size_t index, std::size_t... inner>()->auto& {
            value.emplace(std::in_place_index<index>, std::in_place_index<inner>...);
            return alternative_in<index, inner...>(*value);
        };
        const taken result = alternatives::read(in, parent, first, make);
        if (result.stored) {
            if constexpr (is_optional<value_type>) {
                (static_cast<Class*>(object)->*Set)(value);
            } else {
                (static_cast<Class*>(object)->*Set)(*value);
            }
        }
        return result;
    }

    static void write(writer& out, const void* object) {
        const value_type value = (static_cast<const Class*>(object)->*Get)();
        if (const auto* const content = content_in(&value)) {
            alternatives::write(out, *content);
        }
    }
};

template <class Class, characters Name, class... List>
struct action<Class, word::sorted_by_content<Name, List...>> {
    static constexpr bool plain = false;
    template <class Each> using item_of = content_of<typename Each::value_type>;

    /// What is known in an element of any of the lists.
    struct items {
        template <class Visit> static constexpr void names(Visit visit) {
            const auto visit_all = [&](const table& known) {
                for (const table_name& name : known.names) {
                    visit(name);
                }
            };
            (visit_all(table_of<map_of<item_of<List>>>()), ...);
        }
    };

    template <class Visit> static constexpr void names(Visit visit) {
        visit(table_name{name_of<Name>, &name_tables<items>::whole});
    }

    static taken read(reader& in, const node& parent, const node& first, void* object) {
        // the elements of each list, and behind them those of none
        constexpr std::array known{&table_of<map_of<item_of<List>>>()...};
        std::array<std::vector<const node*>, known.size() + 1> sorted;
        std::vector<const node*> all;
        for (const node& child : children(parent)) {
            if (child.name == first.name) {
                std::size_t kind = 0;
                while (kind < known.size() && !known[kind]->knows_content_of(child)) {
                    ++kind;
                }
                // the first list writes an element with nothing in it
                sorted[kind < known.size() || in.rides_along(child) ? kind : 0].push_back(&child);
                all.push_back(&child);
            }
        }
        std::size_t place = 0;
        for (const auto& elements : sorted) {
            for (const node* const element : elements) {
                if (all[place++] != element) {
                    in.tell_renumbered(*element, place);
                }
            }
        }
        std::size_t kind = 0;
        (read_list<List>(in, sorted[kind++], *static_cast<Class*>(object)), ...);
        for (const node* const element : sorted.back()) {
            in.tell_no_field(*element);
        }
        return {true, true};
    }

    static void write(writer& out, const void* object) {
        (held<typename List::value_type>::write(
             out, name_of<Name>, (static_cast<const Class*>(object)->*List::get)(), {}),
         ...);
    }

private:
    template <class Each>
    static void read_list(reader& in, const std::vector<const node*>& elements, Class& object) {
        std::vector<item_of<Each>> items;
        items.reserve(elements.size());
        for (const node* const element : elements) {
            in.read_item(table_of<map_of<item_of<Each>>>(), *element, &items.emplace_back(), {}, 0);
        }
        if (!items.empty()) {
            (object.*Each::set)(items);
        }
    }
};

template <class Class, auto Condition, class Entry>
struct action<Class, word::only_if<Condition, Entry>> : action<Class, Entry> {};

template <class Class, class Entry>
struct action<Class, word::again<Entry>> : action<Class, Entry> {};

template <class Class, characters Name, auto Member, auto Derive>
struct action<Class, word::outside<Name, Member, Derive>> : named_word<Name> {
    static constexpr bool plain = true;

    static taken read(reader& in, const node&, const node& first, void*) {
        return {in.read_single(first, {}, in.outside().*Member)};
    }

    static void write(writer& out, const void* object) {
        std::string text = out.outside().*Member;
        if constexpr (!std::is_null_pointer_v<decltype(Derive)>) {
            text = text.empty() ? Derive(*static_cast<const Class*>(object)) : text;
        }
        out.write_single(name_of<Name>, {}, text);
    }
};

/// Fills a table; without places to fill, it counts.
template <class Class> struct table_filler {
    table_name* names = nullptr;
    table_entry* list = nullptr;
    std::string_view* fields = nullptr; // the getters of the entries
    std::size_t name_count = 0;
    std::size_t entry_count = 0;
    std::uint64_t plain = 0; // this and the next as the table has them
    std::uint64_t conditional = 0;

    template <class... Entry> constexpr void add_all(entries<Entry...>) { (add<Entry>(), ...); }

    /// `beside` is the first of the entries that leave it no room, if there are any.
    template <class Entry> constexpr void add(std::size_t beside = table::none) {
        if constexpr (
            requires { typename Entry::inner; } && !requires { Entry::name; }) {
            add_exclusive(typename Entry::inner());
        } else if constexpr (requires { action<Class, Entry>::plain; }) {
            const std::string_view own_field = getter_of<Entry>();
            if (list != nullptr) {
                fields[entry_count] = own_field;
                for (std::size_t index = 0; !own_field.empty() && index < entry_count; ++index) {
                    beside = fields[index] == own_field ? index : beside;
                }
                list[entry_count] = {&action<Class, Entry>::read, &action<Class, Entry>::write,
                                     stands<Entry>(), beside == table::none ? entry_count : beside};
            }
            action<Class, Entry>::names([&](const table_name& name) {
                if (names != nullptr) {
                    names[name_count] = {name.name, name.inner, name.of_object, entry_count};
                }
                ++name_count;
            });
            plain |= std::uint64_t{action<Class, Entry>::plain} << entry_count;
            if constexpr (requires { Entry::condition; }) {
                conditional |= std::uint64_t{1} << entry_count;
            }
            ++entry_count;
        } else {
            static_assert(
                requires { typename Entry::value_type; },
                "a word of the map that the engine does not know");
        }
    }

private:
    template <class... Entry> constexpr void add_exclusive(entries<Entry...>) {
        const std::size_t first = entry_count;
        (add<Entry>(first), ...);
    }

    /// Tells the field that an entry has, or has again, from others.
    template <class Entry> static constexpr std::string_view getter_of() {
        if constexpr (requires { typename Entry::value_type; }) {
            return Entry::getter_name;
        } else if constexpr (
            requires { typename Entry::entry; } && !requires { Entry::condition; }) {
            return getter_of<typename Entry::entry>();
        } else {
            return {};
        }
    }

    template <class Entry> static constexpr bool (*stands())(const void*) {
        if constexpr (requires { Entry::condition; }) {
            return [](const void* object) {
                return Entry::condition(*static_cast<const Class*>(object));
            };
        } else {
            return nullptr;
        }
    }
};

template <class Names> struct name_tables {
private:
    static constexpr std::size_t count = [] {
        std::size_t result = 0;
        Names::names([&](const table_name&) { ++result; });
        return result;
    }();
    static constexpr std::array<table_name, count> known = [] {
        std::array<table_name, count> result{};
        std::size_t index = 0;
        Names::names([&](const table_name& name) { result[index++] = name; });
        return result;
    }();

public:
    static constexpr table whole{known, {}, 0, 0};
};

template <class Class, class Entries> struct tables {
private:
    static constexpr auto counted = [] {
        table_filler<Class> filler;
        filler.add_all(Entries());
        return filler;
    }();
    static_assert(counted.entry_count <= 64, "more entries than a frame has bits");

    struct filled_table {
        std::array<table_name, counted.name_count> names;
        std::array<table_entry, counted.entry_count> list;
    };
    static constexpr filled_table filled = [] {
        filled_table result{};
        std::array<std::string_view, counted.entry_count> fields{};
        table_filler<Class> filler{result.names.data(), result.list.data(), fields.data()};
        filler.add_all(Entries());
        return result;
    }();

public:
    static constexpr table whole{filled.names, filled.list, counted.plain, counted.conditional};
};

/// The element of a group alone, with what its map writes in it.
template <group Class> tree write_fields(std::string_view name, const Class& object) {
    tree result;
    const outside_texts outside;
    result.open(element_name(result.keep(name)));
    writer(result, outside).write_whole(table_of<map_of<Class>>(), &object);
    result.close();
    return result;
}

/// Reads what is in the element of a group alone.
template <group Class> report read_fields(const node& element, Class& object) {
    report result;
    outside_texts outside;
    std::vector<placed_text> kept;
    const table& known = table_of<map_of<Class>>();
    reader(element, known, nullptr, outside, kept, result).read(&object);
    return result;
}

} // namespace kivo::erp::v12::layout
