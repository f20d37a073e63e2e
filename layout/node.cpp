#include <layout/node.hpp>

#include <algorithm>
#include <map>

namespace kivo::erp::v12::layout {

node* node::next_unread(std::string_view child_name) {
    const auto found = std::find_if(children.begin(), children.end(), [&](const node& child) {
        return child.reading == state::unread && child.name == child_name;
    });
    return found == children.end() ? nullptr : &*found;
}

namespace {

bool holds_text(const node& element) { return element.children.empty() || !element.text.empty(); }

std::size_t count_texts(const node& element) {
    std::size_t count = holds_text(element) ? 1 : 0;
    for (const node& child : element.children) {
        count += count_texts(child);
    }
    return count;
}

std::string numbered_path(const std::string& parent_path, std::string_view name, std::size_t number,
                          std::size_t total) {
    std::string path = parent_path;
    path += name;
    return total > 1 ? path + '[' + std::to_string(number) + ']' : path;
}

/// Calls `visit` with each child and its path.
template <class Visit>
void for_each_child(const node& parent, const std::string& parent_path, Visit visit) {
    std::map<std::string_view, std::size_t> total;
    for (const node& child : parent.children) {
        ++total[child.name];
    }
    std::map<std::string_view, std::size_t> seen;
    for (const node& child : parent.children) {
        visit(child, numbered_path(parent_path, child.name, ++seen[child.name], total[child.name]));
    }
}

void sum_up_children(const node& parent, const std::string& parent_path, reading& result) {
    for_each_child(parent, parent_path, [&](const node& child, const std::string& path) {
        if (child.reading == node::state::unread) {
            result.texts += count_texts(child);
            result.unread.push_back(path);
            return;
        }
        const bool changed = child.reading == node::state::changed;
        if (changed || child.reading == node::state::refused) {
            (changed ? result.changed : result.refused)
                .push_back({path, child.text, child.instead});
        }
        if (child.reading == node::state::entered && !child.text.empty()) {
            result.unread.push_back(path + "/text()");
        }
        result.texts += holds_text(child) ? 1 : 0;
        result.texts_read += changed || child.reading == node::state::read ? 1 : 0;
        sum_up_children(child, path + '/', result);
    });
}

void place_children(const node& parent, const std::string& parent_path,
                    std::vector<placed_text>& result) {
    for_each_child(parent, parent_path, [&](const node& child, const std::string& path) {
        if (holds_text(child)) {
            result.push_back({path, child.text});
        }
        place_children(child, path + '/', result);
    });
}

using node_list = std::vector<const node*>;

node_list children_named(const node* parent, std::string_view name) {
    node_list result;
    if (parent != nullptr) {
        for (const node& child : parent->children) {
            if (child.name == name) {
                result.push_back(&child);
            }
        }
    }
    return result;
}

/// The names of the children of both, each once: those that only one has behind the one that they
/// follow there.
std::vector<std::string_view> names_of_children(const node* left, const node* right) {
    std::vector<std::string_view> result;
    for (const node* const parent : {left, right}) {
        auto place = result.begin();
        for (std::size_t index = 0; parent != nullptr && index < parent->children.size(); ++index) {
            const std::string_view name = parent->children[index].name;
            const auto found = std::find(result.begin(), result.end(), name);
            place = 1 + (found != result.end() ? found : result.insert(place, name));
        }
    }
    return result;
}

/// Either may be null: there is no such element.
void compare(const node* left, const node* right, const std::string& path,
             std::vector<difference>& result) {
    const auto text = [](const node* element) {
        return element != nullptr && holds_text(*element) ? core::v7::optional(element->text)
                                                          : core::v7::optional<std::string>();
    };
    if (text(left) != text(right)) {
        result.push_back({path, text(left), text(right)});
    }
    const std::string parent_path = path.empty() ? path : path + '/';
    for (const std::string_view name : names_of_children(left, right)) {
        const node_list left_children = children_named(left, name);
        const node_list right_children = children_named(right, name);
        const std::size_t total = std::max(left_children.size(), right_children.size());
        for (std::size_t index = 0; index < total; ++index) {
            compare(index < left_children.size() ? left_children[index] : nullptr,
                    index < right_children.size() ? right_children[index] : nullptr,
                    numbered_path(parent_path, name, index + 1, total), result);
        }
    }
}

} // namespace

reading sum_up(const node& document) {
    reading result;
    sum_up_children(document, "", result);
    return result;
}

std::vector<placed_text> placed_texts(const node& document) {
    std::vector<placed_text> result;
    place_children(document, "", result);
    return result;
}

std::vector<difference> differences(const node& left, const node& right) {
    std::vector<difference> result;
    compare(&left, &right, "", result);
    return result;
}

} // namespace kivo::erp::v12::layout
