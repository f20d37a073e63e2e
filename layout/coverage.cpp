#include <layout/coverage.hpp>

#include <layout/invoice.hpp>
#include <layout/text.hpp>

#include <fiscal/types.hpp>

#include <algorithm>
#include <array>
#include <concepts>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <variant>

namespace kivo::erp::v12::layout {

namespace {

/// The last part of the name that the compiler gives to the one template argument of a function.
constexpr std::string_view argument_of(std::string_view function) {
    function.remove_prefix(function.find("argument = "));
    function = function.substr(0, function.find_first_of(";]"));
    return function.substr(function.rfind(':') + 1);
}

template <auto argument> constexpr std::string_view member_name() {
    return argument_of(__PRETTY_FUNCTION__);
}

template <class argument> constexpr std::string_view type_name() {
    return argument_of(__PRETTY_FUNCTION__);
}

/// Where a walk stands.
struct position {
    std::string path = {};
    bool run = false;
    bool conditional = false;

    std::string below(std::string_view name) const {
        return path.empty() ? std::string(name) : path + '/' + std::string(name);
    }
};

template <class Value> inline constexpr bool is_variant = false;
template <class... Alternatives>
inline constexpr bool is_variant<core::v7::variant<Alternatives...>> = true;

template <class Value> struct content {
    using type = Value;
    static constexpr auto times = place::count::plain;
};
template <class Value> struct content<core::v7::optional<Value>> {
    using type = Value;
    static constexpr auto times = place::count::optional;
};
template <class Value> struct content<std::vector<Value>> {
    using type = Value;
    static constexpr auto times = place::count::list;
};
template <class Value>
struct content<core::v7::optional<std::vector<Value>>> : content<std::vector<Value>> {};

template <class Value> void describe(place& found) {
    using type = typename content<Value>::type;
    found.times = content<Value>::times;
    found.group = group<type> || is_variant<type>;
    found.fixed_point = std::same_as<type, fiscal::decimal> || amount_structure<type>;
    if constexpr (std::same_as<type, std::string>) {
        found.type = "string";
    } else if constexpr (std::unsigned_integral<type>) {
        found.type = "uint" + std::to_string(8 * sizeof(type));
    } else if constexpr (is_variant<type>) {
        found.type = "choice";
    } else {
        found.type = type_name<type>();
    }
    if constexpr (coded_value<type> && !convertible_value<type>) {
        found.largest = largest_number<type>();
    }
}

using list = std::vector<place>;

template <class Class> void walk_class(list& result, const position& at, std::string_view without);

/// Adds a place and, where it is a class, what stands in it.
template <class Value>
void add(list& result, const position& at, place found, std::string_view without = "") {
    describe<Value>(found);
    found.path = at.path;
    found.run = at.run;
    found.conditional = at.conditional;
    position inside{at.path};
    if (found.standing == place::kind::inside) {
        inside.run = found.times == place::count::optional || !found.alternative.empty();
        inside.conditional = at.conditional;
    }
    if (found.how.position != nullptr) {
        place numbering = found;
        numbering.path = inside.below(found.how.position);
        numbering.standing = place::kind::position;
        numbering.times = place::count::plain;
        numbering.group = false;
        result.push_back(std::move(found));
        result.push_back(std::move(numbering));
    } else {
        result.push_back(std::move(found));
    }
    using type = typename content<Value>::type;
    if constexpr (group<type>) {
        walk_class<type>(result, inside, without);
    }
}

template <class Variant, class... Places>
void add_alternatives(list& result, const position& at, const place& choice,
                      const std::tuple<Places...>& alternatives) {
    const auto add_one = [&]<std::size_t index>() {
        using type = std::variant_alternative_t<index, Variant>;
        const auto& where = std::get<index>(alternatives);
        place found = choice;
        found.alternative += std::to_string(index);
        if constexpr (requires { where.places; }) {
            found.alternative += ", ";
            add_alternatives<type>(result, {at.below(where.name)}, found, where.places);
        } else if constexpr (std::convertible_to<decltype(where), const char*>) {
            found.standing = place::kind::alternative;
            add<type>(result, {at.below(where)}, std::move(found));
        } else if constexpr (std::same_as<decltype(where), const here_place&>) {
            found.standing = place::kind::inside;
            add<type>(result, at, std::move(found));
        }
    };
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        (add_one.template operator()<index>(), ...);
    }
    (std::index_sequence_for<Places...>());
}

/// Walks one entry of the map. `Locate` returns it: the names of its accessors can be told from
/// constants alone.
template <class Class, class Locate>
void walk_entry(list& result, position at, std::string_view without, Locate) {
    constexpr auto entry = Locate{}();
    place found;
    found.owner = type_name<Class>();
    if constexpr (requires { entry.get; }) {
        found.getter = member_name<entry.get>();
        found.setter = member_name<entry.set>();
    }
    if constexpr (requires { entry.entry; }) {
        at.conditional = requires { entry.condition; };
        walk_entry<Class>(result, at, without, [] { return Locate{}().entry; });
    } else if constexpr (requires { entry.entries; }) {
        at.path = at.below(entry.name);
        at.run = false;
        [&]<std::size_t... index>(std::index_sequence<index...>) {
            (walk_entry<Class>(result, at, without,
                               [] { return std::get<index>(Locate{}().entries); }),
             ...);
        }
        (std::make_index_sequence<std::tuple_size_v<decltype(entry.entries)>>());
    } else if constexpr (requires { entry.places; }) {
        using value = value_of<decltype(entry.get), Class>;
        found.alternative =
            is_optional<value> ? "optional choice, alternative " : "choice, alternative ";
        add_alternatives<typename content<value>::type>(result, at, found, entry.places);
    } else if constexpr (requires { entry.without; }) {
        found.standing = place::kind::inside;
        add<value_of<decltype(entry.get), Class>>(result, at, std::move(found), entry.without);
    } else if constexpr (requires { entry.how; }) {
        if (without != entry.name) {
            found.how = entry.how;
            at.path = at.below(entry.name);
            add<value_of<decltype(entry.get), Class>>(result, at, std::move(found));
        }
    } else if constexpr (requires { entry.get; }) {
        found.standing = place::kind::none;
        describe<value_of<decltype(entry.get), Class>>(found);
        result.push_back(std::move(found));
    } else if constexpr (!requires { entry.text; }) {
        found.standing = place::kind::outside;
        found.owner = {};
        found.path = at.below(entry.name);
        result.push_back(std::move(found));
    }
}

template <class Class> void walk_class(list& result, const position& at, std::string_view without) {
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        (walk_entry<Class>(result, at, without, [] { return std::get<index>(fields<Class>); }),
         ...);
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_const_t<decltype(fields<Class>)>>>());
}

} // namespace

std::vector<place> places() {
    list result;
    walk_class<nota_fiscal>(result, {}, "");
    return result;
}

std::vector<layout_element> read_elements(const std::string& file) {
    std::ifstream input(file);
    std::vector<layout_element> result;
    for (std::string line; std::getline(input, line);) {
        if (!line.starts_with('#')) {
            std::istringstream columns(line);
            layout_element element;
            std::getline(columns, element.path, '\t');
            std::getline(columns, element.occurs, '\t');
            std::getline(columns, element.content);
            result.push_back(std::move(element));
        }
    }
    if (result.empty()) {
        throw std::runtime_error(file + ": no list of elements");
    }
    return result;
}

std::vector<layout_element> without_field(const std::vector<layout_element>& elements,
                                          const std::vector<place>& all_places) {
    std::set<std::string, std::less<>> known;
    for (const place& found : all_places) {
        // a group is known by whatever stands in it
        for (std::size_t end = 0; end != std::string::npos;) {
            end = found.path.find('/', end + 1);
            known.insert(found.path.substr(0, end));
        }
    }
    std::vector<layout_element> result;
    std::string told = "/";
    for (const layout_element& element : elements) {
        if (!known.contains(element.path) && !element.path.starts_with(told)) {
            told = element.path + '/';
            result.push_back(element);
        }
    }
    return result;
}

namespace {

std::vector<unsigned> numbers_in(const std::string& text) {
    std::vector<unsigned> result;
    bool inside = false;
    for (const char character : text) {
        const bool digit = character >= '0' && character <= '9';
        if (digit && !inside) {
            result.push_back(0);
        }
        if (digit) {
            result.back() = result.back() * 10 + static_cast<unsigned>(character - '0');
        }
        inside = digit;
    }
    return result;
}

std::string several(std::uint64_t number, const char* what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

void add_number(std::vector<std::string>& result, const place& field,
                const layout_element& element) {
    const std::vector<unsigned> widths = numbers_in(element.content);
    const bool digits_only =
        element.content.starts_with("digits") || element.content.starts_with("number");
    const form& how = field.how;
    std::uint64_t widest = 1;
    for (unsigned digit = 0; digits_only && digit < widths.back() && widest <= field.largest;
         ++digit) {
        widest *= 10;
    }
    if (widest > field.largest && widest - 1 > field.largest) {
        result.push_back("up to " + std::to_string(field.largest) + ", the layout takes " +
                         several(widths.back(), "digit"));
    }
    if (how.base == 16) {
        result.emplace_back("the code read as a hexadecimal number");
    } else if (!digits_only) {
        result.emplace_back("a number, the layout takes a text");
    }
    if (how.wide_width != 0) {
        result.push_back("written with " + several(how.width, "digit") + ", or with " +
                         std::to_string(how.wide_width) + " where it needs more");
    } else if (how.width != 0 && digits_only && widths.front() != how.width) {
        result.push_back("always " + several(how.width, "digit"));
    } else if (how.width > 1) {
        result.push_back("written with " + several(how.width, "digit"));
    } else if (how.width == 0 && element.content.starts_with("digits") && widths.back() > 1) {
        result.emplace_back("zeros in front are not kept");
    }
}

} // namespace

std::string absence(const place& field, const layout_element& element) {
    // an alternative is there or not as the choice tells, and so is a group without an element
    if (field.standing != place::kind::element) {
        return {};
    }
    const bool in_run = element.occurs.starts_with('(');
    const bool may_be_absent = numbers_in(element.occurs).front() == 0 || (in_run && !field.run);
    const bool plain = field.times == place::count::plain && !field.group;
    if (field.times == place::count::optional) {
        return may_be_absent ? "" : "optional, although the layout demands it";
    }
    if (plain && field.how.optional) {
        return may_be_absent ? "left out at its default" : "left out while never set: 0 is no code";
    }
    if (plain && may_be_absent && field.conditional) {
        return "left out where its group does without";
    }
    if (plain && may_be_absent && (field.largest != 0 || field.fixed_point)) {
        return "written even at 0, where the layout lets it be absent";
    }
    return {};
}

std::vector<std::string> differences(const place& field, const layout_element& element) {
    std::vector<std::string> result;
    if (std::string without = absence(field, element); !without.empty()) {
        result.push_back(std::move(without));
    }
    const std::vector<unsigned> occurs = numbers_in(element.occurs);
    if (field.standing == place::kind::inside) {
        return result;
    }
    if (field.times == place::count::list && occurs.back() == 1) {
        result.emplace_back("a list, the layout takes one");
    } else if (field.times != place::count::list && occurs.back() > 1) {
        result.push_back("one, the layout takes " + std::to_string(occurs.back()));
    }
    if (field.largest != 0) {
        add_number(result, field, element);
    }
    if (field.fixed_point && element.content.starts_with("decimal")) {
        const std::vector<unsigned> places = numbers_in(element.content);
        if (places.front() + places.back() > 17) {
            result.emplace_back("at most 17 digits in all");
        }
    }
    if (field.how.before[0] != '\0') {
        result.push_back(std::string("held without the `") + field.how.before + "` in front");
    }
    if (field.how.empty) {
        result.emplace_back("written even when it is empty");
    }
    return result;
}

} // namespace kivo::erp::v12::layout
