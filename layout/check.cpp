#include <layout/check.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <bitset>
#include <charconv>
#include <cstring>
#include <optional>
#include <utility>

namespace kivo::erp::v12::layout {

namespace {

// Some texts are refused here that the official schemas, or programs that read them, let pass:
// - patterns with a mark too many, or none before a point: a comma in the month of a date
//   ("2024-0,-30"), for the sign of an offset, for the first digit of a CFOP; any character for the
//   point of cListServ
// - `\d`, which is a digit of any script: in dates and times, CST and cClassTrib of IS, IBS and
// CBS,
//   and cCredPres; here only 0 to 9 are digits
// - Id and competApur have types of XML: Id may have blanks around it, competApur an offset from
//   UTC, or a year beyond 9999
// - libxml2 passes over characters that are not of base64, and miscounts where parts of a pattern
//   begin alike: it takes 9 digits for an NCM, 5 for an AAMM

constexpr bool is_digit(char character) { return character >= '0' && character <= '9'; }

constexpr unsigned digit_of(char character) { return static_cast<unsigned>(character - '0'); }

bool all_digits(std::string_view text) { return std::all_of(text.begin(), text.end(), is_digit); }

bool is_between(std::size_t number, std::size_t least, std::size_t most) {
    return number >= least && number <= most;
}

/// The number of characters of a text; 0 where one is a control character or beyond U+00FF.
std::size_t count_characters(std::string_view text) {
    std::size_t result = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        constexpr std::uint64_t highest_bits = 0x8080808080808080;
        for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
            std::memcpy(&eight, text.data() + at, sizeof eight);
            // a byte from 0x20 to 0x7F has no highest bit, but has one when 0x60 is added
            if ((~eight & (eight + 0x6060606060606060) & highest_bits) != highest_bits) {
                break;
            }
            result += sizeof eight;
        }
        for (const std::size_t end = std::min(at + 8, text.size()); at < end; ++at) {
            const auto byte = static_cast<unsigned char>(text[at]);
            if (byte == 0xC2 || byte == 0xC3) {
                // U+0080 to U+00FF are two bytes
                if (++at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80) {
                    return 0;
                }
            } else if (byte < 0x20 || byte > 0x7F) {
                return 0;
            }
            ++result;
        }
    }
    return result;
}

bool is_text(std::string_view text, const text_rule& rule) {
    // no character is more than two bytes
    return is_between(text.size(), rule.least, std::size_t{2} * rule.most) && text.front() != ' ' &&
           text.back() != ' ' && is_between(count_characters(text), rule.least, rule.most);
}

bool is_number(std::string_view text, const text_rule& rule) {
    if (text.empty() || text.size() > 9 || !all_digits(text) ||
        (text.front() == '0' && text.size() > 1)) {
        return false;
    }
    std::size_t number = 0;
    for (const char digit : text) {
        number = number * 10 + digit_of(digit);
    }
    return is_between(number, rule.smallest, rule.largest);
}

bool is_decimal(std::string_view text, const text_rule& rule) {
    std::size_t whole = 0;
    while (whole < text.size() && is_digit(text[whole])) {
        ++whole;
    }
    const bool small = whole == 1 && text.front() == '0';
    if (!is_between(whole, 1, rule.whole) || (text.front() == '0' && !small)) {
        return false;
    }
    const std::string_view behind = text.substr(whole);
    const auto all_zero = [&] { return behind.find_first_not_of(".0") == behind.npos; };
    if (!behind.empty()) {
        const bool fits = small ? is_between(behind.size() - 1, rule.small_least, rule.small_most)
                                : is_between(behind.size() - 1, rule.least, rule.most);
        if (behind.front() != '.' || !fits || !all_digits(behind.substr(1))) {
            return false;
        }
    } else if (small && !rule.bare_zero) {
        return false;
    }
    if (rule.above_zero && small && all_zero()) {
        return false;
    }
    if (rule.largest == 0) {
        return true;
    }
    std::size_t number = 0;
    for (const char digit : text.substr(0, whole)) {
        number = number * 10 + digit_of(digit);
    }
    return number < rule.largest || (number == rule.largest && all_zero());
}

bool is_code(std::string_view text, const text_rule& rule) {
    const text_list codes = rule.codes();
    return std::find(codes.begin(), codes.end(), text) != codes.end();
}

bool is_like(std::string_view text, const text_rule& rule) {
    std::size_t at = 0;
    for (const char_run& run : rule.runs()) {
        const std::size_t begin = at;
        while (at < text.size() && at - begin < run.most && run.set.has(text[at])) {
            ++at;
        }
        if (at - begin < run.least) {
            return false;
        }
    }
    return at == text.size();
}

/// Two digits as a number; 100 where they are none.
unsigned pair_at(std::string_view text, std::size_t at) {
    return is_digit(text[at]) && is_digit(text[at + 1])
               ? digit_of(text[at]) * 10 + digit_of(text[at + 1])
               : 100;
}

bool is_month(unsigned number) { return is_between(number, 1, 12); }

bool is_date(std::string_view text) {
    if (text.size() != 10 || !text.starts_with("20") || text[4] != '-' || text[7] != '-') {
        return false;
    }
    const unsigned year = pair_at(text, 2);
    const unsigned month = pair_at(text, 5);
    if (year > 99 || !is_month(month)) {
        return false;
    }
    constexpr unsigned char days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const unsigned leap_day = month == 2 && year % 4 == 0 ? 1 : 0;
    return is_between(pair_at(text, 8), 1, days[month - 1] + leap_day);
}

bool is_datetime(std::string_view text) {
    if (text.size() != 25 || !is_date(text.substr(0, 10)) || text[10] != 'T' || text[13] != ':' ||
        text[16] != ':' || text.substr(22) != ":00" || pair_at(text, 11) > 23 ||
        pair_at(text, 14) > 59 || pair_at(text, 17) > 59) {
        return false;
    }
    const unsigned hours = pair_at(text, 20);
    return text[19] == '+' ? hours <= 12 : text[19] == '-' && hours <= 11;
}

bool is_base64(std::string_view text, const text_rule& rule) {
    std::size_t digits = 0;
    std::size_t padding = 0;
    unsigned last = 0;
    for (const char character : text) {
        const auto letter = [&](char first, unsigned base) {
            return base + static_cast<unsigned>(character - first);
        };
        if (character == ' ' || character == '\n' || character == '\t' || character == '\r') {
            continue;
        }
        if (character == '=') {
            ++padding;
            continue;
        }
        if (character >= 'A' && character <= 'Z') {
            last = letter('A', 0);
        } else if (character >= 'a' && character <= 'z') {
            last = letter('a', 26);
        } else if (is_digit(character)) {
            last = letter('0', 52);
        } else if (character == '+' || character == '/') {
            last = character == '+' ? 62 : 63;
        } else {
            return false;
        }
        if (padding != 0) {
            return false;
        }
        ++digits;
    }
    const unsigned left_over = padding == 0 ? 0 : padding == 1 ? 3 : 15;
    return (digits + padding) % 4 == 0 && padding <= 2 && (last & left_over) == 0 &&
           (rule.most == 0 || digits * 3 / 4 == rule.most);
}

bool fits(std::string_view text, const text_rule& rule) {
    using kind = text_rule::kind;
    switch (rule.is) {
    case kind::empty:
        return text.empty();
    case kind::text:
        return is_text(text, rule);
    case kind::word:
        return is_text(text, rule) && text.find(' ') == text.npos;
    case kind::digits:
        return is_between(text.size(), rule.least, rule.most) && all_digits(text);
    case kind::number:
        return is_number(text, rule);
    case kind::decimal:
        return is_decimal(text, rule);
    case kind::codes:
        return is_code(text, rule);
    case kind::like:
        return is_like(text, rule);
    case kind::date:
        return is_date(text);
    case kind::datetime:
        return is_datetime(text);
    case kind::aamm:
        return text.size() == 4 && pair_at(text, 0) <= 99 && is_month(pair_at(text, 2));
    case kind::aaaa_mm:
        return text.size() == 7 && all_digits(text.substr(0, 4)) && text >= "2025" &&
               text[4] == '-' && is_month(pair_at(text, 5));
    case kind::mm_aaaa:
        return text.size() == 7 && is_month(pair_at(text, 0)) && text[2] == '/' && text[3] == '2' &&
               all_digits(text.substr(4));
    case kind::base64:
        return is_base64(text, rule);
    }
    return false;
}

bool is_blank(std::string_view text) { return text.find_first_not_of(" \t\r\n") == text.npos; }

constexpr std::uint64_t bit(std::size_t position) { return std::uint64_t{1} << position; }

std::size_t lowest(std::uint64_t positions) {
    return static_cast<std::size_t>(std::countr_zero(positions));
}

/// Whether the present elements are what a group, or a part of it, demands. All are elements of it.
bool is_met(const group_rule& rule, std::uint64_t present) {
    if (present == 0) {
        return rule.may_be_empty;
    }
    if (rule.is == group_rule::kind::choice) {
        if ((present & rule.direct) == present && (present & (present - 1)) == 0) {
            return true;
        }
        for (const group_rule* part = rule.first_group(); part != nullptr;
             part = part->next_group()) {
            if ((present & ~part->elements) == 0 && is_met(*part, present)) {
                return true;
            }
        }
        return false;
    }
    if ((rule.demanded & ~present) != 0) {
        return false;
    }
    for (const group_rule* part = rule.first_group(); part != nullptr; part = part->next_group()) {
        if (!is_met(*part, present & part->elements)) {
            return false;
        }
    }
    return true;
}

/// A document that is being checked.
class checker {
public:
    explicit checker(const node& infnfe) : root_(infnfe) {}

    void check_group(const node& group, const element_rule& rule);

    /// What was found, in the order of the document.
    std::vector<fault> faults() && {
        std::sort(found_.begin(), found_.end(), [](const auto& left, const auto& right) {
            return std::pair(left.at, left.number) < std::pair(right.at, right.number);
        });
        std::vector<fault> result;
        for (placed_fault& placed : found_) {
            result.push_back(std::move(placed.what));
        }
        return result;
    }

private:
    struct placed_fault {
        const node* at;
        std::size_t number; // in the order of the check
        fault what;
    };
    /// A child of a group, with its rule.
    struct known_child {
        const node* element;
        const element_rule* rule;
    };

    void check_text(const node& element, const element_rule& rule);
    void check_numbers(const node& group, const element_rule& rule);
    void check_order(const node& group, const element_rule& rule);
    void check_order(const std::vector<known_child>& elements);
    void tell_unmet(const node& group, const element_rule& rule, const group_rule& part,
                    std::uint64_t present);
    void tell_excluded(const node& group, const element_rule& rule, std::uint64_t present);

    std::string path_of(const node& element) {
        if (!path_) {
            path_.emplace(root_);
        }
        return (*path_)(element);
    }
    void add(fault::kind kind, const node& at, std::string demanded) {
        found_.push_back(
            {&at, found_.size(), {kind, path_of(at), std::string(at.text), std::move(demanded)}});
    }
    void add_unknown(const node& element, const std::string& where) {
        const bool attribute = element.name.is_attribute();
        add(fault::kind::unknown, element,
            (attribute ? "no such attribute " : "no such element ") + where);
    }
    void add_missing(const node& group, std::string_view name, std::string demanded) {
        std::string path = name.empty() ? path_of(group) : path_below(path_of(group), name);
        found_.push_back({&group,
                          found_.size(),
                          {fault::kind::missing, std::move(path), {}, std::move(demanded)}});
    }

    const node& root_;
    std::optional<path_teller> path_; // made when there is something to tell
    std::vector<placed_fault> found_;
};

void checker::check_group(const node& group, const element_rule& rule) {
    std::uint64_t present = 0;
    unsigned expected = 0;
    unsigned previous = 0;
    unsigned in_a_row = 0;
    bool in_order = true;
    bool numbered = false;
    for (const node& child : children(group)) {
        const element_rule* const known = rule.child(child.name, expected);
        if (known == nullptr) {
            add_unknown(child, "in " + std::string(group.name));
            continue;
        }
        const unsigned position = known->position();
        if (known->is_attribute()) {
            in_order = in_order && (present & bit(position)) == 0;
        } else {
            in_a_row = position == previous ? in_a_row + 1 : 1;
            in_order = in_order && position >= previous && in_a_row <= known->most();
            previous = position;
        }
        present |= bit(position);
        expected = known->most() > 1 ? position : position + 1;
        if (known->is_group()) {
            numbered = numbered || known->numbered();
            check_group(child, *known);
        } else {
            check_text(child, *known);
        }
    }
    if (!in_order) {
        check_order(group, rule);
    }
    if (!is_met(rule.content(), present)) {
        tell_unmet(group, rule, rule.content(), present);
    }
    if (numbered) {
        check_numbers(group, rule);
    }
    if (!group.text.empty() && !is_blank(group.text)) {
        add(fault::kind::text_in_group, group, "elements alone");
    }
}

void checker::check_text(const node& element, const element_rule& rule) {
    if (!is_allowed(rule, element.text)) {
        add(fault::kind::wrong_text, element, demanded_text(rule));
    }
    for (const node& child : children(element)) {
        add_unknown(child, "beside a text");
    }
}

void checker::check_numbers(const node& group, const element_rule& rule) {
    std::bitset<unique_limit> taken;
    for (const node& child : children(group)) {
        const element_rule* const known = rule.child(child.name);
        for (const node& inner : children(child)) {
            const element_rule* const number =
                known == nullptr ? nullptr : known->child(inner.name);
            if (number == nullptr || !number->is_attribute()) {
                break;
            }
            unsigned value = 0;
            if (number->unique() && is_allowed(*number, inner.text)) {
                std::from_chars(inner.text.data(), inner.text.data() + inner.text.size(), value);
                if (taken[value]) {
                    add(fault::kind::number_repeats, inner,
                        "a number that no other " + std::string(child.name) + " has");
                }
                taken.set(value);
            }
        }
    }
}

void checker::check_order(const node& group, const element_rule& rule) {
    std::vector<known_child> elements;
    std::array<std::size_t, 64> total = {};
    for (const node& child : children(group)) {
        const element_rule* const known = rule.child(child.name);
        if (known == nullptr) {
            continue;
        }
        if (++total[known->position()] > known->most()) {
            add(fault::kind::too_many, child, "at most " + std::to_string(known->most()));
        } else if (!known->is_attribute()) {
            elements.push_back({&child, known});
        }
    }
    check_order(elements);
}

/// Tells as few elements as possible: those that do not belong to the longest row in order.
void checker::check_order(const std::vector<known_child>& elements) {
    const auto position = [&](std::size_t index) { return elements[index].rule->position(); };
    std::vector<std::size_t> row_ends; // for each length of a row, its lowest end
    std::vector<std::size_t> before(elements.size());
    /// The first of a row at some position or, where `behind` is set, behind that.
    const auto first_at = [&](const std::vector<std::size_t>& row, unsigned wanted, bool behind) {
        return std::partition_point(row.begin(), row.end(), [&](std::size_t index) {
            return position(index) < wanted || (behind && position(index) == wanted);
        });
    };
    for (std::size_t index = 0; index < elements.size(); ++index) {
        const auto replaced = first_at(row_ends, position(index), true);
        before[index] = replaced == row_ends.begin() ? index : *(replaced - 1);
        if (replaced == row_ends.end()) {
            row_ends.push_back(index);
        } else {
            row_ends[static_cast<std::size_t>(replaced - row_ends.begin())] = index;
        }
    }
    std::vector<std::size_t> row(row_ends.size());
    for (std::size_t length = row.size(), index = row.empty() ? 0 : row_ends.back(); length != 0;
         index = before[index]) {
        row[--length] = index;
    }
    auto in_row = row.begin();
    for (std::size_t index = 0; index < elements.size(); ++index) {
        if (in_row != row.end() && *in_row == index) {
            ++in_row;
            continue;
        }
        // were none of the row on the wrong side of it, the row would be longer
        const auto later = first_at(row, position(index), true);
        const bool too_late = later != row.end() && *later < index;
        const auto other = too_late ? later : first_at(row, position(index), false) - 1;
        add(fault::kind::out_of_order, *elements[index].element,
            (too_late ? "before " : "behind ") + std::string(elements[*other].rule->name()));
    }
}

/// What may stand at one place of a group: `CNPJ, CPF`, `vBC with pIPI, qUnid with vUnid`.
std::string branches(const element_rule& group, const group_rule& choice) {
    std::string result;
    const group_rule* const end = &choice + choice.size;
    for (const group_rule* branch = &choice + 1; branch != end; branch += branch->size) {
        result += result.empty() ? "" : ", ";
        std::uint64_t elements = branch->demanded != 0 ? branch->demanded : branch->elements;
        for (const char* between = ""; elements != 0; elements &= elements - 1) {
            result += between;
            result += group.children()[lowest(elements)].name();
            between = " with ";
        }
    }
    return result;
}

void checker::tell_unmet(const node& group, const element_rule& rule, const group_rule& part,
                         std::uint64_t present) {
    if (is_met(part, present)) {
        return;
    }
    if (part.is == group_rule::kind::choice) {
        if (present == 0) {
            add_missing(group, "", "one of " + branches(rule, part));
            return;
        }
        for (const group_rule* branch = part.first_group(); branch != nullptr;
             branch = branch->next_group()) {
            if ((present & ~branch->elements) == 0) {
                tell_unmet(group, rule, *branch, present);
                return;
            }
        }
        tell_excluded(group, rule, present);
        return;
    }
    for (std::uint64_t absent = part.demanded & ~present; absent != 0; absent &= absent - 1) {
        const element_rule& missing = rule.children()[lowest(absent)];
        std::string demanded;
        if (missing.nested() && present != 0) {
            demanded += "beside ";
            demanded += rule.children()[lowest(present)].name();
            demanded += ": ";
        }
        demanded += missing.is_group() ? "a group" : demanded_text(missing);
        add_missing(group, missing.name(), std::move(demanded));
    }
    for (const group_rule* inner = part.first_group(); inner != nullptr;
         inner = inner->next_group()) {
        tell_unmet(group, rule, *inner, present & inner->elements);
    }
}

void checker::tell_excluded(const node& group, const element_rule& rule, std::uint64_t present) {
    for (std::uint64_t rest = present; rest != 0; rest &= rest - 1) {
        const element_rule& later = rule.children()[lowest(rest)];
        for (std::uint64_t others = present & (bit(later.position()) - 1); others != 0;
             others &= others - 1) {
            const element_rule& earlier = rule.children()[lowest(others)];
            if (exclude_each_other(earlier, later)) {
                add(fault::kind::excluded, *child_named(group, later.name()),
                    "not beside " + std::string(earlier.name()));
                break;
            }
        }
    }
}

} // namespace

std::vector<fault> check(const node& infnfe) {
    checker result(infnfe);
    result.check_group(infnfe, infnfe_rule());
    return std::move(result).faults();
}

bool is_allowed(const element_rule& rule, std::string_view text) {
    const auto ways = rule.texts();
    return std::any_of(ways.begin(), ways.end(),
                       [&](const text_rule& way) { return fits(text, way); });
}

} // namespace kivo::erp::v12::layout
