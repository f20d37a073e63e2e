#pragma once

#include "bars.hpp"

#include <pugixml.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Pages for a browser. Texts of a file come in through these functions alone: they stay texts.
namespace nfe_summary {

using markup = pugi::xml_node;

/// Adds an element at the end of another.
markup add(markup parent, const char* name, const char* style_class = nullptr);

/// Adds an element with a text that is harmless then; it may be empty.
markup add_text(markup parent, const char* name, std::string_view text,
                const char* style_class = nullptr);

void set(markup element, const char* attribute, std::string_view text);

/// Adds a drawing of bars that has a name for those who do not see it.
void add_drawing(markup parent, const bars& drawn, const char* name, const char* style_class);

/// A field of a printed form.
struct form_field {
    const char* label;
    std::string text;
    unsigned width;         ///< of 24 columns
    bool is_number = false; ///< ends at the right
};

/// Adds a line of fields.
void add_fields(markup form, const std::vector<form_field>& fields);

/// A table whose columns have headings.
struct form_column {
    const char* heading;
    bool is_number = false;
};
markup add_table(markup form, const std::vector<form_column>& columns);

/// Adds a row to the body of a table. On a narrow screen each text stands behind its heading.
markup add_row(markup body, const std::vector<form_column>& columns,
               const std::vector<std::string>& texts);

/// Adds a part of the form below a heading.
markup add_part(markup form, const char* heading);

} // namespace nfe_summary
