#include <layout/kept.hpp>

#include <layout/elements.hpp>
#include <layout/path_tree.hpp>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kivo::erp::v12::layout {

namespace {

[[noreturn]] void refuse(const path_tree& kept, const std::string& reason) {
    throw std::invalid_argument(std::string(kept.path) + ": " + reason);
}

/// What stands in a group: written, kept, or both.
struct part {
    unsigned position;
    std::uint32_t number;
    const node* written;
    const path_tree* kept;
};

class merger {
public:
    explicit merger(tree& out) : out_(&out) {}

    /// Adds what is written in a group, or null where it is not there, and what is kept in it. The
    /// table knows what has a field there; null where nothing has.
    void add(const node* written, const path_tree& kept, const table* known,
             const element_rule& rule) {
        std::vector<part> parts;
        std::unordered_set<const path_tree*> met; // of what is kept, what is written, too
        if (written != nullptr) {
            std::string_view name;
            std::uint32_t number = 0; // elements of one name are written one behind the other
            for (const node& child : children(*written)) {
                number = child.name == name ? number + 1 : 1;
                name = child.name;
                const path_tree* const beside = kept.find(name, number);
                if (beside != nullptr) {
                    met.insert(beside);
                }
                parts.push_back({0, number, &child, beside});
            }
        }
        if (met.size() != kept.inner.size()) {
            for (part& each : parts) {
                const element_rule* const own = rule.child(each.written->name);
                each.position = own == nullptr ? 0 : own->position();
            }
            counts_by_name counts;
            for (const path_tree& element : kept.inner) {
                if (!met.contains(&element)) {
                    parts.push_back(checked(element, known, rule, written, counts));
                }
            }
            std::sort(parts.begin(), parts.end(), [](const part& left, const part& right) {
                return std::tie(left.position, left.number) <
                       std::tie(right.position, right.number);
            });
        }
        for (const part& each : parts) {
            add(each, known, rule);
        }
    }

private:
    /// How many elements of a name stand in a group so far, for those names that were asked for.
    using counts_by_name = std::unordered_map<std::string_view, std::uint32_t>;

    static std::uint32_t number_of_next(std::string_view name, const node* written,
                                        counts_by_name& counts) {
        const auto [count, asked_first] = counts.try_emplace(name, 0);
        if (asked_first && written != nullptr) {
            const children group(*written);
            count->second = static_cast<std::uint32_t>(std::count_if(
                group.begin(), group.end(), [&](const node& child) { return child.name == name; }));
        }
        return ++count->second;
    }

    /// A kept element that is not written, if it can stand in its group.
    static part checked(const path_tree& element, const table* known, const element_rule& rule,
                        const node* written, counts_by_name& counts) {
        const table_name* const field = find(known, element.name);
        if (field != nullptr && field->inner == nullptr) {
            refuse(element, "the element has a field");
        }
        if (field != nullptr && field->of_object) {
            refuse(element, "the invoice has no such " + std::string(element.name));
        }
        const element_rule* const own = rule.child(element.name);
        if (own == nullptr) {
            refuse(element, "the layout has no " + std::string(element.name) + " there");
        }
        if (element.number > own->most()) {
            refuse(element, "the layout takes no more than " + std::to_string(own->most()));
        }
        if (element.number != number_of_next(element.name, written, counts)) {
            refuse(element,
                   "number " + std::to_string(element.number) + " without those before it");
        }
        return {own->position(), element.number, nullptr, &element};
    }

    static const table_name* find(const table* known, std::string_view name) {
        const std::size_t at = known == nullptr ? table::none : known->find(name);
        return at == table::none ? nullptr : &known->names[at];
    }

    void add(const part& each, const table* known, const element_rule& rule) {
        if (each.kept == nullptr) {
            out_->add(*each.written);
            return;
        }
        const path_tree& kept = *each.kept;
        const element_rule& own = *rule.child(kept.name);
        const table_name* const field = find(known, kept.name);
        if (field != nullptr && field->inner == nullptr) {
            refuse(kept, "the element has a field");
        }
        if (own.is_group() ? kept.text && !kept.text->empty() : !kept.inner.empty()) {
            refuse(kept, own.is_group() ? "the element is a group" : "the element is a text");
        }
        if (each.written != nullptr) {
            out_->open(each.written->name, each.written->text);
        } else {
            out_->open(element_name(out_->keep(kept.name)), out_->keep(kept.text.value_or("")));
        }
        add(each.written, kept, field == nullptr ? nullptr : field->inner, own);
        out_->close();
    }

    tree* out_;
};

} // namespace

void add_with_kept(tree& out, tree written, const std::vector<placed_text>& kept,
                   const table& known) {
    path_tree all{written.root().name};
    for (const placed_text& placed : kept) {
        all.add(placed);
    }
    out.expect(out.size() + written.root().size + kept.size());
    out.open(written.root().name);
    merger(out).add(&written.root(), all, &known, infnfe_rule());
    out.close();
    out.adopt_texts(written);
}

} // namespace kivo::erp::v12::layout
