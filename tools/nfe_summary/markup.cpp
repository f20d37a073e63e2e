#include "markup.hpp"

#include "text.hpp"

#include <fmt/format.h>

namespace nfe_summary {

markup add(markup parent, const char* name, const char* style_class) {
    markup element = parent.append_child(name);
    element.append_child(pugi::node_pcdata); // browsers take no short form of an empty element
    if (style_class != nullptr) {
        set(element, "class", style_class);
    }
    return element;
}

markup add_text(markup parent, const char* name, std::string_view text, const char* style_class) {
    const markup element = add(parent, name, style_class);
    element.first_child().set_value(harmless(text).c_str());
    return element;
}

void set(markup element, const char* attribute, std::string_view text) {
    element.append_attribute(attribute).set_value(harmless(text).c_str());
}

void add_drawing(markup parent, const bars& drawn, const char* name, const char* style_class) {
    const markup drawing = add(parent, "svg", style_class);
    set(drawing, "viewBox",
        fmt::format("{0} {0} {1} {2}", -drawn.margin, drawn.width + 2 * drawn.margin,
                    drawn.height + 2 * drawn.margin));
    set(drawing, "preserveAspectRatio", "none");
    set(drawing, "role", "img");
    set(drawing, "aria-label", name);
    set(add(drawing, "path"), "d", drawn.path);
}

void add_fields(markup form, const std::vector<form_field>& fields) {
    const markup line = add(form, "dl");
    for (const form_field& field : fields) {
        const markup box = add(line, "div", field.is_number ? "number" : nullptr);
        set(box, "style", fmt::format("--width:{}", field.width));
        add_text(box, "dt", field.label);
        add_text(box, "dd", field.text);
    }
}

markup add_table(markup form, const std::vector<form_column>& columns) {
    const markup table = add(form, "table");
    const markup heads = add(add(table, "thead"), "tr");
    for (const form_column& column : columns) {
        add_text(heads, "th", column.heading, column.is_number ? "number" : nullptr);
    }
    return add(table, "tbody");
}

markup add_row(markup body, const std::vector<form_column>& columns,
               const std::vector<std::string>& texts) {
    const markup row = add(body, "tr");
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const markup cell =
            add_text(row, "td", texts[index], columns[index].is_number ? "number" : nullptr);
        set(cell, "data-label", columns[index].heading);
    }
    return row;
}

markup add_part(markup form, const char* heading) {
    const markup part = add(form, "section");
    add_text(part, "h2", heading);
    return part;
}

} // namespace nfe_summary
