#include <layout/tree.hpp>

#include <layout/path_tree.hpp>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace kivo::erp::v12::layout {

const node* child_named(const node& parent, const element_name& name) {
    for (const node& child : children(parent)) {
        if (child.name == name) {
            return &child;
        }
    }
    return nullptr;
}

const node* child_at(const node& parent, std::string_view path) {
    const std::size_t slash = path.find('/');
    const node* const child = child_named(parent, path.substr(0, slash));
    return child == nullptr || slash == path.npos ? child
                                                  : child_at(*child, path.substr(slash + 1));
}

std::string_view text_at(const node& parent, std::string_view path) {
    const node* const found = child_at(parent, path);
    return found == nullptr ? std::string_view() : found->text;
}

void tree::close_unless_empty() {
    const node& closed = nodes_[open_];
    if (nodes_.size() - open_ > 1 || !closed.text.empty()) {
        close();
        return;
    }
    const std::uint32_t up = closed.up;
    nodes_.pop_back();
    open_ -= up;
}

void tree::add(const node& copied) {
    nodes_.insert(nodes_.end(), &copied, &copied + copied.size);
    node& top = nodes_[nodes_.size() - copied.size];
    top.up = static_cast<std::uint32_t>(nodes_.size() - copied.size - open_);
}

void tree::measure() {
    for (std::size_t index = nodes_.size(); index-- > 1;) {
        nodes_[index - nodes_[index].up].size += nodes_[index].size;
    }
}

void tree::adopt_texts(tree& other) {
    // in front: the last place is the one with room
    texts_.insert(texts_.begin(), std::make_move_iterator(other.texts_.begin()),
                  std::make_move_iterator(other.texts_.end()));
    other = {};
}

void tree::make_room(std::size_t size) {
    const std::size_t room = std::max(size, std::size_t{8192});
    auto chars = std::make_unique_for_overwrite<char[]>(room);
    next_ = texts_.emplace_back(std::move(chars)).get();
    left_ = room;
}

std::string_view tree::keep(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    char* const kept = place(text.size());
    std::memcpy(kept, text.data(), text.size());
    return {kept, text.size()};
}

std::string path_below(std::string path, std::string_view name) {
    path += path.empty() ? "" : "/";
    return path += name;
}

std::string with_number(std::string_view name, std::size_t number) {
    std::string result(name);
    return number == 0 ? result : result + '[' + std::to_string(number) + ']';
}

std::string path_teller::operator()(const node& element) {
    if (&element == root_) {
        return {};
    }
    return path_below((*this)(*(&element - element.up)),
                      with_number(element.name, number_of(element)));
}

std::uint32_t path_teller::number_of(const node& element) {
    const node& parent = *(&element - element.up);
    std::uint32_t looked_at = 0;
    std::uint32_t number = 0;
    std::uint32_t total = 0;
    for (const node& child : children(parent)) {
        if (++looked_at > few) {
            return known_number_of(parent, element);
        }
        total += child.name == element.name ? 1 : 0;
        number = &child == &element ? total : number;
    }
    return total > 1 ? number : 0;
}

std::uint32_t path_teller::known_number_of(const node& parent, const node& element) {
    if (counted_.insert(&parent).second) {
        std::unordered_map<std::string_view, std::uint32_t> total;
        for (const node& child : children(parent)) {
            ++total[child.name];
        }
        std::unordered_map<std::string_view, std::uint32_t> met;
        for (const node& child : children(parent)) {
            if (total[child.name] > 1) {
                numbers_[&child] = ++met[child.name];
            }
        }
    }
    const auto number = numbers_.find(&element);
    return number == numbers_.end() ? 0 : number->second;
}

std::vector<placed_text> texts_of(const node& root) {
    std::vector<placed_text> result;
    path_teller path(root);
    for (const node* element = &root + 1; element != &root + root.size; ++element) {
        if (element->holds_text()) {
            result.push_back({path(*element), std::string(element->text)});
        }
    }
    return result;
}

namespace {

/// Adds an element and what is in it, attributes first.
void add_to(tree& result, const path_tree& element) {
    const core::v7::optional<std::string_view>& text = element.text;
    result.open(element_name(result.keep(element.name)), result.keep(text.value_or("")));
    for (const bool attributes : {true, false}) {
        std::unordered_map<std::string_view, std::uint32_t> numbers;
        for (const path_tree& inner : element.inner) {
            if (inner.name.starts_with('@') == attributes) {
                if (inner.number != ++numbers[inner.name]) {
                    throw std::invalid_argument(std::string(inner.path) + ": number " +
                                                std::to_string(inner.number) +
                                                " without those before it");
                }
                add_to(result, inner);
            }
        }
    }
    result.close();
}

} // namespace

tree tree_of(std::string_view root, const std::vector<placed_text>& texts) {
    tree result;
    path_tree all{root};
    for (const placed_text& placed : texts) {
        all.add(placed);
    }
    add_to(result, all);
    return result;
}

void take_out(std::vector<placed_text>& texts, std::string_view path) {
    const std::size_t bracket = path.rfind('[');
    std::size_t number = 0;
    const auto number_in = [&](std::string_view digits, std::size_t& result) {
        const char* const end = digits.data() + digits.size();
        const auto [stop, error] = std::from_chars(digits.data(), end, result);
        return error == std::errc() && stop != end && *stop == ']' ? stop + 1 : nullptr;
    };
    if (bracket == path.npos ||
        number_in(path.substr(bracket + 1), number) != path.data() + path.size()) {
        throw std::invalid_argument(std::string(path) + ": no number at its end");
    }
    const std::string_view before = path.substr(0, bracket + 1);
    std::vector<placed_text> left;
    for (placed_text& placed : texts) {
        std::size_t own = 0;
        const char* const behind =
            placed.path.starts_with(before)
                ? number_in(std::string_view(placed.path).substr(before.size()), own)
                : nullptr;
        if (behind != nullptr && own == number) {
            continue;
        }
        if (behind != nullptr && own > number) {
            placed.path = std::string(before) + std::to_string(own - 1) + ']' + behind;
        }
        left.push_back(std::move(placed));
    }
    texts = std::move(left);
}

namespace {

using node_list = std::vector<const node*>;

/// What two elements have in them, by name. Names that only the second has stand behind the one
/// that they follow there.
struct paired_children {
    struct of_name {
        node_list left;
        node_list right;
    };
    std::vector<of_name> names;

    paired_children(const node* left, const node* right) {
        std::unordered_map<std::string_view, std::size_t> known;
        std::vector<of_name> found;
        std::vector<std::size_t> order;
        const auto meet = [&](const node& child, std::size_t place) {
            const auto [name, is_new] = known.emplace(child.name, found.size());
            if (is_new) {
                found.emplace_back();
                order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), name->second);
            }
            return name->second;
        };
        if (left != nullptr) {
            for (const node& child : children(*left)) {
                found[meet(child, order.size())].left.push_back(&child);
            }
        }
        if (right != nullptr) {
            std::size_t place = 0;
            std::string_view previous;
            for (const node& child : children(*right)) {
                const std::size_t name = meet(child, place);
                if (child.name != previous) {
                    const auto met = std::find(order.begin(), order.end(), name);
                    place = static_cast<std::size_t>(met - order.begin()) + 1;
                    previous = child.name;
                }
                found[name].right.push_back(&child);
            }
        }
        for (const std::size_t name : order) {
            names.push_back(std::move(found[name]));
        }
    }
};

/// Either may be null: there is no such element.
void compare(const node* left, const node* right, const std::string& path,
             std::vector<difference>& result) {
    const auto text = [](const node* element) {
        return element != nullptr && element->holds_text()
                   ? core::v7::optional<std::string>(element->text)
                   : core::v7::optional<std::string>();
    };
    if (!path.empty() && text(left) != text(right)) {
        result.push_back({path, text(left), text(right)});
    }
    for (const auto& name : paired_children(left, right).names) {
        const std::size_t total = std::max(name.left.size(), name.right.size());
        const std::string_view own = (name.left.empty() ? name.right : name.left).front()->name;
        for (std::size_t index = 0; index < total; ++index) {
            const node* const left_child = index < name.left.size() ? name.left[index] : nullptr;
            const node* const right_child = index < name.right.size() ? name.right[index] : nullptr;
            compare(left_child, right_child,
                    path_below(path, with_number(own, total > 1 ? index + 1 : 0)), result);
        }
    }
}

} // namespace

std::vector<difference> differences(const node& left, const node& right) {
    std::vector<difference> result;
    compare(&left, &right, "", result);
    return result;
}

} // namespace kivo::erp::v12::layout
