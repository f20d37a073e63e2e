#include "page.hpp"

#include "language.hpp"
#include "platform.hpp"

#include <fmt/color.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace nfe_summary {

namespace {

constexpr std::size_t label_width = 16;
constexpr std::size_t narrowest = 40;

} // namespace

void complain(std::string_view path, std::string_view message) {
    complain(fmt::format("{}: {}", path, message));
}

void complain(std::string_view message) {
    constexpr std::size_t longest = 400; // a message may hold a name from the file
    fmt::print(stderr, "nfe_summary: {}\n", shortened(harmless(message), longest));
}

page page::of_terminal() {
    const std::optional<std::size_t> columns = platform::terminal_columns();
    return columns ? page{.bold = std::getenv("NO_COLOR") == nullptr}.as_wide_as(*columns) : page();
}

page page::as_wide_as(std::size_t columns) const {
    return {.width = std::max(columns, narrowest), .bold = bold};
}

void page::line(std::string_view text) { fmt::print("{}\n", text); }

void page::heading(std::string_view text) const {
    fmt::print(bold ? fmt::emphasis::bold : fmt::text_style(), "{}",
               shortened(harmless(text), width));
    fmt::print("\n");
}

void page::field(std::string_view label, std::string_view text) const {
    std::string shown_label(label);
    for (const std::string& part : wrapped(harmless(text), width - label_width)) {
        line(left(shown_label, label_width) + part);
        shown_label.clear();
    }
}

void page::fields(std::string_view label, const std::vector<std::string>& texts) const {
    for (const std::string& text : texts) {
        field(label, text);
        label = text.empty() ? label : "";
    }
}

void page::note(std::string_view text) const {
    constexpr std::size_t indent = 4;
    const std::size_t room = width == unlimited ? unlimited : width - indent;
    for (const std::string& part : wrapped(harmless(text), room)) {
        line(std::string(indent, ' ') + part);
    }
}

void page::amounts(const std::vector<labelled_amount>& shown) const {
    constexpr std::size_t gap = 4;
    constexpr std::size_t most_beside = 3;
    std::size_t labels = 0;
    std::size_t numbers = 0;
    for (const labelled_amount& amount : shown) {
        labels = std::max(labels, columns(amount.label));
        numbers = std::max(numbers, columns(amount.amount));
    }
    const std::size_t cell = labels + 2 + numbers;
    const std::size_t most = most_beside * (cell + gap) - gap;
    const std::size_t beside =
        std::max<std::size_t>((std::min(width, most) + gap) / (cell + gap), 1);
    const std::size_t rows = (shown.size() + beside - 1) / beside;
    for (std::size_t row = 0; row < rows; ++row) {
        std::string text;
        for (std::size_t index = row; index < shown.size(); index += rows) {
            text += std::string(text.empty() ? 0 : gap, ' ') +
                    left(shown[index].label, labels + 2) + right(shown[index].amount, numbers);
        }
        line(text);
    }
}

void page::left_out(const std::vector<std::string>& headings) const {
    if (!headings.empty()) {
        note(say("(no place for: {})", joined(headings)));
    }
}

} // namespace nfe_summary
