#include "round_trip.hpp"

#include "samples.hpp"

#include <layout/check.hpp>
#include <layout/elements.hpp>
#include <layout/invoice.hpp>
#include <layout/xml_text.hpp>

#include <algorithm>
#include <charconv>
#include <tuple>
#include <utility>
#include <vector>

namespace kivo::tests {

using namespace erp::v12::layout;

namespace {

/// An element of a document, and what a report tells of it.
struct told_element {
    std::string name;
    std::string text;
    std::vector<told_element> inner;
    unsigned place = 1;   ///< among those of its name, in the document
    unsigned number = 1;  ///< the same, in the document that is written
    bool added = false;   ///< was not in the document
    bool removed = false; ///< is not written
    bool moved = false;   ///< is written behind others
    bool lost = false;    ///< held more in the document

    bool is_attribute() const { return name.starts_with('@'); }
    /// Whether all that was in it is gone.
    bool hollow() const {
        return (lost || !inner.empty()) && text.empty() &&
               std::all_of(inner.begin(), inner.end(), [](auto& each) { return each.hollow(); });
    }
};

told_element copy_of(const node& copied) {
    told_element result;
    result.name = copied.name.text();
    result.text = copied.text;
    for (const node& child : children(copied)) {
        told_element& added = result.inner.emplace_back(copy_of(child));
        added.place = static_cast<unsigned>(
            std::count_if(result.inner.begin(), result.inner.end(),
                          [&](const told_element& each) { return each.name == added.name; }));
        added.number = added.place;
    }
    return result;
}

/// Takes the first name off a path, with its number.
std::pair<std::string_view, unsigned> take_step(std::string_view& path) {
    std::string_view name = path.substr(0, path.find('/'));
    path.remove_prefix(std::min(name.size() + 1, path.size()));
    unsigned number = 1;
    if (const std::size_t bracket = name.find('['); bracket != name.npos) {
        std::from_chars(name.data() + bracket + 1, name.data() + name.size(), number);
        name = name.substr(0, bracket);
    }
    return {name, number};
}

/// Applies a report to the document that it is about.
class applied_report {
public:
    applied_report(const node& document, const report& told) : root_(copy_of(document)) {
        for (const std::string& path : told.unknown) {
            remove(path);
        }
        for (const auto* const list : {&told.refused, &told.without_room}) {
            for (const report::remark& remark : *list) {
                if (told_element* const element = remove(remark.path);
                    element != nullptr && element->text != remark.text) {
                    faults_.push_back(remark.path + ": is told with another text");
                }
            }
        }
        for (const report::remark& remark : told.written_otherwise) {
            change(remark);
        }
        for (const report::remark& remark : told.added) {
            add(remark);
        }
        for (const std::string& path : told.without_field) {
            if (find(path) == nullptr) {
                faults_.push_back(path + ": is told, and not there");
            }
        }
        check_moves(root_, infnfe_rule());
        sweep(root_);
        sort(root_, &infnfe_rule());
    }

    /// Compares what came of the document with what is written.
    std::vector<std::string> compared_with(const node& written) {
        compare(root_, written, "");
        return std::move(faults_);
    }

private:
    /// The element at a path of the document, or of the one that is written; null where there is
    /// none.
    told_element* find(std::string_view path, bool written = false) {
        told_element* at = &root_;
        while (!path.empty() && at != nullptr) {
            const auto [name, number] = take_step(path);
            told_element* next = nullptr;
            for (told_element& each : at->inner) {
                if (each.name == name && each.place == number &&
                    !(written ? each.removed : each.added)) {
                    next = &each;
                }
            }
            at = next;
        }
        return at;
    }

    told_element* remove(const std::string& path) {
        constexpr std::string_view own_text = "/text()";
        const bool is_text = path.ends_with(own_text) || path == "text()";
        told_element* const element = find(
            is_text ? path.substr(0, path.size() - std::min(path.size(), own_text.size())) : path);
        if (element == nullptr) {
            faults_.push_back(path + ": is told, and not there");
        } else if (is_text) {
            element->text.clear();
            element->lost = true;
        } else {
            if (element->removed) {
                faults_.push_back(path + ": is told twice to be gone");
            }
            element->removed = true;
        }
        return element;
    }

    void change(const report::remark& remark) {
        told_element* const element = find(remark.path);
        if (element == nullptr) {
            faults_.push_back(remark.path + ": is told, and not there");
        } else if (remark.instead == "in the layout's order") {
            if (element->moved) {
                faults_.push_back(remark.path + ": is told twice to move");
            }
            element->moved = true;
        } else if (const std::size_t bracket = remark.path.rfind('[');
                   remark.path.ends_with(']') &&
                   remark.instead.starts_with(remark.path.substr(0, bracket + 1))) {
            std::from_chars(remark.instead.data() + bracket + 1,
                            remark.instead.data() + remark.instead.size(), element->number);
        } else {
            if (remark.text != element->text || remark.instead == element->text) {
                faults_.push_back(remark.path + ": is told to be changed, and is not");
            }
            element->text = remark.instead;
        }
    }

    void add(const report::remark& remark) {
        std::string_view rest = remark.path;
        std::string_view known = rest;
        told_element* parent = find(known, true);
        if (parent != nullptr) {
            faults_.push_back(remark.path + ": is told to be added, and was there");
            return;
        }
        while (parent == nullptr) {
            const std::size_t slash = known.rfind('/');
            known = known.substr(0, slash == known.npos ? 0 : slash);
            parent = find(known, true);
        }
        rest.remove_prefix(known.empty() ? 0 : known.size() + 1);
        while (!rest.empty()) {
            const auto [name, number] = take_step(rest);
            parent = &parent->inner.emplace_back();
            parent->name = name;
            parent->place = parent->number = number;
            parent->added = true;
        }
        parent->text = remark.instead;
    }

    /// What is not told to move stands in the order in which it is written, and what is told to
    /// move does not.
    void check_moves(const told_element& parent, const element_rule& rule) {
        std::vector<std::pair<unsigned, const told_element*>> known; // by position
        for (const told_element& each : parent.inner) {
            const element_rule* const own = rule.child(each.name);
            if (each.removed && each.moved) {
                faults_.push_back(rule.path() + ": what is gone is told to move");
            }
            if (own == nullptr || each.is_attribute() || each.added || each.removed) {
                continue;
            }
            known.emplace_back(own->position(), &each);
            check_moves(each, *own);
        }
        unsigned last = 0;
        for (const auto& [position, element] : known) {
            if (!element->moved) {
                if (position < last) {
                    faults_.push_back(rule.path() + ": its elements move, which is not told");
                }
                last = position;
                continue;
            }
            const auto passed = [&, place = position, own = element](const auto& other) {
                return !other.second->moved &&
                       (other.second < own ? other.first > place : other.first < place);
            };
            if (std::none_of(known.begin(), known.end(), passed)) {
                faults_.push_back(rule.path() + ": an element is told to move, and does not");
            }
        }
    }

    void sweep(told_element& parent) {
        parent.lost = std::erase_if(parent.inner, [](auto& each) { return each.removed; }) != 0 ||
                      parent.lost;
        for (told_element& each : parent.inner) {
            sweep(each);
        }
    }

    static void sort(told_element& parent, const element_rule* rule) {
        const auto place = [&](const told_element& each) {
            const element_rule* const own = rule == nullptr ? nullptr : rule->child(each.name);
            return std::tuple(!each.is_attribute(),
                              each.is_attribute() ? std::string_view(each.name) : "",
                              own == nullptr ? 0 : own->position(), each.number);
        };
        std::stable_sort(parent.inner.begin(), parent.inner.end(),
                         [&](const told_element& left, const told_element& right) {
                             return place(left) < place(right);
                         });
        for (told_element& each : parent.inner) {
            sort(each, rule == nullptr ? nullptr : rule->child(each.name));
        }
    }

    void compare(const told_element& expected, const node& written, const std::string& path) {
        if (expected.text != written.text) {
            faults_.push_back(path + ": \"" + std::string(written.text) + "\" is written for \"" +
                              expected.text + '"');
        }
        std::vector<const node*> actual;
        for (const node& child : children(written)) {
            actual.push_back(&child);
        }
        std::stable_sort(actual.begin(), actual.end(), [](const node* left, const node* right) {
            const auto name = [](const node* each) {
                return each->name.is_attribute() ? each->name.text() : "~";
            };
            return name(left) < name(right);
        });
        auto next = actual.begin();
        for (const told_element& each : expected.inner) {
            const std::string child_path = path + (path.empty() ? "" : "/") + each.name;
            const auto left_of = [&](auto begin, auto end, auto name) {
                return std::count_if(begin, end,
                                     [&](const auto& other) { return name(other) == each.name; });
            };
            const auto expected_left =
                left_of(&each, &expected.inner.back() + 1,
                        [](const told_element& other) { return std::string_view(other.name); });
            const auto written_left =
                left_of(next, actual.end(), [](const node* other) { return other->name.text(); });
            if (each.hollow() && expected_left > written_left) {
                continue; // nothing in it is written
            }
            if (next != actual.end() && (*next)->name == each.name) {
                compare(each, **next, child_path);
                ++next;
            } else {
                faults_.push_back(child_path + ": is not written there");
            }
        }
        if (next != actual.end()) {
            faults_.push_back(path + '/' + std::string((*next)->name) +
                              ": is written, and not told");
        }
    }

    told_element root_;
    std::vector<std::string> faults_;
};

bool is_below(std::string_view path, const std::string& group) {
    return path.starts_with(group) && (path.size() == group.size() || path[group.size()] == '/');
}

/// The same path without numbers that may be left out: 1, and that of an element of which only one
/// is written.
std::string plain_path(std::string_view path) {
    std::string result;
    const element_rule* rule = &infnfe_rule();
    while (!path.empty()) {
        const auto [name, number] = take_step(path);
        rule = rule == nullptr ? nullptr : rule->child(name);
        result += result.empty() ? "" : "/";
        result += name;
        if (number > 1 && (rule == nullptr || rule->most() > 1)) {
            result += '[' + std::to_string(number) + ']';
        }
    }
    return result;
}

/// Whether all that rides along is told to have no field, and the other way round.
void check_kept(const invoice_document& document, std::vector<std::string>& result) {
    std::vector<std::string> groups = document.report.without_field;
    for (const report::remark& remark : document.report.written_otherwise) {
        if (remark.text.empty() && remark.instead.ends_with(']')) {
            std::replace(groups.begin(), groups.end(), remark.path, remark.instead);
        }
    }
    std::vector<bool> met(groups.size());
    for (const placed_text& kept : document.kept) {
        bool told = false;
        for (std::size_t index = 0; index < groups.size(); ++index) {
            const bool below = is_below(plain_path(kept.path), plain_path(groups[index]));
            met[index] = met[index] || below;
            told = told || below;
        }
        if (!told) {
            result.push_back(kept.path + ": rides along, and is not told");
        }
    }
    for (std::size_t index = 0; index < groups.size(); ++index) {
        if (!met[index]) {
            result.push_back(groups[index] + ": is told to ride along, and does not");
        }
    }
}

} // namespace

std::vector<std::string> faults_of_round_trip(std::string_view xml) {
    const tree original = parse_xml(xml);
    const node& infnfe = invoice_in(original);
    const invoice_document document = read_document(original);
    const tree written = write_tree(document.invoice, document.outside, document.kept);
    std::vector<std::string> result =
        applied_report(infnfe, document.report).compared_with(written.root());
    check_kept(document, result);

    const std::string written_xml = write_xml(document);
    const invoice_document again = read_xml(written_xml);
    const report& told = again.report;
    for (const auto* const list :
         {&told.refused, &told.written_otherwise, &told.without_room, &told.added}) {
        for (const report::remark& remark : *list) {
            result.push_back(remark.path + ": \"" + remark.text + "\", \"" + remark.instead +
                             "\" is told of what was written");
        }
    }
    for (const std::string& path : told.unknown) {
        result.push_back(path + ": was written, and is unknown");
    }
    if (write_xml(again) != written_xml) {
        result.emplace_back("what was written is written otherwise the next time");
    }
    // what had no room may still be in the object, as an IPITrib is beside the code of an IPINT
    if (document.report.without_room.empty() && texts(again.invoice) != texts(document.invoice)) {
        result.emplace_back("what was written is read as another invoice");
    }
    const auto sorted = [](std::vector<placed_text> kept) {
        for (placed_text& each : kept) {
            each.path = plain_path(each.path);
        }
        std::sort(kept.begin(), kept.end(), [](const placed_text& left, const placed_text& right) {
            return left.path < right.path;
        });
        return kept;
    };
    if (sorted(again.kept) != sorted(document.kept)) {
        result.emplace_back("what was written rides along otherwise");
    }
    if (document.report.refused.empty() && check(infnfe).empty()) {
        for (const fault& found : check(written.root())) {
            result.push_back(found.path + ": \"" + found.text +
                             "\" is no longer allowed: " + found.demanded);
        }
    }
    return result;
}

} // namespace kivo::tests
