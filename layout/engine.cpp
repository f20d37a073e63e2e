#include <layout/engine.hpp>

#include <layout/elements.hpp>

#include <algorithm>
#include <charconv>

namespace kivo::erp::v12::layout {

std::size_t table::find(const element_name& name, std::size_t expected) const {
    for (std::size_t at = expected; at < names.size(); ++at) {
        if (names[at].name == name) {
            return at;
        }
    }
    for (std::size_t at = 0; at < expected; ++at) {
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

} // namespace

reader::reader(const node& root, const element_rule* rule, outside_texts& outside,
               std::vector<placed_text>& kept, report& told)
    : path_(root), root_(&root), rule_(rule), outside_(&outside), kept_(&kept), told_(&told) {
    outside = {{}, {}, {}, {}, {}};
    for (const node* element = &root + 1; element != &root + root.size; ++element) {
        told.texts += element->holds_text() ? 1 : 0;
    }
}

void reader::take(const table& known, std::size_t name, const node& parent, const node& child,
                  void* object, frame& read) {
    const std::size_t index = known.names[name].entry;
    const table_entry& entry = known.entries[index];
    if ((read.seen_to & bit_of(index)) != 0) {
        return;
    }
    if ((read.taken & bit_of(entry.field)) != 0) {
        tell_no_room(child);
        return;
    }
    const taken result = entry.read(*this, parent, child, object);
    if (result.stored) {
        read.stored |= bit_of(index);
        read.taken |= bit_of(entry.field);
    }
    read.seen_to |= result.all ? bit_of(index) : 0;
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
                tell_no_field(child);
            }
            continue;
        }
        take(known, name, parent, child, object, read);
        if (name < last && !child.name.is_attribute()) {
            tell_moved(child, "behind those that the layout has before it");
        }
        last = child.name.is_attribute() ? last : name;
        expected = name;
    }
    if (parent.size > 1 && !parent.text.empty()) {
        told_->unknown.push_back(path_(parent) + "/text()");
    }
    return read;
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
    const frame read = read_elements(known, element, object, {});
    const bool stored = read.stored != 0 || (always && told_->refused.size() == refused);
    if (stored) {
        finish(known, read, element, object);
    } else if (element.size == 1) {
        const tree written =
            written_by(*outside_, [&](writer& out) { out.write_whole(known, object); });
        if (written.root().size == 1) {
            tell_no_room(element);
        }
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
            expected = name;
        }
    }
    if (read.stored != 0) {
        finish(known, read, parent, object);
    }
    return read.stored != 0;
}

void reader::finish(const table& known, const frame& read, const node& parent, const void* object) {
    const std::uint64_t open = (known.plain & ~read.stored) | known.conditional;
    if (open == 0) {
        return;
    }
    for (std::size_t index = 0; index < known.entries.size(); ++index) {
        const table_entry& entry = known.entries[index];
        const bool stored = (read.stored & bit_of(index)) != 0;
        if ((open & bit_of(index)) == 0) {
            continue;
        }
        if (entry.stands != nullptr && !entry.stands(object)) {
            for (const table_name& name : known.names) {
                const node* const element =
                    stored && name.entry == index ? child_named(parent, name.name) : nullptr;
                if (element != nullptr) {
                    tell_no_room(*element);
                }
            }
        } else if (!stored && entry.plain) {
            const tree written =
                written_by(*outside_, [&](writer& out) { entry.write(out, object); });
            for (const placed_text& text : texts_of(written.root())) {
                tell_added(parent, text.path, text.text);
            }
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
    std::string whole = path_(parent);
    whole += whole.empty() ? "" : "/";
    told_->added.push_back({whole += path, {}, std::string(text)});
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
    const std::string path = path_(element);
    tell_moved(element, path.substr(0, path.rfind('[')) + '[' + std::to_string(number) + ']');
}

const element_rule* reader::rule_of(const node& element) const {
    if (&element == root_) {
        return rule_;
    }
    const element_rule* const parent = rule_of(*(&element - element.up));
    return parent == nullptr ? nullptr : parent->child(element.name);
}

void reader::tell_no_field(const node& element) {
    std::string path = path_(element);
    const element_rule* const rule = rule_of(element);
    if (rule == nullptr) {
        (rule_ == nullptr ? told_->without_field : told_->unknown).push_back(std::move(path));
        return;
    }
    if (path.ends_with(']')) {
        // more of them than the layout takes cannot ride along
        const std::string_view number = std::string_view(path).substr(path.rfind('[') + 1);
        unsigned count = 0;
        std::from_chars(number.data(), number.data() + number.size(), count);
        if (count > rule->most()) {
            tell_no_room(element);
            return;
        }
    }
    told_->without_field.push_back(path);
    keep(element, *rule, path);
}

void reader::tell_no_field(const node& element, std::size_t number) {
    const element_rule* const rule = rule_of(element);
    const std::string path = path_(element);
    if (rule == nullptr || number > rule->most()) {
        tell_no_field(element);
        return;
    }
    told_->without_field.push_back(path);
    const std::string name = path.substr(0, path.ends_with(']') ? path.rfind('[') : path.npos);
    if (path.ends_with(']') && path != name + '[' + std::to_string(number) + ']') {
        tell_renumbered(element, number);
    }
    keep(element, *rule, name + '[' + std::to_string(number) + ']');
}

void reader::keep(const node& element, const element_rule& rule, const std::string& path) {
    if (element.size == 1 || (!rule.is_group() && !element.text.empty())) {
        kept_->push_back({path, std::string(element.text)});
    }
    path_teller below(element);
    for (const node& child : children(element)) {
        const element_rule* const inner = rule.child(child.name);
        const std::string child_path = path + '/' + below(child);
        if (inner == nullptr) {
            told_->unknown.push_back(child_path);
        } else {
            keep(child, *inner, child_path);
        }
    }
}

void reader::tell_no_room(const node& element) {
    told_->without_room.push_back({path_(element), std::string(element.text), {}});
}

void reader::tell_empty(const node& element) {
    if (element.size == 1) {
        tell_no_room(element);
    }
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
