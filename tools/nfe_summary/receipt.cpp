#include "forms.hpp"

#include "language.hpp"
#include "names.hpp"

#include <fmt/format.h>

namespace nfe_summary {

namespace {

using fiscal::nota_fiscal;

void add_issuer(markup form, const form_source& from) {
    const fiscal::emitente issuer = from.invoice.get_emitente();
    const markup head = add(form, "header");
    add_text(head, "b", issuer.get_nome_fantasia().value_or(issuer.get_razao_social()));
    add_text(head, "p", issuer.get_razao_social());
    add_text(head, "p",
             joined({labelled("CNPJ", id_text(from.told.issuer.id)),
                     labelled(tr("state reg."), issuer.get_ie())}));
    add_text(head, "p", address(issuer.get_endereco()));
    add_text(head, "h1", tr("Auxiliary Document of the Electronic Consumer's Invoice"));
}

void add_items(markup form, const std::vector<fiscal::produto>& items) {
    const std::vector<form_column> columns = {{tr("CODE")},        {tr("DESCRIPTION")},
                                              {tr("QTY"), true},   {tr("UNIT")},
                                              {tr("VALUE"), true}, {tr("TOTAL"), true}};
    const markup body = add_table(form, columns);
    for (const fiscal::produto& item : items) {
        add_row(body, columns,
                {item.get_codigo_produto(), item.get_descricao(),
                 quantity(item.get_quantidade_comercial()), item.get_unidade_comercial(),
                 amount(item.get_valor_unitario_comercial()),
                 amount(item.get_valor_total_bruto())});
    }
}

/// A label and, at the other end of the line, what it tells.
void add_line(markup list, const std::string& label, const std::string& text,
              const char* style_class = nullptr) {
    if (!text.empty()) {
        const markup line = add(list, "div", style_class);
        add_text(line, "dt", label);
        add_text(line, "dd", text);
    }
}

void add_sums(markup form, const nota_fiscal& invoice) {
    const fiscal::total_nfe_icms icms = invoice.get_total_nfe().get_total_icms();
    const auto told = [](const fiscal::decimal& value) {
        return value == fiscal::decimal() ? "" : amount(value);
    };
    const markup list = add(form, "dl");
    add_line(list, tr("Number of items"), fmt::to_string(invoice.get_produtos().size()));
    add_line(list, tr("Total value R$"), amount(icms.get_valor_total_dos_produtos_da_nota()));
    add_line(list, tr("Discount R$"), told(icms.get_valor_total_do_desconto_da_nota()));
    add_line(list, tr("Freight R$"), told(icms.get_total_frete()));
    add_line(list, tr("Insurance R$"), told(icms.get_total_seguro()));
    add_line(list, tr("Other expenses R$"), told(icms.get_total_despesas_acessorias()));
    add_line(list, tr("Amount to pay R$"), amount(icms.get_total_da_nota()), "most");

    const auto payment = invoice.get_informacoes_pagamento();
    const markup paid = add(form, "dl");
    add_line(paid, tr("MEANS OF PAYMENT"), tr("AMOUNT PAID R$"));
    for (const auto& part : payment.get_detalhes_pagamento()) {
        add_line(paid,
                 joined({name_of(part.get_meio_pagamento()),
                         part.get_descricao_meio_pagamento().value_or("")}),
                 amount(part.get_valor_pagamento()));
    }
    const auto change = payment.get_valor_total_troco();
    add_line(paid, tr("Change R$"), change ? told(*change) : "");
    const auto taxes = icms.get_total_dos_tributos_do_item();
    add_line(add(form, "dl"), tr("Taxes in all, estimated (Law 12,741/2012) R$"),
             taxes ? told(*taxes) : "");
}

/// Who bought, and what the tax office answered.
void add_answer(markup form, const form_source& from) {
    const nota_fiscal& invoice = from.invoice;
    const markup part = add(form, "section");
    const party& consumer = from.told.recipient;
    add_text(
        part, "b",
        consumer.id.empty() && consumer.name.empty()
            ? tr("CONSUMER NOT NAMED")
            : say("CONSUMER {}", joined({consumer.id.size() == 14   ? "CNPJ " + id_text(consumer.id)
                                         : consumer.id.size() == 11 ? "CPF " + id_text(consumer.id)
                                                                    : consumer.id,
                                         consumer.name},
                                        " - ")));
    add_text(part, "b",
             say("NFC-e no. {} series {} {}", form_number(invoice.get_numero()),
                 invoice.get_serie(), time(invoice.get_data_emissao())));
    if (from.told.answer) {
        add_text(part, "p", labelled(tr("Authorisation protocol:"), from.told.answer->number));
        add_text(part, "p",
                 labelled(tr("Date of authorisation:"), time_text(from.told.answer->received)));
    }
}

void add_look_up(markup form, const form_source& from) {
    const layout::node& nfe = *(&from.infnfe - from.infnfe.up);
    const std::string url(layout::text_at(nfe, "infNFeSupl/urlChave"));
    const std::string code(layout::text_at(nfe, "infNFeSupl/qrCode"));
    const markup part = add(form, "section");
    add_text(part, "b", tr("Look it up by its access key at"));
    add_text(part, "p", url);
    add_text(part, "p", key(from.told.key), "key-text");
    if (const auto drawn = qr_code(code)) {
        add_drawing(part, *drawn, tr("QR code"), "qr");
    }
    add_text(part, "p", code, "code-text");
}

} // namespace

void add_receipt(markup page, const form_source& from) {
    add_issuer(page, from);
    add_items(page, from.invoice.get_produtos());
    add_sums(page, from.invoice);
    add_look_up(page, from);
    add_answer(page, from);
    const auto texts = from.invoice.get_informacoes_adicionais();
    const std::string notes = texts ? texts->get_informacoes_complementares().value_or("") : "";
    if (!notes.empty()) {
        add_text(page, "p", notes, "notes");
    }
}

} // namespace nfe_summary
