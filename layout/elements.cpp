#include <layout/elements.hpp>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kivo::erp::v12::layout {

// elements.txt becomes tables while this file is compiled. A text that makes no sense does not
// compile, and the `throw` that the compiler complains of tells why.

namespace {

constexpr char source[] =
#include <layout/elements_text.inc>
    ;

// what runs over all characters uses bare pointers: a call for each would take the compiler long

/// Takes names, numbers and marks from the front of a text.
struct cursor {
    const char* at;
    const char* end;

    constexpr explicit cursor(std::string_view text)
        : at(text.data()), end(text.data() + text.size()) {}

    constexpr void skip_blanks() {
        while (at != end && (*at == ' ' || *at == '\n' || *at == '\t')) {
            ++at;
        }
    }
    constexpr bool at_end() {
        skip_blanks();
        return at == end;
    }
    constexpr char peek() {
        skip_blanks();
        return at == end ? '\0' : *at;
    }
    constexpr bool take(char mark) {
        const bool found = peek() == mark;
        at += found ? 1 : 0;
        return found;
    }
    constexpr bool take(std::string_view words) {
        skip_blanks();
        const bool found = std::string_view(at, end).starts_with(words);
        at += found ? words.size() : 0;
        return found;
    }
    constexpr void demand(char mark) {
        if (!take(mark)) {
            throw std::invalid_argument("a mark is missing");
        }
    }
    /// All before the first of some characters.
    constexpr std::string_view until(char_set marks) {
        skip_blanks();
        const char* const begin = at;
        while (at != end && !marks.has(*at)) {
            ++at;
        }
        return {begin, at};
    }
    constexpr std::string_view word() { return until(set_of(" \n\t")); }
    template <class Number> constexpr void number(Number& result) {
        skip_blanks();
        const char* const begin = at;
        std::uint64_t value = 0;
        for (; at != end && *at >= '0' && *at <= '9'; ++at) {
            value = value * 10 + static_cast<unsigned>(*at - '0');
        }
        result = static_cast<Number>(value);
        if (at == begin || result != value) {
            throw std::invalid_argument("a number is missing, or too large");
        }
    }
    /// `1-60`, or `60` for both.
    template <class Number> constexpr void range(Number& least, Number& most, char to = '-') {
        number(least);
        most = least;
        if (take(to)) {
            number(most);
        }
        if (least > most) {
            throw std::invalid_argument("a range that ends before it begins");
        }
    }
    static constexpr char_set set_of(std::string_view characters) {
        char_set result;
        for (const char character : characters) {
            result.add(character);
        }
        return result;
    }
};

/// A line with those that go on with it: what stands before and behind the tab. Both are empty
/// in a line that says nothing.
struct columns {
    std::string_view left;
    std::string_view right;
    std::string_view name; // the last of a path

    constexpr bool is_definition() const { return !left.empty() && left[0] == '='; }
    constexpr bool is_element() const { return !left.empty() && left[0] != '='; }
};

/// Takes a line from the front of a text.
constexpr columns take_line(const char*& at) {
    const char* const begin = at;
    const char* tab = nullptr;
    const char* name = begin;
    for (; *at != '\n' || at[1] == '\t'; ++at) {
        if (tab == nullptr && *at == '\t') {
            tab = at;
        } else if (tab == nullptr && *at == '/') {
            name = at + 1;
        }
    }
    const char* const end = at++;
    if (begin == end || *begin == '#') {
        return {};
    }
    if (tab == nullptr) {
        throw std::invalid_argument("a line without a tab");
    }
    return {{begin, tab}, {tab + 1, end}, {name, tab}};
}

constexpr std::size_t count_lines(bool (columns::*is_counted)() const) {
    std::size_t result = 0;
    for (const char* at = source; *at != '\0';) {
        result += (take_line(at).*is_counted)() ? 1 : 0;
    }
    return result;
}

/// A line that gives a content a name.
struct definition {
    std::string_view name;
    std::string_view content;
};

/// A line that is an element or attribute.
struct line {
    std::string_view path;
    std::string_view name;
    std::string_view content;
    bool unique = false;
    std::size_t parent = 0;
    std::size_t position = 0;
    std::size_t children = 0;
    std::size_t first_child = 0;
    std::size_t last_child = 0;
    std::size_t next_sibling = 0;

    constexpr bool is_group() const { return content[0] == '('; }
};

constexpr std::size_t rule_count = count_lines(&columns::is_element);

struct line_table {
    std::array<line, rule_count> elements; // the first is infNFe
    std::array<definition, count_lines(&columns::is_definition)> definitions;

    constexpr line_table() {
        std::size_t count = 0;
        std::size_t definition_count = 0;
        for (const char* at = source; *at != '\0';) {
            const columns found = take_line(at);
            if (found.is_definition()) {
                definitions[definition_count++] = {found.left.substr(2), found.right};
            } else if (found.is_element()) {
                line& added = elements[count];
                added.path = found.left;
                added.name = found.name;
                added.content = found.right;
                constexpr std::string_view unique = " unique";
                if (added.content.back() == unique.back() && added.content.ends_with(unique)) {
                    added.unique = true;
                    added.content.remove_suffix(unique.size());
                }
                if (count != 0) {
                    place(count);
                }
                ++count;
            }
        }
    }

private:
    /// Finds the parent: the element before, or one in which that stands.
    constexpr void place(std::size_t index) {
        line& added = elements[index];
        std::size_t parent = 0;
        if (added.name.size() != added.path.size()) {
            const std::string_view parent_path(added.path.data(), added.name.data() - 1);
            for (parent = index - 1; elements[parent].path != parent_path;
                 parent = elements[parent].parent) {
                if (parent == 0) {
                    throw std::invalid_argument("an element whose parent is not before it");
                }
            }
        }
        line& found = elements[parent];
        added.parent = parent;
        added.position = found.children++;
        (added.position == 0 ? found.first_child : elements[found.last_child].next_sibling) = index;
        found.last_child = index;
    }
};

constexpr line_table lines;

/// Values of which one more may be added, up to some.
template <class Value, std::size_t capacity> struct growing {
    std::array<Value, capacity> values = {};
    std::size_t count = 0;

    constexpr std::size_t add(const Value& value) {
        if (count == capacity) {
            throw std::length_error("more values than their table has room for");
        }
        values[count] = value;
        return count++;
    }
    template <std::size_t size> constexpr std::array<Value, size> first() const {
        std::array<Value, size> result;
        std::copy_n(values.begin(), size, result.begin());
        return result;
    }
};

/// Where the texts of an element stand in the table of all texts.
struct text_range {
    std::size_t first = 0;
    std::size_t count = 0;
};

/// The forms of all texts. Elements of the same content share theirs.
struct text_table {
    growing<text_rule, 300> rules;
    growing<char_run, 100> runs;
    growing<char, 3000> codes; // each behind its length
    std::array<text_range, rule_count> of_line;

    constexpr text_table() {
        // the elements whose content is the first of its kind, in chains of similar contents
        std::array<std::size_t, 256> newest = {};
        std::array<std::size_t, rule_count> older = {};
        for (std::size_t index = 1; index < rule_count; ++index) {
            const line& element = lines.elements[index];
            if (element.is_group()) {
                continue;
            }
            const std::string_view content = element.content;
            const auto middle = static_cast<unsigned char>(content[content.size() / 2]);
            const auto back = static_cast<unsigned char>(content.back());
            std::size_t& chain =
                newest[(content.size() * 31 + middle + back * std::size_t{7}) % newest.size()];
            std::size_t known = chain;
            while (known != 0 && lines.elements[known].content != content) {
                known = older[known];
            }
            if (known == 0) {
                older[index] = chain;
                chain = index;
                of_line[index].first = rules.count;
                add(content);
                of_line[index].count = rules.count - of_line[index].first;
            } else {
                of_line[index] = of_line[known];
            }
        }
    }

private:
    using kind = text_rule::kind;

    constexpr void add(std::string_view content) {
        cursor at{content};
        do {
            add_one(at);
        } while (at.take('|'));
        if (!at.at_end()) {
            throw std::invalid_argument("a word that nothing is known by");
        }
    }

    constexpr void add_one(cursor& at) {
        const std::string_view word = at.word();
        text_rule rule;
        if (word == "text" || word == "word" || word == "digits") {
            rule.is = word == "text" ? kind::text : word == "word" ? kind::word : kind::digits;
            at.range(rule.least, rule.most);
        } else if (word == "number") {
            rule.is = kind::number;
            at.range(rule.smallest, rule.largest);
        } else if (word == "decimal") {
            rule.is = kind::decimal;
            add_decimal(at, rule);
        } else if (word == "codes") {
            rule.is = kind::codes;
            add_codes(at, rule);
        } else if (word == "like") {
            rule.is = kind::like;
            add_runs(at.word(), rule);
        } else if (word == "base64") {
            rule.is = kind::base64;
            if (!at.at_end()) {
                at.number(rule.most);
            }
        } else if (word == "empty" || word == "date" || word == "datetime") {
            rule.is = word == "empty" ? kind::empty : word == "date" ? kind::date : kind::datetime;
        } else if (word == "month") {
            const std::string_view form = at.word();
            rule.is = form == "AAMM"      ? kind::aamm
                      : form == "AAAA-MM" ? kind::aaaa_mm
                      : form == "MM/AAAA" ? kind::mm_aaaa
                                          : throw std::invalid_argument("no form of a month");
        } else {
            add(content_of(word));
            return;
        }
        rules.add(rule);
    }

    static constexpr std::string_view content_of(std::string_view name) {
        for (const definition& known : lines.definitions) {
            if (known.name == name) {
                return known.content;
            }
        }
        throw std::invalid_argument("a form that is neither known nor defined");
    }

    static constexpr void add_decimal(cursor& at, text_rule& rule) {
        at.number(rule.whole);
        at.demand('.');
        at.range(rule.least, rule.most);
        rule.small_least = static_cast<std::uint8_t>(rule.least);
        rule.small_most = static_cast<std::uint8_t>(rule.most);
        if (at.take("below 1 .")) {
            at.range(rule.small_least, rule.small_most);
        }
        rule.above_zero = at.take("above 0");
        rule.bare_zero = !rule.above_zero && !at.take("not 0");
        if (at.take("to ")) {
            at.number(rule.largest);
        }
    }

    constexpr void add_codes(cursor& at, text_rule& rule) {
        rule.first = static_cast<std::uint16_t>(codes.count);
        while (!at.at_end() && at.peek() != '|') {
            const bool quoted = at.take('"');
            const std::string_view code = quoted ? at.until(cursor::set_of("\"")) : at.word();
            if (quoted) {
                at.demand('"');
            }
            codes.add(static_cast<char>(code.size()));
            for (const char character : code) {
                codes.add(character);
            }
        }
        rule.last = static_cast<std::uint16_t>(codes.count);
    }

    /// `[0-9A-Z]{2,3}`, or a character that stands for itself.
    constexpr void add_runs(std::string_view expression, text_rule& rule) {
        rule.first = static_cast<std::uint16_t>(runs.count);
        for (cursor at{expression}; !at.at_end();) {
            char_run run;
            if (at.take('[')) {
                std::string_view set = at.until(cursor::set_of("]"));
                at.demand(']');
                while (!set.empty()) {
                    const bool is_range = set.size() > 2 && set[1] == '-';
                    const char end = set[is_range ? 2 : 0];
                    for (char character = set[0]; character <= end; ++character) {
                        run.set.add(character);
                    }
                    set.remove_prefix(is_range ? 3 : 1);
                }
            } else {
                run.set.add(*at.at++);
            }
            if (at.take('{')) {
                at.range(run.least, run.most, ',');
                at.demand('}');
            }
            runs.add(run);
        }
        rule.last = static_cast<std::uint16_t>(runs.count);
    }
};

constexpr text_table parsed_texts;
constexpr auto text_rules = parsed_texts.rules.first<parsed_texts.rules.count>();
constexpr auto char_runs = parsed_texts.runs.first<parsed_texts.runs.count>();
constexpr auto code_chars = parsed_texts.codes.first<parsed_texts.codes.count>();

constexpr std::uint64_t bit(std::size_t position) { return std::uint64_t{1} << position; }

/// How an element stands in its group.
struct standing {
    std::uint16_t most = 1;
    bool needed = true;
    bool nested = false;
};

/// What stands in each group.
struct group_table {
    growing<group_rule, rule_count + rule_count / 3> rules;
    std::array<std::size_t, rule_count> of_line = {};
    std::array<standing, rule_count> standings;

    constexpr group_table() {
        for (std::size_t index = 0; index < rule_count; ++index) {
            const line& group = lines.elements[index];
            if (group.is_group() != (group.children != 0) || group.children > 64) {
                throw std::invalid_argument("a group without elements, or with too many, "
                                            "or elements in no group");
            }
            if (group.is_group()) {
                std::size_t expected = group.first_child;
                cursor at{group.content};
                of_line[index] = add(at, group, expected, false);
                if (!at.at_end() || expected != 0) {
                    throw std::invalid_argument("an element that its group does not name");
                }
            }
        }
    }

private:
    using kind = group_rule::kind;

    /// Adds a sequence or a choice with all in it.
    constexpr std::size_t add(cursor& at, const line& group, std::size_t& expected, bool nested) {
        const std::size_t index = rules.add({});
        at.demand('(');
        const std::size_t known = expected;
        char separator = 0;
        do {
            if (at.peek() == '(') {
                add(at, group, expected, true);
            } else {
                add_element(at, group, expected, nested);
            }
            const char mark = at.peek();
            if (separator != 0 && mark != separator && mark != ')') {
                throw std::invalid_argument("both a sequence and a choice");
            }
            separator = mark == ')' ? separator : mark;
        } while (at.take(',') || at.take('|'));
        at.demand(')');
        group_rule& rule = rules.values[index];
        rule.is = separator == '|' ? kind::choice : kind::sequence;
        rule.optional = at.take('?');
        rule.size = static_cast<std::uint8_t>(rules.count - index);
        if (rule.is == kind::choice) {
            for (std::size_t child = known; child != expected;
                 child = lines.elements[child].next_sibling) {
                standings[child].nested = true;
            }
        }
        sum_up(index);
        return index;
    }

    constexpr void add_element(cursor& at, const line& group, std::size_t& expected, bool nested) {
        const std::string_view name = at.until(cursor::set_of(",|)?{ \n\t"));
        std::size_t child = expected;
        if (child != 0 && lines.elements[child].name == name) {
            expected = lines.elements[child].next_sibling;
        } else {
            // an element may stand in several branches of a choice
            child = group.first_child;
            while (child != expected && lines.elements[child].name != name) {
                child = lines.elements[child].next_sibling;
            }
            if (child == expected) {
                throw std::invalid_argument("elements in another order than their group has them");
            }
        }
        standing& found = standings[child];
        group_rule rule;
        rule.is = kind::element;
        rule.optional = at.take('?');
        if (at.take('{')) {
            std::uint16_t least = 0;
            at.range(least, found.most, ',');
            at.demand('}');
            rule.optional = least == 0;
            if (least > 1) {
                throw std::invalid_argument("more than one at least: nothing checks that");
            }
        }
        found.needed = !rule.optional;
        found.nested = nested;
        rule.may_be_empty = rule.optional;
        rule.position = static_cast<std::uint8_t>(lines.elements[child].position);
        rule.elements = bit(rule.position);
        rules.add(rule);
    }

    /// Fills in what follows from the parts.
    constexpr void sum_up(std::size_t index) {
        group_rule& rule = rules.values[index];
        bool all_empty = true;
        bool one_empty = false;
        std::size_t nested_before = index;
        for (std::size_t part = index + 1; part < index + rule.size;
             part += rules.values[part].size) {
            const group_rule& found = rules.values[part];
            rule.elements |= found.elements;
            all_empty = all_empty && found.may_be_empty;
            one_empty = one_empty || found.may_be_empty;
            if (found.is == kind::element) {
                rule.direct |= found.elements;
                rule.demanded |= found.optional ? 0 : found.elements;
            } else {
                group_rule& before = rules.values[nested_before];
                (nested_before == index ? before.to_group : before.to_next) =
                    static_cast<std::uint8_t>(part - nested_before);
                nested_before = part;
            }
        }
        if (rule.is == kind::choice) {
            rule.demanded = 0;
        }
        rule.may_be_empty = rule.optional || (rule.is == kind::sequence ? all_empty : one_empty);
    }
};

constexpr group_table parsed_groups;
constexpr auto group_rules = parsed_groups.rules.first<parsed_groups.rules.count>();

constexpr std::uint32_t hash(std::size_t parent, std::string_view name) {
    auto result = static_cast<std::uint32_t>(parent * 0x9E3779B1U);
    for (const char character : name) {
        result = (result ^ static_cast<unsigned char>(character)) * 0x01000193U;
    }
    return result ^ (result >> 15);
}

} // namespace

/// All rules, those with the same parent side by side.
struct element_table {
    element_rule rules[rule_count];
    std::array<std::uint16_t, 2048> slots = {}; // index of a rule by parent and name; 0: none

    constexpr element_table() {
        static_assert(rule_count < 1500, "the slots are too few");
        std::array<std::size_t, rule_count> line_of = {}; // the line of each rule
        std::size_t count = 1;
        for (std::size_t index = 0; index < count; ++index) {
            const line& from = lines.elements[line_of[index]];
            element_rule& rule = rules[index];
            if (index != 0) {
                name(rule, from.name);
            }
            const standing& how = parsed_groups.standings[line_of[index]];
            rule.most_ = how.most;
            rule.needed_ = how.needed;
            rule.nested_ = how.nested;
            rule.unique_ = from.unique;
            rule.position_ = static_cast<std::uint8_t>(from.position);
            rule.children_ = static_cast<std::uint8_t>(from.children);
            if (rule.children_ == 0) {
                const text_range& texts = parsed_texts.of_line[line_of[index]];
                if (from.unique && !is_short_number(parsed_texts.rules.values[texts.first])) {
                    throw std::invalid_argument("a unique text that is no number, or a large one");
                }
                rule.content_ = static_cast<std::uint16_t>(texts.first);
                rule.texts_ = static_cast<std::uint8_t>(texts.count);
                continue;
            }
            rule.content_ = static_cast<std::uint16_t>(parsed_groups.of_line[line_of[index]]);
            rule.to_children_ = static_cast<std::uint16_t>(count - index);
            for (std::size_t child = from.first_child; child != 0;
                 child = lines.elements[child].next_sibling) {
                rule.numbered_ = rule.numbered_ || lines.elements[child].unique;
                rules[count].to_parent_ = static_cast<std::uint16_t>(count - index);
                add_slot(hash(index, lines.elements[child].name), count);
                line_of[count++] = child;
            }
        }
    }

private:
    static constexpr void name(element_rule& rule, std::string_view text) {
        if (text.size() > sizeof rule.name_) {
            throw std::length_error("a longer name than a rule has room for");
        }
        std::copy(text.begin(), text.end(), rule.name_);
        rule.name_size_ = static_cast<std::uint8_t>(text.size());
    }
    static constexpr bool is_short_number(const text_rule& rule) {
        return rule.is == text_rule::kind::number && rule.largest < unique_limit;
    }
    constexpr void add_slot(std::uint32_t hashed, std::size_t index) {
        std::size_t slot = hashed % slots.size();
        while (slots[slot] != 0) {
            slot = (slot + 1) % slots.size();
        }
        slots[slot] = static_cast<std::uint16_t>(index);
    }
};

namespace {

constexpr element_table table;

} // namespace

std::span<const char_run> text_rule::runs() const {
    return std::span(char_runs).subspan(first, static_cast<std::size_t>(last - first));
}

text_list text_rule::codes() const { return {code_chars.data() + first, code_chars.data() + last}; }

const element_rule* element_rule::search(std::string_view name) const {
    const auto parent = static_cast<std::size_t>(this - table.rules);
    std::size_t slot = hash(parent, name) % table.slots.size();
    for (; table.slots[slot] != 0; slot = (slot + 1) % table.slots.size()) {
        const element_rule& found = table.rules[table.slots[slot]];
        if (found.parent() == this && found.name() == name) {
            return &found;
        }
    }
    return nullptr;
}

const group_rule& element_rule::content() const { return group_rules[content_]; }

std::span<const text_rule> element_rule::texts() const {
    if (is_group()) {
        return {};
    }
    return std::span(text_rules).subspan(content_, texts_);
}

std::string element_rule::path() const {
    if (parent() == nullptr) {
        return {};
    }
    std::string result = parent()->path();
    result += result.empty() ? "" : "/";
    return result += name();
}

const element_rule& infnfe_rule() { return table.rules[0]; }

const element_rule* rule_at(std::string_view path) {
    const element_rule* found = &infnfe_rule();
    while (found != nullptr && !path.empty()) {
        const std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(step.size() + 1, path.size()));
        found = found->child(step.substr(0, step.find('[')));
    }
    return found;
}

const element_rule* next(const element_rule& rule) {
    if (rule.is_group()) {
        return &rule.children().front();
    }
    const element_rule* last = &rule;
    while (last->parent() != nullptr) {
        if (last->position() + 1 < last->parent()->children().size()) {
            return last + 1;
        }
        last = last->parent();
    }
    return nullptr;
}

namespace {

/// Whether what stands in a group may have both of two elements.
bool has_both(const group_rule& rule, std::uint64_t both) {
    if ((rule.elements & both) != both || rule.is == group_rule::kind::element) {
        return false;
    }
    const group_rule* const end = &rule + rule.size;
    for (const group_rule* part = &rule + 1; part != end; part += part->size) {
        const std::uint64_t in_part = part->elements & both;
        if (in_part == both ? has_both(*part, both)
                            : rule.is == group_rule::kind::sequence && in_part != 0) {
            return true;
        }
    }
    return false;
}

} // namespace

bool exclude_each_other(const element_rule& left, const element_rule& right) {
    return &left != &right && left.parent() != nullptr && left.parent() == right.parent() &&
           !has_both(left.parent()->content(), bit(left.position()) | bit(right.position()));
}

} // namespace kivo::erp::v12::layout
