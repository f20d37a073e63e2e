#include "forms.hpp"

#include "language.hpp"
#include "names.hpp"
#include "references.hpp"

#include <fmt/format.h>

namespace nfe_summary {

namespace {

/// What a recipient signs and the carrier brings back.
void add_receipt_slip(markup form, const form_source& from) {
    const markup slip = add(form, "section", "slip");
    const markup words = add(slip, "div", "slip-words");
    add_text(words, "p",
             say("RECEIVED FROM {} THE GOODS AND SERVICES OF THE ELECTRONIC INVOICE BELOW",
                 from.invoice.get_emitente().get_razao_social()));
    add_fields(words, {{tr("DATE OF RECEIPT"), "", 8},
                       {tr("NAME AND SIGNATURE OF THE RECEIVER"), "", 16}});
    const markup number = add(slip, "div", "number-box");
    add_text(number, "b", "NF-e");
    add_text(number, "p", say("No. {}", form_number(from.invoice.get_numero())));
    add_text(number, "p", say("SERIES {}", from.invoice.get_serie()));
}

void add_recipient(markup form, const form_source& from) {
    const fiscal::nota_fiscal& invoice = from.invoice;
    const auto recipient = invoice.get_destinatario();
    const auto place = recipient ? recipient->get_endereco() : std::nullopt;
    const auto own = [&](auto get) { return recipient ? ((*recipient).*get)().value_or("") : ""; };
    const markup part = add_part(form, tr("RECIPIENT / SENDER"));
    add_fields(part, {{tr("NAME / COMPANY"), from.told.recipient.name, 14},
                      {"CNPJ / CPF", id_text(from.told.recipient.id), 6},
                      {tr("DATE OF ISSUE"), day_in(time(invoice.get_data_emissao())), 4}});
    add_fields(part, {{tr("ADDRESS"), place ? street(*place) : "", 11},
                      {tr("DISTRICT"), place ? place->get_bairro() : "", 6},
                      {tr("POSTAL CODE"), place ? postal_code(*place) : "", 3},
                      {tr("DATE OUT / IN"), day_in(time(invoice.get_data_saida_entrada())), 4}});
    add_fields(part, {{tr("CITY"), place ? place->get_nome_municipio() : "", 8},
                      {tr("STATE"), place ? place->get_uf() : "", 2},
                      {tr("TELEPHONE"), phone(own(&fiscal::destinatario::get_telefone)), 5},
                      {tr("STATE REGISTRATION"), own(&fiscal::destinatario::get_ie), 5},
                      {tr("TIME OUT / IN"), hour_in(time(invoice.get_data_saida_entrada())), 4}});
}

/// Where the goods come from or go to, if that is another place than the parties'.
void add_place(markup form, const form_source& from, const char* group, const char* heading) {
    const layout::node* const place = layout::child_at(from.infnfe, group);
    if (place == nullptr) {
        return;
    }
    const auto told = [&](const char* element) {
        return std::string(layout::text_at(*place, element));
    };
    const markup part = add_part(form, heading);
    add_fields(part, {{tr("NAME / COMPANY"), told("xNome"), 14},
                      {"CNPJ / CPF", id_text(id_in(from.infnfe, group)), 6},
                      {tr("STATE REGISTRATION"), told("IE"), 4}});
    add_fields(part, {{tr("ADDRESS"), joined({told("xLgr"), told("nro"), told("xCpl")}), 8},
                      {tr("DISTRICT"), told("xBairro"), 4},
                      {tr("CITY"), told("xMun"), 4},
                      {tr("STATE"), told("UF"), 2},
                      {tr("POSTAL CODE"), postal_code(told("CEP")), 3},
                      {tr("TELEPHONE"), phone(told("fone")), 3}});
}

void add_billing(markup form, const fiscal::nota_fiscal& invoice) {
    const auto billing = invoice.get_cobranca();
    if (!billing) {
        return;
    }
    const markup part = add_part(form, tr("INVOICE FOR PAYMENT / INSTALMENTS"));
    const bool has_bill = billing->get_numero_fatura() || billing->get_valor_original_fatura();
    if (has_bill) {
        add_fields(part,
                   {{tr("NUMBER"), billing->get_numero_fatura().value_or(""), 6},
                    {tr("ORIGINAL VALUE"), amount(billing->get_valor_original_fatura()), 6, true},
                    {tr("DISCOUNT VALUE"), amount(billing->get_valor_desconto()), 6, true},
                    {tr("NET VALUE"), amount(billing->get_valor_liquido()), 6, true}});
    }
    std::vector<form_field> instalments;
    for (const fiscal::duplicata& instalment : billing->get_duplicatas()) {
        constexpr unsigned width = 6;
        instalments.push_back({tr("INSTALMENT"),
                               joined({instalment.get_numero_duplicata().value_or(""),
                                       day(instalment.get_data_vencimento()),
                                       amount(instalment.get_valor_duplicata())},
                                      " - "),
                               width});
    }
    if (!instalments.empty()) {
        add_fields(part, instalments);
    }
}

void add_payments(markup form, const fiscal::nota_fiscal& invoice) {
    const auto payment = invoice.get_informacoes_pagamento();
    std::vector<form_field> payments;
    for (const auto& part : payment.get_detalhes_pagamento()) {
        constexpr unsigned width = 8;
        const auto terms = part.get_indicador_forma_pagamento();
        payments.push_back(
            {tr("MEANS OF PAYMENT"),
             joined({name_of(part.get_meio_pagamento()),
                     part.get_descricao_meio_pagamento().value_or(""), terms ? name_of(*terms) : "",
                     day(part.get_data_pagamento()), amount(part.get_valor_pagamento())}),
             width});
    }
    if (!payments.empty()) {
        add_fields(add_part(form, tr("PAYMENT")), payments);
    }
}

void add_notes(markup form, const fiscal::nota_fiscal& invoice) {
    const auto texts = invoice.get_informacoes_adicionais();
    const markup part = add_part(form, tr("ADDITIONAL DATA"));
    const markup line = add(part, "div", "notes");
    const markup own = add(line, "div");
    add_text(own, "h3", tr("FURTHER INFORMATION"));
    add_text(own, "p", texts ? texts->get_informacoes_complementares().value_or("") : "");
    for (const std::string& reference : references(invoice)) {
        add_text(own, "p", labelled(tr("Refers to"), reference));
    }
    const markup office = add(line, "div");
    add_text(office, "h3", tr("RESERVED FOR THE TAX OFFICE"));
    add_text(office, "p", texts ? texts->get_informacoes_adicionais_fisco().value_or("") : "");
}

} // namespace

void add_danfe(markup page, const form_source& from) {
    const fiscal::nota_fiscal& invoice = from.invoice;
    add_receipt_slip(page, from);
    add_danfe_head(page, from);
    add_recipient(page, from);
    add_place(page, from, "retirada", tr("PLACE OF COLLECTION"));
    add_place(page, from, "entrega", tr("PLACE OF DELIVERY"));
    add_billing(page, invoice);
    add_payments(page, invoice);
    add_danfe_totals(page, invoice.get_total_nfe());
    add_reform_totals(page, invoice.get_total_nfe());
    add_danfe_transport(page, from);
    add_danfe_items(page, invoice.get_produtos());
    add_danfe_services(page, from);
    add_notes(page, invoice);
}

} // namespace nfe_summary
