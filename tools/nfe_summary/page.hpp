#pragma once

#include "text.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nfe_summary {

struct labelled_amount {
    std::string label;
    std::string amount;
};

/// Tells on standard error, in one line, what is wrong with a file.
void complain(std::string_view path, std::string_view message);
/// The same, of a message that names the file itself.
void complain(std::string_view message);

/// Standard output, as a person sees it.
struct page {
    std::size_t width = unlimited;
    bool bold = false; ///< headings may be bold

    /// As wide as the terminal, which may show bold text; of no width where it is none.
    static page of_terminal();

    /// The same of another width, if that leaves room for more than the labels.
    page as_wide_as(std::size_t columns) const;

    /// One line, cut at the page's width.
    void heading(std::string_view text) const;

    /// A text behind its label; nothing where there is no text.
    void field(std::string_view label, std::string_view text) const;

    /// Texts below each other, the first behind their label.
    void fields(std::string_view label, const std::vector<std::string>& texts) const;

    /// Amounts behind their labels, as many beside each other as there is room for.
    void amounts(const std::vector<labelled_amount>& shown) const;

    /// A line as it is.
    static void line(std::string_view text);

    /// A text behind some spaces.
    void note(std::string_view text) const;

    /// Tells which columns of a table have no place.
    void left_out(const std::vector<std::string>& headings) const;
};

} // namespace nfe_summary
