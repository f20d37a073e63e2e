#include "item_taxes.hpp"

#include <layout/text.hpp>

#include <fmt/format.h>

#include <variant>

namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

namespace {

using fiscal::produto;

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

/// Adds what an item pays of IBS or CBS, in whichever form.
template <class Regular, class Fuel>
decimal_sum ibs_or_cbs(const produto& item, Regular regular, Fuel fuel) {
    decimal_sum sum;
    const auto taxes = item.get_ibs_cbs();
    const auto amounts = taxes ? taxes->get_sequencia_ibs_cbs() : std::nullopt;
    if (amounts) {
        const auto choice = amounts->get_grupo_ibs_cbs();
        if (const auto* const group = std::get_if<fiscal::grupo_ibs_cbs>(&choice)) {
            sum.add(regular(*group));
        } else {
            sum.add(fuel(std::get<fiscal::grupo_ibs_cbs_monofasico>(choice)));
        }
    }
    return sum;
}

} // namespace

item_tax tax_on_operation(const produto& item) {
    const auto choice = item.get_tributacao();
    if (!choice) {
        return {};
    }
    if (const auto* const service = std::get_if<fiscal::issqn>(&*choice)) {
        return {"ISSQN", service->get_valor_issqn()};
    }
    return std::visit(
        [](const auto& group) {
            return item_tax{icms_situation(group), icms_amount(group)};
        },
        std::get<produto::icms>(*choice));
}

item_tax ipi_of(const produto& item) {
    const auto tax = item.get_tributacao_ipi();
    if (!tax) {
        return {};
    }
    return {layout::text_of(tax->get_cst_ipi(), layout::digits(2)).value_or(""),
            tax->get_valor_ipi()};
}

decimal_sum pis_of(const produto& item) {
    decimal_sum sum;
    if (const auto taxes = item.get_tributacao_pis_cofins()) {
        std::visit(
            [&](const auto& group) {
                if constexpr (requires { group.get_valor_pis(); }) {
                    sum.add(group.get_valor_pis());
                }
            },
            taxes->get_grupo_tributacao_pis());
    }
    return sum;
}

decimal_sum cofins_of(const produto& item) {
    decimal_sum sum;
    if (const auto taxes = item.get_tributacao_pis_cofins()) {
        std::visit(
            [&](const auto& group) {
                if constexpr (requires { group.get_valor_cofins(); }) {
                    sum.add(group.get_valor_cofins());
                }
            },
            taxes->get_grupo_tributacao_cofins());
    }
    return sum;
}

decimal_sum ibs_of(const produto& item) {
    return ibs_or_cbs(
        item, [](const auto& regular) { return regular.get_valor_ibs(); },
        [](const auto& fuel) { return fuel.get_valor_total_ibs_monofasico(); });
}

decimal_sum cbs_of(const produto& item) {
    return ibs_or_cbs(
        item, [](const auto& regular) { return regular.get_informacoes_cbs().get_valor_cbs(); },
        [](const auto& fuel) { return fuel.get_valor_total_cbs_monofasico(); });
}

std::string ncm_of(const produto& item) {
    return layout::text_of(item.get_ncm(), layout::digits(2, 8)).value_or("");
}

std::string cfop_of(const produto& item) {
    return layout::text_of(item.get_cfop(), layout::digits(4)).value_or("");
}

bool counts_in_total(const produto& item) {
    return item.get_indicador_item_compoe_valor_total() ==
           produto::indicador_item_compoe_valor_total::compoe;
}

} // namespace nfe_summary
