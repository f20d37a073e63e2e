#include "show.hpp"
#include "table.hpp"
#include "values.hpp"

#include <layout/text.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace nfe_summary {

namespace {

using fiscal::produto;

struct tax {
    std::string situation;
    optional<fiscal::decimal> amount;
};

template <class Group> std::string icms_situation(const Group& group) {
    const auto origin = static_cast<unsigned>(group.get_origem_mercadoria());
    const auto code = [&] {
        if constexpr (requires { group.get_cst(); }) {
            return layout::text_of(group.get_cst(), layout::digits(2));
        } else if constexpr (requires { group.get_csosn(); }) {
            return layout::text_of(group.get_csosn(), layout::digits(3));
        } else {
            return layout::text_of(group.get_tributacao_icms(), layout::digits(2));
        }
    }();
    return fmt::to_string(origin) + code.value_or("");
}

/// The tax of the operation itself, not that of the substitution.
template <class Group> optional<fiscal::decimal> icms_amount(const Group& group) {
    const auto of_normal_part = [](const auto& part) {
        return part ? part->get_valor_icms() : std::nullopt;
    };
    if constexpr (requires { group.get_valor_icms(); }) {
        return group.get_valor_icms();
    } else if constexpr (requires { group.get_tributacao_normal_icms_90(); }) {
        return of_normal_part(group.get_tributacao_normal_icms_90());
    } else if constexpr (requires { group.get_tributacao_normal_icms_900(); }) {
        return of_normal_part(group.get_tributacao_normal_icms_900());
    } else {
        return {};
    }
}

tax tax_on_operation(const produto& item) {
    const auto choice = item.get_tributacao();
    if (!choice) {
        return {};
    }
    if (const auto* const service = std::get_if<fiscal::issqn>(&*choice)) {
        return {"ISSQN", service->get_valor_issqn()};
    }
    return std::visit(
        [](const auto& group) {
            return tax{icms_situation(group), icms_amount(group)};
        },
        std::get<produto::icms>(*choice));
}

std::string pis_and_cofins(const produto& item) {
    decimal_sum sum;
    if (const auto taxes = item.get_tributacao_pis_cofins()) {
        const auto add = [&](const auto& group) {
            if constexpr (requires { group.get_valor_pis(); }) {
                sum.add(group.get_valor_pis());
            } else if constexpr (requires { group.get_valor_cofins(); }) {
                sum.add(group.get_valor_cofins());
            }
        };
        std::visit(add, taxes->get_grupo_tributacao_pis());
        std::visit(add, taxes->get_grupo_tributacao_cofins());
    }
    return sum.text();
}

std::string ibs_and_cbs(const produto& item) {
    decimal_sum sum;
    const auto taxes = item.get_ibs_cbs();
    const auto amounts = taxes ? taxes->get_sequencia_ibs_cbs() : std::nullopt;
    if (amounts) {
        const auto choice = amounts->get_grupo_ibs_cbs();
        if (const auto* const regular = std::get_if<fiscal::grupo_ibs_cbs>(&choice)) {
            sum.add(regular->get_valor_ibs());
            sum.add(regular->get_informacoes_cbs().get_valor_cbs());
        } else {
            const auto& fuel = std::get<fiscal::grupo_ibs_cbs_monofasico>(choice);
            sum.add(fuel.get_valor_total_ibs_monofasico());
            sum.add(fuel.get_valor_total_cbs_monofasico());
        }
    }
    return sum.text();
}

std::string notes(const produto& item) {
    const bool counts = item.get_indicador_item_compoe_valor_total() ==
                        produto::indicador_item_compoe_valor_total::compoe;
    return joined({counts ? "" : "(not part of the invoice's total)",
                   item.get_informacoes_adicionais().value_or("")},
                  " ");
}

using row = std::vector<std::string>;

row figures(const produto& item) {
    const tax operation = tax_on_operation(item);
    return {quantity(item.get_quantidade_comercial()),
            item.get_unidade_comercial(),
            amount(item.get_valor_unitario_comercial()),
            amount(item.get_valor_total_bruto()),
            operation.situation,
            amount(operation.amount),
            pis_and_cofins(item),
            ibs_and_cbs(item)};
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
        {"#", true}, {"Code", false, 0, 8}, {"Description", false, 0, 24}};
    const std::vector<column> figure_columns = {
        {"Quantity", true}, {"Unit"},          {"Unit value", true, 2}, {"Total", true},
        {"CST", false, 3},  {"ICMS", true, 1}, {"PIS+COFINS", true, 4}, {"IBS+CBS", true, 5}};
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
