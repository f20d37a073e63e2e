#include "forms.hpp"

#include "item_taxes.hpp"
#include "language.hpp"

#include <algorithm>

namespace nfe_summary {

namespace {

using fiscal::produto;

std::vector<std::string> figures(const produto& item, bool has_reform) {
    item_tax operation = tax_on_operation(item);
    if (operation.situation == "ISSQN") {
        operation = {operation.situation, {}}; // its amounts are none of ICMS
    }
    const item_tax ipi = ipi_of(item);
    std::vector<std::string> texts = {item.get_codigo_produto(),
                                      item.get_descricao(),
                                      ncm_of(item),
                                      operation.situation,
                                      cfop_of(item),
                                      item.get_unidade_comercial(),
                                      quantity(item.get_quantidade_comercial()),
                                      amount(item.get_valor_unitario_comercial()),
                                      amount(item.get_valor_total_bruto()),
                                      amount(item.get_valor_desconto()),
                                      amount(operation.base),
                                      amount(operation.amount),
                                      amount(ipi.amount),
                                      amount(operation.rate),
                                      amount(ipi.rate)};
    if (has_reform) {
        texts.push_back(ibs_of(item).text());
        texts.push_back(cbs_of(item).text());
    }
    return texts;
}

/// What stands below the description of an item.
void add_notes(markup row, const produto& item) {
    const markup description = row.child("td").next_sibling("td");
    if (!counts_in_total(item)) {
        add_text(description, "small", tr("(not part of the invoice's total)"));
    }
    const std::string notes = item.get_informacoes_adicionais().value_or("");
    if (!notes.empty()) {
        add_text(description, "small", notes);
    }
}

} // namespace

void add_danfe_items(markup form, const std::vector<produto>& items) {
    const bool has_reform = std::any_of(items.begin(), items.end(), [](const produto& item) {
        return item.get_ibs_cbs().has_value();
    });
    std::vector<form_column> columns = {{tr("PRODUCT CODE")},
                                        {tr("DESCRIPTION OF PRODUCT / SERVICE")},
                                        {tr("NCM")},
                                        {tr("O/CST")},
                                        {"CFOP"},
                                        {tr("UNIT")},
                                        {tr("QTY"), true},
                                        {tr("UNIT VALUE"), true},
                                        {tr("TOTAL VALUE"), true},
                                        {tr("DISC."), true},
                                        {tr("ICMS BASE"), true},
                                        {tr("ICMS VALUE"), true},
                                        {tr("IPI VALUE"), true},
                                        {tr("ICMS %"), true},
                                        {tr("IPI %"), true}};
    if (has_reform) {
        columns.push_back({tr("IBS VALUE"), true});
        columns.push_back({tr("CBS VALUE"), true});
    }
    const markup part = add_part(form, tr("PRODUCTS / SERVICES"));
    const markup body = add_table(part, columns);
    for (const produto& item : items) {
        add_notes(add_row(body, columns, figures(item, has_reform)), item);
    }
}

} // namespace nfe_summary
