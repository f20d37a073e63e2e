#include "html.hpp"

#include "forms.hpp"
#include "language.hpp"
#include "names.hpp"

#include <fmt/format.h>

#include <sstream>

namespace nfe_summary {

namespace {

constexpr const char* page_style =
#include <page_style.inc>
    ;

/// What stands across an invoice without legal force, in the words of the forms; null for others.
const char* watermark(validity valid) {
    switch (valid) {
    case validity::authorised:
        return nullptr;
    case validity::cancelled:
        return "CANCELADA";
    case validity::denied:
        return "USO DENEGADO";
    case validity::unauthorised:
    case validity::rejected:
    case validity::test:
        break;
    }
    return "SEM VALOR FISCAL";
}

std::string reason(const surveyed& told) {
    switch (told.valid) {
    case validity::authorised:
        break;
    case validity::cancelled:
        return tr("The invoice is cancelled.");
    case validity::denied:
        return tr("The tax office denied the use of the invoice.");
    case validity::rejected:
        return tr("The tax office rejected the invoice: it is none.");
    case validity::unauthorised:
        return tr("The file has no authorisation of the tax office.");
    case validity::test:
        return tr("The invoice is of the test environment, without fiscal value.");
    }
    return "";
}

/// What a reader has to know before all else.
void add_warnings(markup sheet, const form_source& from) {
    std::vector<std::string> lines;
    const auto tell = [&](const std::string& line) {
        if (!line.empty()) {
            lines.push_back(line);
        }
    };
    tell(reason(from.told));
    if (from.told.valid != validity::authorised && from.told.answer) {
        tell(joined({from.told.answer->status, from.told.answer->reason}, " "));
    }
    if (from.invoice.get_tipo_emissao() != fiscal::tipo_emissao::normal) {
        tell(joined({name_of(from.invoice.get_tipo_emissao()),
                     labelled(tr("since"), time(from.invoice.get_data_contingencia())),
                     from.invoice.get_justificativa_entrada_contingencia().value_or("")}));
    }
    for (const std::string& note : from.told.notes) {
        tell(note);
    }
    for (const std::string& problem : from.told.problems) {
        tell(say("Doubtful: {}", problem));
    }
    if (lines.empty()) {
        return;
    }
    const markup warnings = add(sheet, "aside");
    if (const char* const words = watermark(from.told.valid)) {
        add_text(warnings, "strong", words);
    }
    for (const std::string& line : lines) {
        add_text(warnings, "p", line);
    }
}

/// What stands below each sheet of paper. No more of a file than a key may be in a style.
std::string paper_style(const form_source& from) {
    const std::string shown = is_key(from.told.key) ? key(from.told.key) : "";
    return fmt::format("@page{{@bottom-left{{content:\"{}  {}\"}}"
                       "@bottom-right{{content:\"{} \" counter(page) \"/\" counter(pages)}}}}",
                       say("No. {}", form_number(from.invoice.get_numero())), shown, tr("SHEET"));
}

} // namespace

std::string html_of(const layout::tree& tree, const layout::invoice_document& document,
                    const surveyed& told) {
    const form_source from{layout::invoice_in(tree), document.invoice, told};
    const bool is_receipt = document.invoice.get_modelo_emissao() == "65";

    pugi::xml_document page;
    page.append_child(pugi::node_doctype).set_value("html");
    const markup html = add(page, "html");
    set(html, "lang", tr("en")); // the language of the page, as browsers name it
    markup head = add(html, "head");
    set(head.append_child("meta"), "charset", "utf-8");
    const markup view = head.append_child("meta");
    set(view, "name", "viewport");
    set(view, "content", "width=device-width,initial-scale=1");
    add_text(head, "title",
             joined({fmt::format("{} {}", is_receipt ? "NFC-e" : "NF-e",
                                 form_number(document.invoice.get_numero())),
                     document.invoice.get_emitente().get_razao_social()},
                    " - "));
    add_text(head, "style", page_style);
    add_text(head, "style", paper_style(from));

    const markup body = add(html, "body");
    if (const char* const words = watermark(told.valid)) {
        const markup mark = add_text(body, "div", words, "watermark");
        set(mark, "aria-hidden", "true"); // the warnings tell it
    }
    const markup sheet = add(body, "main", is_receipt ? "receipt" : "danfe");
    add_warnings(sheet, from);
    is_receipt ? add_receipt(sheet, from) : add_danfe(sheet, from);

    std::ostringstream out;
    page.save(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return out.str();
}

void add_key(markup form, const std::string& key) {
    if (const auto drawn = key_bars(key)) {
        add_drawing(form, *drawn, tr("ACCESS KEY"), "bars");
    }
}

std::string form_number(std::uint32_t number) {
    const std::string digits = fmt::format("{:09}", number);
    return digits.size() == 9
               ? fmt::format("{}.{}.{}", digits.substr(0, 3), digits.substr(3, 3), digits.substr(6))
               : digits;
}

std::string protocol_text(const surveyed& told) {
    return told.answer ? joined({told.answer->number, time_text(told.answer->received)}, " - ")
                       : std::string();
}

} // namespace nfe_summary
