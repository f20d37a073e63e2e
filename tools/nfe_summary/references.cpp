#include "references.hpp"

#include "language.hpp"
#include "values.hpp"

namespace nfe_summary {

std::vector<std::string> references(const fiscal::nota_fiscal& invoice) {
    std::vector<std::string> result;
    for (const auto& reference : invoice.get_nfe_referenciadas()) {
        result.push_back(key(reference.get_chave_nfe()));
    }
    const auto add_paper_invoice = [&](const auto& reference) {
        result.push_back(say("paper invoice {}, series {}, issued {:02}/20{:02}",
                             reference.get_numero(), reference.get_serie(),
                             reference.get_ano_mes_emissao() % 100,
                             reference.get_ano_mes_emissao() / 100));
    };
    for (const auto& reference : invoice.get_nf_referenciadas()) {
        add_paper_invoice(reference);
    }
    for (const auto& reference : invoice.get_nfp_referenciadas()) {
        add_paper_invoice(reference);
    }
    for (const auto& reference : invoice.get_cupons_referenciados()) {
        result.push_back(say("coupon {} of printer {}", reference.get_coo(), reference.get_ecf()));
    }
    return result;
}

} // namespace nfe_summary
