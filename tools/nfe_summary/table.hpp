#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace nfe_summary {

struct column {
    std::string heading;
    bool numbers = false;     ///< its texts end at one place
    unsigned rank = 0;        ///< where width is short, the highest goes first; 0 stays
    std::size_t shortest = 0; ///< its texts may be cut to so many characters; 0: they may not
};

/// A table that finds the widths of its columns itself. A column without texts is not shown.
class table {
public:
    explicit table(std::vector<column> columns)
        : columns_(std::move(columns)), natural_(columns_.size()) {}

    /// Adds a row: a text for each column.
    void add(std::vector<std::string> row);

    /// Whether every column has its place in this width.
    bool fits(std::size_t width) const;

    /// The headings, and a line for each row.
    std::vector<std::string> lines(std::size_t width) const;

    /// The headings of the columns that have no place in this width.
    std::vector<std::string> left_out(std::size_t width) const;

private:
    struct layout {
        std::vector<std::size_t> widths; ///< of each column; 0: it is not shown
        std::vector<std::size_t> least;  ///< what each column may be cut to
        std::vector<std::string> left_out;
    };
    layout lay_out(std::size_t width) const;

    std::vector<column> columns_;
    std::vector<std::size_t> natural_; // the widest text of each column
    std::vector<std::vector<std::string>> rows_;
};

} // namespace nfe_summary
