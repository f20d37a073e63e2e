#include "support/samples.hpp"

#include <layout/invoice.hpp>
#include <layout/xml.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

/// What the getters of the samples return, added up.
namespace kivo::tests {

using namespace erp::v12::fiscal;
using erp::v12::layout::read_file;

/// In ten-thousandths, of which a sum is exact.
std::int64_t amount_of(const decimal& value) {
    std::int64_t result = value.coefficient();
    EXPECT_LE(value.scale(), 4U);
    for (unsigned scale = value.scale(); scale < 4; ++scale) {
        result *= 10;
    }
    return result;
}

std::int64_t amount_of(const core::v7::optional<decimal>& value) {
    return value ? amount_of(*value) : 0;
}

/// Sums by the classes and getters that lead to the amounts, such as
/// `produto::tributacao/grupo_tributacao_icms_00::valor_icms`; of a choice of amounts, with the
/// index.
class sums {
public:
    template <class Value> void add(const Value& value, const std::string& path = "") {
        if constexpr (erp::v12::layout::is_optional<Value>) {
            if (value) {
                add(*value, path);
            }
        } else if constexpr (erp::v12::layout::is_list<Value>) {
            for (const auto& item : value) {
                add(item, path);
            }
        } else if constexpr (is_variant<Value>) {
            std::visit(
                [&](const auto& held) {
                    using alternative = std::remove_cvref_t<decltype(held)>;
                    add(held, amount_structure<alternative>
                                  ? path + '#' + std::to_string(value.index())
                                  : path);
                },
                value);
        } else if constexpr (std::is_same_v<Value, decimal>) {
            if (value.scale() <= 4) { // prices of a unit have more, and no sum
                amounts_[path] += amount_of(value);
            }
        } else if constexpr (amount_structure<Value>) {
            amounts_[path] += amount_of(value.valor);
        } else if constexpr (erp::v12::layout::group<Value>) {
            const std::string name(erp::v12::layout::detail::type_name<Value>());
            for_each_field<Value>([&](const auto& field, std::size_t) {
                std::string_view getter = field.getter_name;
                getter.remove_prefix(getter.starts_with("get_") ? 4 : 0);
                add((value.*field.get)(),
                    path + (path.empty() ? "" : "/") + name + "::" + std::string(getter));
            });
            if constexpr (std::is_same_v<Value, grupo_icms_desonerado>) {
                if (value.get_indicador_deducao() ==
                    grupo_icms_desonerado::indicador_deducao::deduz) {
                    amounts_["deducted"] += amount_of(value.get_valor_icms_desonerado());
                }
            }
        }
    }

    /// The sum of all amounts whose path ends so; an asterisk stands for digits. Several ends are
    /// added up, or, behind a minus sign, taken away.
    std::int64_t of(const std::string& ends) const {
        std::int64_t result = 0;
        std::istringstream words(ends);
        for (std::string word; words >> word;) {
            const int sign = word.front() == '-' ? -1 : 1;
            for (const auto& [path, amount] : amounts_) {
                result += ends_so(path, word.substr(sign < 0 ? 1 : 0)) ? sign * amount : 0;
            }
        }
        return result;
    }

private:
    static bool ends_so(std::string_view path, std::string_view end) {
        const std::size_t digits = end.find('*');
        if (digits == end.npos) {
            return path.ends_with(end);
        }
        if (!path.ends_with(end.substr(digits + 1))) {
            return false;
        }
        path.remove_suffix(end.size() - digits - 1);
        while (!path.empty() && std::isdigit(static_cast<unsigned char>(path.back())) != 0) {
            path.remove_suffix(1);
        }
        return path.ends_with(end.substr(0, digits));
    }

    std::map<std::string, std::int64_t> amounts_;
};

/// Which items count.
enum class counted { all, goods, services, in_the_total };

struct total {
    const char* in_totals;
    const char* in_items;
    counted which = counted::all;
};

/// Each total of an invoice, and the amounts of the items that it sums up.
const total totals[] = {
    {"icms::total_base_normal", "icms_*::valor_bc_icms"},
    {"icms::total_icms_normal", "icms_*::valor_icms -icms_02::valor_icms -icms_15::valor_icms"},
    {"icms::total_desonerado", "::valor_icms_desonerado"},
    {"icms::total_fcp", "grupo_fcp::valor"},
    {"icms::total_base_st", "icms_*::valor_bc_icms_st"},
    {"icms::total_retido", "icms_*::valor_icms_st"},
    {"icms::total_fcp_retido", "grupo_fcp_st_retido::valor"},
    {"icms::total_fcp_retido_anteriormente", "grupo_fcp_st_retido_anteriormente::valor"},
    {"icms::total_quantidade_tributada_icms_monofasico", "icms_*::quantidade_tributada"},
    {"icms::total_icms_monofasico", "icms_02::valor_icms icms_15::valor_icms"},
    {"icms::total_quantidade_tributada_icms_monofasico_retencao",
     "icms_15::quantidade_tributada_retencao"},
    {"icms::total_icms_monofasico_retencao", "icms_15::valor_icms_retencao"},
    {"icms::total_quantidade_tributada_icms_monofasico_retido",
     "icms_61::quantidade_tributada_retida"},
    {"icms::total_icms_monofasico_retido", "icms_61::valor_icms_retido"},
    {"icms::total_icms_fcp", "uf_destino::valor_icms_fundo_combate_pobreza"},
    {"icms::total_icms_destino", "uf_destino::valor_icms_uf_destino"},
    {"icms::total_icms_remetente", "uf_destino::valor_icms_uf_remetente"},
    {"icms::valor_total_dos_produtos_da_nota", "produto::valor_total_bruto", counted::in_the_total},
    {"icms::total_frete", "produto::valor_frete"},
    {"icms::total_seguro", "produto::valor_seguro"},
    {"icms::valor_total_do_desconto_da_nota", "produto::valor_desconto"},
    {"icms::total_despesas_acessorias", "produto::valor_despesas_acessorias"},
    {"icms::total_imposto_de_importacao", "::valor_imposto_importacao"},
    {"icms::total_ipi", "tributacao_ipi::valor_ipi"},
    {"icms::total_dos_tributos_do_item", "produto::valor_total_tributos"},
    {"icms::total_ipi_devolvido", "ipi_devolvido::valor"},
    {"icms::total_imposto_pis", "::valor_pis", counted::goods},
    {"icms::total_imposto_confins", "::valor_cofins", counted::goods},
    {"total_nfe_issqn::valor_servico", "produto::valor_total_bruto", counted::services},
    {"total_nfe_issqn::valor_pis", "::valor_pis", counted::services},
    {"total_nfe_issqn::valor_cofins", "::valor_cofins", counted::services},
    {"total_nfe_issqn::valor_base_calculo", "/issqn::valor_bc"},
    {"total_nfe_issqn::valor_iss", "/issqn::valor_issqn"},
    {"total_nfe_issqn::valor_deducao", "/issqn::valor_deducao"},
    {"total_nfe_issqn::valor_outras_retencoes", "/issqn::valor_outras_retencoes"},
    {"total_nfe_issqn::valor_desconto_incondicionado", "/issqn::valor_desconto_incondicionado"},
    {"total_nfe_issqn::valor_desconto_condicionado", "/issqn::valor_desconto_condicionado"},
    {"total_nfe_issqn::valor_iss_retido", "/issqn::valor_retencao_iss"},
    {"total_is::total", "valor_imposto_seletivo::valor"},
    {"total_ibs_cbs::total_bc_ibs_cbs", "grupo_ibs_cbs::valor_base_calculo"},
    {"total_grupo_ibs::total_ibs", "grupo_ibs_cbs::valor_ibs"},
    {"ibs_uf::total", "grupo_ibs_uf::valor_ibs"},
    {"ibs_uf::total_diferimento",
     "grupo_ibs_uf::informacoes_diferimento/grupo_informacoes_diferimento::valor_diferimento"},
    {"ibs_uf::total_devolucao",
     "grupo_ibs_uf::informacoes_devolucao/grupo_informacoes_devolucao::valor_tributo_devolvido"},
    {"ibs_municipio::total", "grupo_ibs_municipio::valor_ibs"},
    {"ibs_municipio::total_diferimento", "grupo_ibs_municipio::informacoes_diferimento/"
                                         "grupo_informacoes_diferimento::valor_diferimento"},
    {"ibs_municipio::total_devolucao", "grupo_ibs_municipio::informacoes_devolucao/"
                                       "grupo_informacoes_devolucao::valor_tributo_devolvido"},
    {"grupo_cbs::total_cbs", "grupo_informacoes_cbs::valor_cbs"},
    {"grupo_cbs::total_diferimento", "grupo_informacoes_cbs::informacoes_diferimento/"
                                     "grupo_informacoes_diferimento::valor_diferimento"},
    {"grupo_cbs::total_devolucao_tributos", "grupo_informacoes_cbs::informacoes_devolucao/"
                                            "grupo_informacoes_devolucao::valor_tributo_devolvido"},
    {"total_grupo_ibs::total_cred_pres", "grupo_ibs_cred_pres::valor_credito_presumido#0"},
    {"total_grupo_ibs::total_cred_pres_sus", "grupo_ibs_cred_pres::valor_credito_presumido#1"},
    {"grupo_cbs::total_cred_pres", "grupo_cbs_cred_pres::valor_credito_presumido#0"},
    {"grupo_cbs::total_cred_pres_sus", "grupo_cbs_cred_pres::valor_credito_presumido#1"},
    {"monofasia::total_ibs", "grupo_monofasico_padrao::valor_ibs_monofasico"},
    {"monofasia::total_cbs", "grupo_monofasico_padrao::valor_cbs_monofasico"},
    {"monofasia::total_ibs_retencao", "grupo_monofasica_retencao::valor_ibs_monofasico"},
    {"monofasia::total_cbs_retencao", "grupo_monofasica_retencao::valor_cbs_monofasico"},
    {"monofasia::total_ibs_retido", "grupo_monofasica_retida::valor_ibs_monofasico"},
    {"monofasia::total_cbs_retido", "grupo_monofasica_retida::valor_cbs_monofasico"},
};

/// What the items of an invoice come to, by which of them count.
std::map<counted, sums> sums_of(const std::vector<produto>& items) {
    std::map<counted, sums> result;
    for (const produto& item : items) {
        const auto tax = item.get_tributacao();
        const bool service = tax && std::holds_alternative<issqn>(*tax);
        result[counted::all].add(item);
        result[service ? counted::services : counted::goods].add(item);
        if (!service && item.get_indicador_item_compoe_valor_total() ==
                            produto::indicador_item_compoe_valor_total::compoe) {
            result[counted::in_the_total].add(item);
        }
    }
    return result;
}

void expect_payments(const nota_fiscal& invoice, std::int64_t to_pay) {
    const informacoes_pagamento payment = invoice.get_informacoes_pagamento();
    std::int64_t paid = -amount_of(payment.get_valor_total_troco());
    for (const detalhes_pagamento& each : payment.get_detalhes_pagamento()) {
        if (each.get_meio_pagamento() == detalhes_pagamento::meio_pagamento::sem_pagamento) {
            return;
        }
        paid += amount_of(each.get_valor_pagamento());
    }
    EXPECT_EQ(paid, to_pay);
}

// Catches two amounts that change places in the layout map: they do so both ways.
TEST(samples, sum_up_to_their_totals) {
    std::set<std::string> met{"icms::total_icms_remetente"}; // it is 0 since 2019
    for (const auto& file : std::filesystem::directory_iterator(KIVO_SOURCE_DIR "/examples/data")) {
        SCOPED_TRACE(file.path());
        const nota_fiscal invoice = read_file(file.path().string()).invoice;
        const auto items = sums_of(invoice.get_produtos());
        sums in_totals;
        in_totals.add(invoice.get_total_nfe());
        for (const total& row : totals) {
            const auto of_items = items.find(row.which);
            const std::int64_t sum =
                of_items == items.end() ? 0 : of_items->second.of(row.in_items);
            EXPECT_EQ(in_totals.of(row.in_totals), sum) << row.in_totals;
            if (sum != 0) {
                met.insert(row.in_totals);
            }
        }

        const total_nfe_icms sum = invoice.get_total_nfe().get_total_icms();
        EXPECT_EQ(amount_of(sum.get_total_da_nota()),
                  amount_of(sum.get_valor_total_dos_produtos_da_nota()) -
                      amount_of(sum.get_valor_total_do_desconto_da_nota()) +
                      amount_of(sum.get_total_retido()) + amount_of(sum.get_total_fcp_retido()) +
                      amount_of(sum.get_total_icms_monofasico_retencao()) +
                      amount_of(sum.get_total_frete()) + amount_of(sum.get_total_seguro()) +
                      amount_of(sum.get_total_despesas_acessorias()) +
                      amount_of(sum.get_total_imposto_de_importacao()) +
                      amount_of(sum.get_total_ipi()) + amount_of(sum.get_total_ipi_devolvido()) +
                      in_totals.of("total_nfe_issqn::valor_servico") -
                      items.at(counted::all).of("deducted"));
        const auto whole = invoice.get_total_nfe().get_total_nfe_geral();
        expect_payments(invoice, whole ? amount_of(*whole) : amount_of(sum.get_total_da_nota()));
    }
    for (const total& row : totals) {
        EXPECT_TRUE(met.contains(row.in_totals)) << row.in_totals << " is 0 in all samples";
    }
}

} // namespace kivo::tests
