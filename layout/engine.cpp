#include <layout/engine.hpp>

#include <layout/elements.hpp>

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace kivo::erp::v12::layout {

std::size_t table::search(const element_name& name, std::size_t expected) const {
    // the one before the expected, again, comes next to those behind it
    const std::size_t begin = expected == 0 ? 0 : expected - 1;
    for (std::size_t at = begin; at < names.size(); ++at) {
        if (names[at].name == name) {
            return at;
        }
    }
    for (std::size_t at = 0; at < begin; ++at) {
        if (names[at].name == name) {
            return at;
        }
    }
    return none;
}

bool table::knows_content_of(const node& element) const {
    const children content(element);
    return std::any_of(content.begin(), content.end(),
                       [&](const node& child) { return find(child.name) != none; });
}

namespace {

std::uint64_t bit_of(std::size_t entry) { return std::uint64_t{1} << entry; }

/// What a table writes of an object, or one of its entries, below an element without a name.
template <class Write> tree written_by(const outside_texts& outside, Write write) {
    tree result;
    writer out(result, outside);
    result.open("");
    write(out);
    result.close();
    return result;
}

/// Calls `visit(child, position)` for all in a group that has a place among the others.
template <class Visit>
void for_each_in_place(const node& group, const element_rule& rule, Visit visit) {
    for (const node& child : children(group)) {
        const element_rule* const own =
            child.name.is_attribute() ? nullptr : rule.child(child.name);
        if (own != nullptr) {
            visit(child, own->position());
        }
    }
}

/// Whether what the layout knows in a group stands in its order there.
bool in_order(const node& group, const element_rule* rule) {
    unsigned last = 0;
    bool result = true;
    if (rule != nullptr) {
        for_each_in_place(group, *rule, [&](const node&, unsigned position) {
            result = result && position >= last;
            last = position;
        });
    }
    return result;
}

/// An element that the layout knows in its group.
struct known_child {
    const node* element;
    unsigned position;
    bool has_field;
};

/// The fewest elements that have to move for all to stand in the layout's order; of two that could,
/// the one without a field, and else the later one. All positions are below a limit.
std::vector<const node*> moved_among(const std::vector<known_child>& known, std::size_t limit) {
    constexpr auto none = static_cast<std::size_t>(-1);
    // of those that may stay, by the position of the last: how much they are, and which is the last
    std::vector<std::uint64_t> most(limit, 0);
    std::vector<std::size_t> last(limit, none);
    std::vector<std::size_t> before(known.size(), none);
    for (std::size_t index = 0; index < known.size(); ++index) {
        const known_child& own = known[index];
        const auto up_to_own = most.begin() + own.position + 1;
        const auto longest = std::max_element(most.begin(), up_to_own);
        before[index] = last[static_cast<std::size_t>(longest - most.begin())];
        most[own.position] = *longest + known.size() + (own.has_field ? 1 : 0);
        last[own.position] = index;
    }
    std::vector<bool> stays(known.size(), false);
    const auto longest = std::max_element(most.rbegin(), most.rend());
    for (std::size_t index = last[static_cast<std::size_t>(most.rend() - longest) - 1];
         index != none; index = before[index]) {
        stays[index] = true;
    }
    std::vector<const node*> result;
    for (std::size_t index = 0; index < known.size(); ++index) {
        if (!stays[index]) {
            result.push_back(known[index].element);
        }
    }
    return result;
}

} // namespace

reader::reader(const node& root, const table& known, const element_rule* rule,
               outside_texts& outside, std::vector<placed_text>& kept, report& told)
    : path_(root), root_(&root), known_(&known), rule_(rule), outside_(&outside), kept_(&kept),
      told_(&told) {
    outside = {{}, {}, {}, {}, {}};
    for (const node* element = &root + 1; element != &root + root.size; ++element) {
        told.texts += element->holds_text() ? 1 : 0;
    }
}

// into both its callers: it is called for every element
[[gnu::always_inline]] inline void reader::take(const table& known, std::size_t name,
                                                const node& parent, const node& child, void* object,
                                                frame& read) {
    const std::size_t index = known.names[name].entry;
    const table_entry& entry = known.entries[index];
    if ((read.seen_to & bit_of(index)) != 0) {
        return;
    }
    if ((read.taken & bit_of(entry.field)) != 0) {
        tell_no_room(child);
        return;
    }
    const std::size_t kept = kept_->size();
    const taken result = entry.read(*this, parent, child, object);
    if (result.stored) {
        read.stored |= bit_of(index);
        if ((read.empty & bit_of(index)) != 0) {
            tell_lost_before(known.names[name], parent, child);
        }
    } else {
        read.empty |= bit_of(index);
    }
    // what rides along takes the room, too: there can be no second of its path
    if (result.stored || kept_->size() != kept) {
        read.taken |= bit_of(entry.field);
    }
    read.seen_to |= result.all ? bit_of(index) : 0;
}

void reader::tell_lost_before(const table_name& name, const node& parent, const node& stored) {
    for (const node* before = &parent + 1; before != &stored; before += before->size) {
        if (before->name == stored.name) {
            tell_lost(name, *before, nullptr);
        }
    }
}

frame reader::read_elements(const table& known, const node& parent, void* object,
                            std::string_view numbering) {
    frame read;
    std::size_t last = 0;
    std::size_t expected = 0;
    for (const node& child : children(parent)) {
        const std::size_t name = known.find(child.name, expected);
        if (name == table::none) {
            if (numbering.empty() || child.name != numbering) {
                tell_unread(child);
            }
            continue;
        }
        take(known, name, parent, child, object, read);
        if (name < last && !child.name.is_attribute()) {
            if (rule_ == nullptr) {
                tell_moved(child, "in the layout's order");
            } else {
                mixed_.insert(&parent);
            }
        }
        last = child.name.is_attribute() ? last : std::max(last, name);
        expected = name + 1;
    }
    tell_text_in_group(parent);
    return read;
}

void reader::read(void* object) {
    read_whole(*known_, *root_, object);
    if (!mixed_.empty()) {
        tell_order();
    }
}

void reader::read_whole(const table& known, const node& parent, void* object,
                        std::string_view numbering) {
    finish(known, read_elements(known, parent, object, numbering), parent, object);
}

void reader::read_item(const table& known, const node& element, void* object,
                       std::string_view numbering, std::size_t number) {
    const node* const attribute = numbering.empty() ? nullptr : child_named(element, numbering);
    if (attribute != nullptr) {
        value_chars own;
        own.put_number(number, {});
        tell_held(*attribute, own.text());
    } else if (!numbering.empty()) {
        tell_added(element, numbering, std::to_string(number));
    }
    read_whole(known, element, object, numbering);
}

bool reader::read_group(const table& known, const node& element, void* object, bool always) {
    const std::size_t refused = told_->refused.size();
    const std::size_t kept = kept_->size();
    const frame read = read_elements(known, element, object, {});
    const bool whole = told_->refused.size() == refused || kept_->size() != kept;
    const bool stored = read.stored != 0 || (always && whole);
    if (stored) {
        finish(known, read, element, object);
    }
    return stored;
}

bool reader::read_embedded(const table& known, const node& parent, const node& first,
                           void* object) {
    frame read;
    std::size_t expected = 0;
    for (const node* child = &first; child != &parent + parent.size; child += child->size) {
        const std::size_t name = known.find(child->name, expected);
        if (name != table::none) {
            take(known, name, parent, *child, object, read);
            expected = name + 1;
        }
    }
    if (read.stored != 0) {
        finish(known, read, parent, object);
    }
    return read.stored != 0;
}

void reader::finish(const table& known, const frame& read, const node& parent, const void* object) {
    const std::uint64_t all = ~std::uint64_t{0} >> (64 - known.entries.size());
    const std::uint64_t open = (all & ~read.stored) | known.conditional;
    if ((open & (known.plain | known.conditional)) == 0 && read.empty == 0) {
        return;
    }
    for (std::size_t index = 0; index < known.entries.size(); ++index) {
        if ((open & bit_of(index)) == 0) {
            continue;
        }
        const table_entry& entry = known.entries[index];
        const bool stored = (read.stored & bit_of(index)) != 0;
        const bool stands = entry.stands == nullptr || entry.stands(object);
        tree written;
        if (!stored && stands && (known.plain & bit_of(index)) != 0) {
            written = written_by(*outside_, [&](writer& out) { entry.write(out, object); });
            for (const placed_text& text : texts_of(written.root())) {
                const std::string_view path = text.path;
                const std::size_t name = known.find(path);
                // a group is still there when all that was in it was refused
                if (name == table::none || known.names[name].inner == nullptr ||
                    child_named(parent, path) == nullptr) {
                    tell_added(parent, path, text.text);
                }
            }
        }
        for (const table_name& name : known.names) {
            const node* const element =
                name.entry == index ? child_named(parent, name.name) : nullptr;
            if (element != nullptr && !stored) {
                tell_lost(name, *element, written.empty() ? nullptr : &written.root());
                for (const node& other : children(parent, *element)) {
                    if (other.name == name.name) {
                        tell_lost(name, other, nullptr);
                    }
                }
            } else if (element != nullptr && !stands) {
                take_back(*element);
                tell_no_room(*element);
            }
        }
    }
}

void reader::take_back(const node& element) {
    const auto is_in = [](const std::string& group) {
        return [group = group + '/'](const auto& told) {
            if constexpr (requires { told.path; }) {
                return told.path.starts_with(group);
            } else {
                return told.starts_with(group);
            }
        };
    };
    std::erase_if(told_->added, is_in(path_(element)));
    std::erase_if(told_->without_field, is_in(path_(element)));
    std::erase_if(*kept_, is_in(written_path(element)));
}

void reader::tell_lost(const table_name& name, const node& element, const node* written_parent) {
    const node* const written =
        written_parent == nullptr ? nullptr : child_named(*written_parent, name.name);
    if (name.inner == nullptr) {
        return;
    }
    if (element.size == 1 && element.text.empty() && written == nullptr) {
        tell_no_room(element);
    }
    for (const table_name& inner : name.inner->names) {
        if (const node* const child = child_named(element, inner.name)) {
            tell_lost(inner, *child, written);
        }
    }
}

const core::v7::optional<std::string>* reader::read_string(const node& element, bool empty_too,
                                                           std::string_view prefix) {
    if (!element.text.starts_with(prefix)) {
        tell_refused(element, std::string(prefix) + " and a text behind it");
        return nullptr;
    }
    const std::string_view text = element.text.substr(prefix.size());
    if (text.empty() && !empty_too) {
        tell_refused(element, prefix.empty() ? "a text that is not empty"
                                             : std::string(prefix) + " and a text behind it");
        return nullptr;
    }
    if (!string_) {
        string_.emplace();
    }
    *string_ = text;
    tell_held(element);
    return &string_;
}

void reader::tell_otherwise(const node& element, std::string_view own) {
    told_->written_otherwise.push_back(
        {path_(element), std::string(element.text), std::string(own)});
}

void reader::tell_refused(const node& element, std::string expected) {
    told_->refused.push_back({path_(element), std::string(element.text), std::move(expected)});
    tell_inner(element);
}

void reader::tell_added(const node& parent, std::string_view path, std::string_view text) {
    told_->added.push_back({path_below(path_(parent), path), {}, std::string(text)});
}

void reader::tell_inner(const node& element) {
    for (const node& child : children(element)) {
        tell_no_field(child);
    }
}

void reader::tell_moved(const node& element, std::string to) {
    told_->written_otherwise.push_back({path_(element), {}, std::move(to)});
}

void reader::tell_renumbered(const node& element, std::size_t number) {
    tell_moved(element,
               path_below(path_(*(&element - element.up)), with_number(element.name, number)));
    renumbered_[&element] = static_cast<std::uint32_t>(number);
}

const element_rule* reader::rule_of(const node& element) const {
    if (&element == root_) {
        return rule_;
    }
    const element_rule* const parent = rule_of(*(&element - element.up));
    return parent == nullptr ? nullptr : parent->child(element.name);
}

void reader::tell_text_in_group(const node& group) {
    if (!group.text.empty()) {
        told_->unknown.push_back(path_below(path_(group), "text()"));
    }
}

void reader::tell_order() {
    std::erase_if(mixed_, [&](const node* group) { return in_order(*group, rule_of(*group)); });
    std::unordered_set<std::string_view> gone;
    for (const auto* const list : {&told_->refused, &told_->without_room}) {
        for (const report::remark& remark : *list) {
            gone.insert(remark.path);
        }
    }
    const auto is_gone = [&](const node& element) { return gone.contains(path_(element)); };
    for (const node* const group : mixed_) {
        const node* above = group;
        while (above != root_ && !is_gone(*above)) {
            above -= above->up;
        }
        if (above != root_) {
            continue;
        }
        const element_rule& rule = *rule_of(*group);
        std::vector<known_child> known;
        for_each_in_place(*group, rule, [&](const node& child, unsigned position) {
            if (!is_gone(child)) {
                known.push_back({&child, position, has_field(child)});
            }
        });
        for (const node* const element : moved_among(known, rule.children().size())) {
            tell_moved(*element, "in the layout's order");
        }
    }
}

std::string reader::written_path(const node& element) {
    if (&element == root_) {
        return {};
    }
    const element_rule* const rule = rule_of(element);
    const auto other = renumbered_.find(&element);
    std::uint32_t number = 0; // one alone is written, whichever of several it was
    if (other != renumbered_.end()) {
        number = other->second;
    } else if (rule != nullptr && rule->most() > 1) {
        number = path_.number_of(element);
    }
    return path_below(written_path(*(&element - element.up)), with_number(element.name, number));
}

const table* reader::table_of(const node& element) const {
    if (&element == root_) {
        return known_;
    }
    const table* const parent = table_of(*(&element - element.up));
    const std::size_t at = parent == nullptr ? table::none : parent->find(element.name);
    return at == table::none ? nullptr : parent->names[at].inner;
}

bool reader::has_field(const node& element) const {
    const table* const parent = table_of(*(&element - element.up));
    return parent != nullptr && parent->find(element.name) != table::none;
}

bool reader::rides_along(const node& element) const {
    const element_rule* const rule = rule_of(element);
    const children content(element);
    return rule != nullptr && std::any_of(content.begin(), content.end(), [&](const node& child) {
               return rule->child(child.name) != nullptr;
           });
}

void reader::tell_unread(const node& element) {
    if (has_field(element)) {
        tell_no_room(element);
    } else {
        tell_no_field(element);
    }
}

void reader::tell_no_field(const node& element) {
    std::string path = path_(element);
    const element_rule* const rule = rule_of(element);
    if (rule == nullptr) {
        (rule_ == nullptr ? told_->without_field : told_->unknown).push_back(std::move(path));
    } else if (path_.number_of(element) > rule->most()) {
        tell_no_room(element);
    } else {
        mixed_.insert(&element - element.up);
        told_->without_field.push_back(std::move(path));
        keep(element, *rule, written_path(element));
    }
}

void reader::keep(const node& element, const element_rule& rule, const std::string& path) {
    const std::size_t kept = kept_->size();
    if (rule.is_group()) {
        mixed_.insert(&element);
        tell_text_in_group(element);
    } else if (!element.text.empty()) {
        kept_->push_back({path, std::string(element.text)});
    }
    for (const node& child : children(element)) {
        const element_rule* const inner = rule.child(child.name);
        const std::uint32_t number = path_.number_of(child);
        if (inner == nullptr) {
            told_->unknown.push_back(path_(child));
        } else if (number > inner->most()) {
            tell_no_room(child);
        } else {
            keep(child, *inner,
                 path_below(path, with_number(child.name, inner->most() > 1 ? number : 0)));
        }
    }
    if (kept_->size() == kept) {
        kept_->push_back({path, {}});
    }
}

void reader::tell_no_room(const node& element) {
    told_->without_room.push_back({path_(element), std::string(element.text), {}});
}

void writer::write_whole(const table& known, const void* object) {
    for (const table_entry& entry : known.entries) {
        if (entry.stands == nullptr || entry.stands(object)) {
            entry.write(*this, object);
        }
    }
}

void writer::write_item(const table& known, const element_name& name, const void* object,
                        std::string_view numbering, std::size_t number) {
    out_->open(name);
    if (!numbering.empty()) {
        write_single(numbering, {}, std::uint64_t{number});
    }
    write_whole(known, object);
    out_->close();
}

void writer::write_group(const table& known, const element_name& name, const void* object,
                         bool always) {
    out_->open(name);
    write_whole(known, object);
    if (always) {
        out_->close();
    } else {
        out_->close_unless_empty();
    }
}

void writer::add(const element_name& name, std::string_view prefix, std::string_view text) {
    if (prefix.empty()) {
        out_->add(name, out_->keep(text));
        return;
    }
    char* const kept = out_->place(prefix.size() + text.size());
    prefix.copy(kept, prefix.size());
    text.copy(kept + prefix.size(), text.size());
    out_->add(name, {kept, prefix.size() + text.size()});
}

} // namespace kivo::erp::v12::layout
