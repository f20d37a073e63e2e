#include "language.hpp"
#include "show.hpp"
#include "values.hpp"

#include <string>
#include <vector>

namespace nfe_summary {

namespace {

/// Amounts that are not zero, with their labels.
class amount_list {
public:
    void add(const std::string& label, const optional<fiscal::decimal>& value) {
        if (value && *value != fiscal::decimal()) {
            amounts_.push_back({label, amount(*value)});
        }
    }
    const std::vector<labelled_amount>& amounts() const { return amounts_; }

private:
    std::vector<labelled_amount> amounts_;
};

void add_icms(amount_list& list, const fiscal::total_nfe_icms& total) {
    list.add(tr("Products"), total.get_valor_total_dos_produtos_da_nota());
    list.add(tr("Freight"), total.get_total_frete());
    list.add(tr("Insurance"), total.get_total_seguro());
    list.add(tr("Other expenses"), total.get_total_despesas_acessorias());
    list.add(tr("Discount"), total.get_valor_total_do_desconto_da_nota());
    list.add(tr("ICMS base"), total.get_total_base_normal());
    list.add("ICMS", total.get_total_icms_normal());
    list.add(tr("ICMS relieved"), total.get_total_desonerado());
    list.add(tr("ICMS ST base"), total.get_total_base_st());
    list.add("ICMS ST", total.get_total_retido());
    list.add("FCP", total.get_total_fcp());
    list.add("FCP ST", total.get_total_fcp_retido());
    list.add(tr("FCP ST before"), total.get_total_fcp_retido_anteriormente());
    list.add(tr("FCP destination"), total.get_total_icms_fcp());
    list.add(tr("ICMS destination"), total.get_total_icms_destino());
    list.add(tr("ICMS origin"), total.get_total_icms_remetente());
    list.add(tr("ICMS monophasic"), total.get_total_icms_monofasico());
    list.add(tr("ICMS mono. withheld"), total.get_total_icms_monofasico_retencao());
    list.add(tr("ICMS mono. before"), total.get_total_icms_monofasico_retido());
    list.add(tr("Import duty"), total.get_total_imposto_de_importacao());
    list.add("IPI", total.get_total_ipi());
    list.add(tr("IPI returned"), total.get_total_ipi_devolvido());
    list.add("PIS", total.get_total_imposto_pis());
    list.add("COFINS", total.get_total_imposto_confins());
}

void add_services(amount_list& list, const fiscal::total_nfe_issqn& total) {
    list.add(tr("Services"), total.get_valor_servico());
    list.add(tr("ISS base"), total.get_valor_base_calculo());
    list.add("ISS", total.get_valor_iss());
    list.add(tr("ISS withheld"), total.get_valor_iss_retido());
    list.add(tr("Services' PIS"), total.get_valor_pis());
    list.add(tr("Services' COFINS"), total.get_valor_cofins());
}

void add_withheld(amount_list& list, const fiscal::total_nfe_retencao_tributos& total) {
    list.add(tr("PIS withheld"), total.get_valor_pis_retido());
    list.add(tr("COFINS withheld"), total.get_valor_cofins_retido());
    list.add(tr("CSLL withheld"), total.get_valor_csll_retido());
    list.add(tr("IRRF withheld"), total.get_valor_irrf());
    list.add(tr("Pension withheld"), total.get_valor_retencao_previdencia());
}

void add_ibs_cbs(amount_list& list, const fiscal::total_ibs_cbs& total) {
    list.add(tr("IBS/CBS base"), total.get_total_bc_ibs_cbs());
    if (const auto ibs = total.get_total_grupo_ibs()) {
        list.add(tr("IBS state"), ibs->get_total_grupo_ibs_uf().get_total());
        list.add(tr("IBS city"), ibs->get_total_grupo_ibs_municipio().get_total());
        list.add("IBS", ibs->get_total_ibs());
        list.add(tr("IBS credit"), ibs->get_total_cred_pres());
    }
    if (const auto cbs = total.get_total_grupo_cbs()) {
        list.add("CBS", cbs->get_total_cbs());
        list.add(tr("CBS credit"), cbs->get_total_cred_pres());
    }
    if (const auto fuel = total.get_total_grupo_monofasia()) {
        list.add(tr("IBS monophasic"), fuel->get_total_ibs());
        list.add(tr("CBS monophasic"), fuel->get_total_cbs());
    }
}

} // namespace

void show_totals(const page& out, const fiscal::total_nfe& totals) {
    const fiscal::total_nfe_icms icms = totals.get_total_icms();
    amount_list list;
    add_icms(list, icms);
    if (const auto services = totals.get_total_issqn()) {
        add_services(list, *services);
    }
    if (const auto withheld = totals.get_total_nfe_retencao_tributos()) {
        add_withheld(list, *withheld);
    }
    if (const auto selective = totals.get_total_is()) {
        list.add("IS", selective->get_total());
    }
    if (const auto ibs_cbs = totals.get_total_ibs_cbs()) {
        add_ibs_cbs(list, *ibs_cbs);
    }
    list.add(tr("Taxes, estimated"), icms.get_total_dos_tributos_do_item());
    out.amounts(list.amounts());
    out.heading(say("Invoice total  {}", amount(icms.get_total_da_nota())));
    const auto with_new_taxes = totals.get_total_nfe_geral();
    if (with_new_taxes && *with_new_taxes != icms.get_total_da_nota()) {
        out.heading(say("Total with IBS, CBS and IS  {}", amount(*with_new_taxes)));
    }
}

} // namespace nfe_summary
