#include <layout/path_tree.hpp>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace kivo::erp::v12::layout {

namespace {

[[noreturn]] void refuse(const placed_text& placed, const char* reason) {
    throw std::invalid_argument(placed.path + ": " + reason);
}

struct step {
    std::string_view name;
    std::uint32_t number = 1;
};

/// Parts the first name, with its number, from the rest of a path.
step take_step(const placed_text& placed, std::string_view& rest) {
    step result{rest.substr(0, rest.find('/'))};
    rest.remove_prefix(std::min(result.name.size() + 1, rest.size()));
    if (const std::size_t bracket = result.name.find('['); bracket != std::string_view::npos) {
        const std::string_view digits = result.name.substr(bracket + 1);
        const char* const end = digits.data() + digits.size();
        const auto [stop, error] = std::from_chars(digits.data(), end, result.number);
        if (error != std::errc() || stop == end || stop + 1 != end || *stop != ']' ||
            result.number == 0) {
            refuse(placed, "no number in brackets");
        }
        result.name = result.name.substr(0, bracket);
    }
    if (result.name.find_first_not_of('@') == std::string_view::npos) {
        refuse(placed, "an element without a name");
    }
    return result;
}

} // namespace

void path_tree::add(const placed_text& placed) {
    path_tree* element = this;
    std::string_view rest = placed.path;
    do {
        const step next = take_step(placed, rest);
        path_tree*& known_inner = element->known[{next.name, next.number}];
        if (known_inner == nullptr) {
            known_inner = &element->inner.emplace_back();
            known_inner->name = next.name;
            known_inner->number = next.number;
            known_inner->path = placed.path;
        }
        element = known_inner;
    } while (!rest.empty());
    if (element->text) {
        refuse(placed, "named twice");
    }
    element->text = placed.text;
}

const path_tree* path_tree::find(std::string_view wanted, std::uint32_t wanted_number) const {
    const auto found = known.find({wanted, wanted_number});
    return found == known.end() ? nullptr : found->second;
}

} // namespace kivo::erp::v12::layout
