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

/// What a group, or its normal part, tells of the ICMS on the operation itself.
template <class Group> item_tax icms_of(const Group& group) {
    item_tax tax{icms_situation(group), {}};
    const auto take = [&](const auto& part) {
        if constexpr (requires { part.get_valor_icms(); }) {
            tax.amount = part.get_valor_icms();
        }
        if constexpr (requires { part.get_valor_bc_icms(); }) {
            tax.base = part.get_valor_bc_icms();
        }
        if constexpr (requires { part.get_aliquota_icms(); }) {
            tax.rate = part.get_aliquota_icms();
        }
    };
    const auto take_normal = [&](const auto& part) {
        if (part) {
            take(*part);
        }
    };
    if constexpr (requires { group.get_tributacao_normal_icms_90(); }) {
        take_normal(group.get_tributacao_normal_icms_90());
    } else if constexpr (requires { group.get_tributacao_normal_icms_900(); }) {
        take_normal(group.get_tributacao_normal_icms_900());
    } else {
        take(group);
    }
    return tax;
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
        return {"ISSQN", service->get_valor_issqn(), service->get_valor_bc(),
                service->get_valor_aliquota()};
    }
    return std::visit([](const auto& group) { return icms_of(group); },
                      std::get<produto::icms>(*choice));
}

item_tax ipi_of(const produto& item) {
    const auto tax = item.get_tributacao_ipi();
    if (!tax) {
        return {};
    }
    item_tax result{layout::text_of(tax->get_cst_ipi(), layout::digits(2)).value_or(""),
                    tax->get_valor_ipi()};
    if (const auto by_rate = tax->get_tributacao_ipi_calculo_aliquota()) {
        result.base = by_rate->get_valor_bc_ipi();
        result.rate = by_rate->get_aliquota_ipi();
    }
    return result;
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
