#include "table.hpp"

#include "text.hpp"

#include <algorithm>

namespace nfe_summary {

namespace {

constexpr std::size_t gap = 2;
constexpr std::size_t longest = 400; // far more than the layout allows, far less than memory

std::size_t total(const std::vector<std::size_t>& widths) {
    std::size_t sum = 0;
    for (const std::size_t width : widths) {
        sum += width == 0 ? 0 : width + (sum == 0 ? 0 : gap);
    }
    return sum;
}

} // namespace

void table::add(std::vector<std::string> row) {
    for (std::size_t index = 0; index < row.size(); ++index) {
        row[index] = shortened(harmless(row[index]), longest);
        natural_[index] = std::max(natural_[index], nfe_summary::columns(row[index]));
    }
    rows_.push_back(std::move(row));
}

table::layout table::lay_out(std::size_t width) const {
    layout result;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const column& shown = columns_[index];
        const std::size_t natural =
            natural_[index] == 0 ? 0
                                 : std::max(natural_[index], nfe_summary::columns(shown.heading));
        result.widths.push_back(natural);
        result.least.push_back(shown.shortest == 0 ? natural : std::min(natural, shown.shortest));
    }
    // first whole columns go; then texts are cut, those of the widest column first
    std::vector<std::size_t>& widths = result.widths;
    std::vector<std::size_t>& least = result.least;
    const auto highest = [&](auto value_of) {
        std::size_t found = 0;
        for (std::size_t index = 1; index < columns_.size(); ++index) {
            found = value_of(index) > value_of(found) ? index : found;
        }
        return found;
    };
    const auto rank = [&](std::size_t index) {
        return widths[index] == 0 ? 0 : columns_[index].rank;
    };
    const auto width_to_cut = [&](std::size_t index) {
        return widths[index] == least[index] ? 0 : widths[index];
    };
    while (total(least) > width && rank(highest(rank)) != 0) {
        const std::size_t index = highest(rank);
        result.left_out.insert(result.left_out.begin(), columns_[index].heading);
        widths[index] = least[index] = 0;
    }
    while (total(widths) > width && width_to_cut(highest(width_to_cut)) != 0) {
        --widths[highest(width_to_cut)];
    }
    return result;
}

bool table::fits(std::size_t width) const {
    const layout found = lay_out(width);
    return found.left_out.empty() && total(found.widths) <= width;
}

std::vector<std::string> table::left_out(std::size_t width) const {
    return lay_out(width).left_out;
}

std::vector<std::string> table::lines(std::size_t width) const {
    const std::vector<std::size_t> widths = lay_out(width).widths;
    std::vector<std::string> result;
    const auto add_line = [&](auto text_of_column) {
        std::string line;
        for (std::size_t index = 0; index < columns_.size(); ++index) {
            if (widths[index] != 0) {
                const std::string text = shortened(text_of_column(index), widths[index]);
                line += columns_[index].numbers ? right(text, widths[index])
                                                : left(text, widths[index]);
                line += std::string(gap, ' ');
            }
        }
        line.erase(line.find_last_not_of(' ') + 1);
        result.push_back(std::move(line));
    };
    add_line([&](std::size_t index) { return columns_[index].heading; });
    for (const auto& row : rows_) {
        add_line([&](std::size_t index) { return row[index]; });
    }
    return result;
}

} // namespace nfe_summary
