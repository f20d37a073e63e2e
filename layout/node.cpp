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

std::size_t own_texts(const node& element) {
    return element.children.empty() || !element.text.empty() ? 1 : 0;
}

std::size_t count_texts(const node& element) {
    std::size_t count = own_texts(element);
    for (const node& child : element.children) {
        count += count_texts(child);
    }
    return count;
}

void visit_children(const node& parent, const std::string& parent_path, reading& result) {
    std::map<std::string_view, std::size_t> total;
    for (const node& child : parent.children) {
        ++total[child.name];
    }
    std::map<std::string_view, std::size_t> seen;
    for (const node& child : parent.children) {
        std::string path = parent_path + child.name;
        if (total[child.name] > 1) {
            path += '[' + std::to_string(++seen[child.name]) + ']';
        }
        if (child.reading == node::state::unread) {
            result.texts += count_texts(child);
            result.unread.push_back(path);
            continue;
        }
        const bool changed = child.reading == node::state::changed;
        if (changed || child.reading == node::state::refused) {
            (changed ? result.changed : result.refused)
                .push_back({path, child.text, child.instead});
        }
        if (child.reading == node::state::entered && !child.text.empty()) {
            result.unread.push_back(path + "/text()");
        }
        result.texts += own_texts(child);
        result.texts_read += changed || child.reading == node::state::read ? 1 : 0;
        visit_children(child, path + '/', result);
    }
}

} // namespace

reading sum_up(const node& document) {
    reading result;
    visit_children(document, "", result);
    return result;
}

} // namespace kivo::erp::v12::layout
