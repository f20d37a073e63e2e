#include "item_taxes.hpp"
#include "language.hpp"
#include "show.hpp"
#include "table.hpp"
#include "values.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

namespace nfe_summary {

namespace {

using fiscal::produto;

std::string notes(const produto& item) {
    return joined({counts_in_total(item) ? "" : tr("(not part of the invoice's total)"),
                   item.get_informacoes_adicionais().value_or("")},
                  " ");
}

using row = std::vector<std::string>;

row figures(const produto& item) {
    const item_tax operation = tax_on_operation(item);
    const item_tax ipi = ipi_of(item);
    decimal_sum pis_cofins = pis_of(item);
    pis_cofins.add(cofins_of(item));
    decimal_sum ibs_cbs = ibs_of(item);
    ibs_cbs.add(cbs_of(item));
    return {ncm_of(item),
            cfop_of(item),
            quantity(item.get_quantidade_comercial()),
            item.get_unidade_comercial(),
            amount(item.get_valor_unitario_comercial()),
            amount(item.get_valor_total_bruto()),
            operation.situation,
            amount(operation.amount),
            amount(ipi.amount),
            pis_cofins.text(),
            ibs_cbs.text()};
}

template <class Value>
std::vector<Value> both(std::vector<Value> first, const std::vector<Value>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

/// Each item on one line, or on two where the width is short.
void show_items(const page& out, const std::vector<produto>& items) {
    const std::vector<column> head_columns = {
        {"#", true}, {tr("Code"), false, 0, 8}, {tr("Description"), false, 0, 24}};
    const std::vector<column> figure_columns = {{"NCM", false, 5},
                                                {"CFOP", false, 4},
                                                {tr("Quantity"), true},
                                                {tr("Unit")},
                                                {tr("Unit value"), true, 2},
                                                {tr("Total"), true},
                                                {"CST", false, 3},
                                                {"ICMS", true, 1},
                                                {"IPI", true, 6},
                                                {"PIS+COFINS", true, 7},
                                                {"IBS+CBS", true, 8}};
    table whole(both(head_columns, figure_columns));
    table heads(head_columns);
    table tails(figure_columns);
    for (const produto& item : items) {
        const row head = {fmt::to_string(&item - items.data() + 1), item.get_codigo_produto(),
                          item.get_descricao()};
        const row tail = figures(item);
        whole.add(both(head, tail));
        heads.add(head);
        tails.add(tail);
    }
    constexpr std::size_t indent = 4;
    const bool one_line = whole.fits(out.width);
    const row first_lines = (one_line ? whole : heads).lines(out.width);
    const row second_lines = one_line ? row() : tails.lines(out.width - indent);
    for (std::size_t index = 0; index < first_lines.size(); ++index) {
        const auto show_line = [&](const std::string& text) {
            index == 0 ? out.heading(text) : page::line(text);
        };
        show_line(first_lines[index]);
        if (!one_line) {
            show_line(std::string(indent, ' ') + second_lines[index]);
        }
        if (index > 0) {
            out.note(notes(items[index - 1]));
        }
    }
    if (!one_line) {
        out.left_out(tails.left_out(out.width - indent));
    }
}

} // namespace nfe_summary
