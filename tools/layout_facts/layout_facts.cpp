// Prints facts for the documentation and its tests, as tab-separated lines below the names of their
// columns: of every field of the layout map in each of its places, or of every element of the
// layout.

#include <layout/elements.hpp>
#include <layout/invoice.hpp>
#include <layout/text.hpp>

#include <cstdint>
#include <initializer_list>
#include <iostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace {

namespace core = kivo::core;
using namespace kivo::erp::v12;
using namespace kivo::erp::v12::layout;

void print_line(std::initializer_list<std::string_view> cells) {
    const char* before = "";
    for (const std::string_view cell : cells) {
        std::cout << before << cell;
        before = "\t";
    }
    std::cout << '\n';
}

/// What is known of the object in which a field stands.
struct surroundings {
    std::string path = {};    ///< of its element, with a slash at the end; empty: infNFe
    bool run = false;         ///< it may be absent, and has no element of its own
    bool conditional = false; ///< it is not always written

    /// The same of what stands further down.
    surroundings below(std::string_view names) const {
        return {path + std::string(names), run, conditional};
    }
};

/// A field in one of its places.
struct fact {
    std::string_view owner = {};
    std::string_view getter = {};
    std::string_view setter = {};
    std::string_view kind = {};
    std::string choice = {};      ///< empty, `choice` or `optional choice`
    std::string alternative = {}; ///< its index; of a choice in a choice, both
    std::string_view prefix = {}; ///< characters that stand before the text
    std::string_view marker = {}; ///< the element that tells the alternative from another
    form how = {};
};

template <class Value> inline constexpr std::string_view count_of = "plain";
template <class Value> inline constexpr std::string_view count_of<std::vector<Value>> = "list";
template <class Value>
inline constexpr std::string_view count_of<core::v7::optional<Value>> =
    is_list<Value> ? "list" : "optional";

template <class Value> std::string type_of() {
    if constexpr (std::is_same_v<Value, std::string>) {
        return "string";
    } else if constexpr (std::is_unsigned_v<Value>) {
        return "uint" + std::to_string(8 * sizeof(Value));
    } else if constexpr (is_variant<Value>) {
        return "choice";
    } else {
        return std::string(layout::detail::type_name<Value>());
    }
}

template <class Value> std::string_view value_of() {
    if constexpr (group<Value> || is_variant<Value>) {
        return "group";
    } else if constexpr (std::is_same_v<Value, fiscal::decimal> || amount_structure<Value>) {
        return "decimal";
    } else if constexpr (coded_value<Value>) {
        return "number";
    } else {
        return "text";
    }
}

template <class Value> std::string largest_of() {
    if constexpr (coded_value<Value>) {
        return std::to_string(largest_number<Value>());
    } else {
        return {};
    }
}

std::string_view flag(bool is_set) { return is_set ? "yes" : ""; }

std::string number(unsigned value) { return value == 0 ? std::string() : std::to_string(value); }

template <class Value>
void print_fact(const surroundings& around, std::string path, const fact& told) {
    using type = content_of<Value>;
    if (path.ends_with('/')) {
        path.pop_back();
    }
    print_line({path,
                told.owner,
                told.getter,
                told.setter,
                told.kind,
                count_of<Value>,
                type_of<type>(),
                value_of<type>(),
                told.choice,
                told.alternative,
                largest_of<type>(),
                number(told.how.width),
                number(told.how.wide_width),
                told.how.base == 10 ? "" : std::to_string(told.how.base),
                flag(told.how.fewer),
                flag(told.how.omit_default),
                flag(told.how.even_empty),
                told.prefix,
                told.marker,
                flag(around.run),
                flag(around.conditional)});
}

template <class Map> void print_map(const surroundings& around);

/// A field in an element of its own, and what stands in that.
template <class Value>
void print_element(const surroundings& around, std::string_view name, const fact& told) {
    print_fact<Value>(around, around.path + std::string(name), told);
    if constexpr (group<content_of<Value>>) {
        print_map<map_of<content_of<Value>>>({around.path + std::string(name) + '/'});
    }
}

/// A field without one, whose content stands in the holder's.
template <class Value, class Part = map_of<content_of<Value>>>
void print_embedded(const surroundings& around, fact told) {
    told.kind = "embedded";
    print_fact<Value>(around, around.path, told);
    const bool may_be_absent = is_optional<Value> || !told.alternative.empty();
    print_map<Part>({around.path, may_be_absent, around.conditional});
}

template <class Place, class Value> void print_alternative(const surroundings&, const fact&);

template <class Variant, class... Place>
void print_alternatives(entries<Place...>, const surroundings& around, const fact& choice) {
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        const auto of = [&](std::size_t number) {
            fact told = choice;
            told.alternative += (told.alternative.empty() ? "" : ", ") + std::to_string(number);
            return told;
        };
        (print_alternative<Place, std::variant_alternative_t<index, Variant>>(around, of(index)),
         ...);
    }
    (std::index_sequence_for<Place...>());
}

/// Whether an entry is one of a word that has no more than its accessors.
template <template <auto, auto> class Word, class Entry> inline constexpr bool is_word = false;
template <template <auto, auto> class Word, auto Get, auto Set>
inline constexpr bool is_word<Word, Word<Get, Set>> = true;

template <class Place> inline constexpr bool is_as = false;
template <characters Name> inline constexpr bool is_as<word::as<Name>> = true;

template <class Place, class Value>
void print_alternative(const surroundings& around, const fact& choice) {
    if constexpr (is_as<Place>) {
        fact told = choice;
        told.kind = "alternative";
        print_element<Value>(around, Place::name, told);
    } else if constexpr (requires { typename Place::places; }) {
        print_alternatives<Value>(typename Place::places(),
                                  around.below(std::string(Place::name) + '/'), choice);
    } else if constexpr (requires { Place::text; }) {
        fact told = choice;
        told.marker = Place::name;
        print_embedded<Value>(around, told);
    } else {
        static_assert(std::is_same_v<Place, word::nowhere>, "a place that the facts do not know");
    }
}

template <class Map, class Entry> void print_entry(const surroundings& around) {
    fact told;
    if constexpr (requires { Entry::member; }) {
        told.kind = "outside";
        print_fact<std::string>(around, around.path + std::string(Entry::name), told);
    } else {
        using value = typename Entry::value_type;
        told.owner = layout::detail::type_name<typename Map::c>();
        told.getter = Entry::getter_name;
        told.setter = Entry::setter_name;
        told.kind = "element";
        if constexpr (requires { Entry::attribute; }) {
            print_element<value>(around, Entry::name, told);
            told.kind = "position";
            print_fact<std::uint32_t>(
                around,
                around.path + std::string(Entry::name) + '/' + std::string(Entry::attribute), told);
        } else if constexpr (requires { Entry::how; }) {
            told.kind = Entry::name.starts_with('@') ? "attribute" : "element";
            told.how = Entry::how;
            print_element<value>(around, Entry::name, told);
        } else if constexpr (requires { Entry::prefix; }) {
            told.kind = Entry::name.starts_with('@') ? "attribute" : "element";
            told.prefix = Entry::prefix;
            print_element<value>(around, Entry::name, told);
        } else if constexpr (requires { typename Entry::part; }) {
            print_embedded<value, typename Entry::part>(around, told);
        } else if constexpr (requires { typename Entry::places; }) {
            told.choice = is_optional<value> ? "optional choice" : "choice";
            print_alternatives<content_of<value>>(typename Entry::places(), around, told);
        } else if constexpr (is_word<word::list, Entry>) {
            print_fact<value>(around, around.path, told);
            print_map<map_of<content_of<value>>>({around.path});
        } else {
            static_assert(is_word<word::no_element, Entry>, "a word that the facts do not know");
            told.kind = "without element";
            print_fact<value>({}, "", told);
        }
    }
}

template <class Map> void print_map(const surroundings& around) {
    for_each_entry<Map>([&](auto placed) {
        surroundings here = around;
        here.path += placed.path();
        here.conditional = around.conditional || placed.conditional;
        print_entry<Map, typename decltype(placed)::entry>(here);
    });
}

void print_fields() {
    print_line({"path",       "class", "getter",     "setter",       "kind",       "count",
                "type",       "value", "choice",     "alternative",  "largest",    "width",
                "wide_width", "base",  "fewer",      "omit_default", "even_empty", "prefix",
                "marker",     "run",   "conditional"});
    print_map<map_of<fiscal::nota_fiscal>>({});
}

void print_elements() {
    print_line({"path", "occurs", "content", "demanded", "excludes"});
    for (const element_rule* rule = next(infnfe_rule()); rule != nullptr; rule = next(*rule)) {
        std::string excluded;
        for (const element_rule& sibling : rule->parent()->children()) {
            if (&sibling != rule && exclude_each_other(*rule, sibling)) {
                excluded += (excluded.empty() ? "" : " ") + std::string(sibling.name());
            }
        }
        print_line({rule->path(), occurrence_word(*rule), content_word(*rule),
                    rule->is_group() ? std::string() : demanded_text(*rule), excluded});
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view wanted = argc == 2 ? argv[1] : "";
    if (wanted == "fields") {
        print_fields();
    } else if (wanted == "elements") {
        print_elements();
    } else {
        std::cerr << "usage: layout_facts fields|elements\n";
        return 1;
    }
    return std::cout.flush() ? 0 : 1;
}
