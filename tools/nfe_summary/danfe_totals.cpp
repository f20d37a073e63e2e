#include "forms.hpp"

#include "language.hpp"

namespace nfe_summary {

namespace {

constexpr unsigned fifth = 5;
constexpr unsigned sixth = 4;

std::string amount_or_zero(const optional<fiscal::decimal>& value) {
    return amount(value.value_or(fiscal::decimal()));
}

/// Totals that few invoices have: those that are not zero.
void add_rare_totals(markup part, const fiscal::total_nfe_icms& icms) {
    std::vector<form_field> fields;
    const auto add_rare = [&](const char* label, const optional<fiscal::decimal>& value) {
        if (value && *value != fiscal::decimal()) {
            fields.push_back({label, amount(*value), sixth, true});
        }
    };
    add_rare(tr("ICMS RELIEVED"), icms.get_total_desonerado());
    add_rare(tr("FCP ST"), icms.get_total_fcp_retido());
    add_rare(tr("FCP ST WITHHELD BEFORE"), icms.get_total_fcp_retido_anteriormente());
    add_rare(tr("FCP OF THE DESTINATION"), icms.get_total_icms_fcp());
    add_rare(tr("MONOPHASIC ICMS"), icms.get_total_icms_monofasico());
    add_rare(tr("ICMS SUBJECT TO WITHHOLDING"), icms.get_total_icms_monofasico_retencao());
    add_rare(tr("ICMS WITHHELD BEFORE"), icms.get_total_icms_monofasico_retido());
    add_rare(tr("IPI RETURNED"), icms.get_total_ipi_devolvido());
    if (!fields.empty()) {
        add_fields(part, fields);
    }
}

void add_withheld(markup form, const fiscal::total_nfe_retencao_tributos& total) {
    add_fields(
        add_part(form, tr("TAXES WITHHELD")),
        {{tr("PIS WITHHELD"), amount(total.get_valor_pis_retido()), fifth, true},
         {tr("COFINS WITHHELD"), amount(total.get_valor_cofins_retido()), fifth, true},
         {tr("CSLL WITHHELD"), amount(total.get_valor_csll_retido()), fifth, true},
         {tr("IRRF WITHHELD"), amount(total.get_valor_irrf()), sixth, true},
         {tr("PENSION WITHHELD"), amount(total.get_valor_retencao_previdencia()), fifth, true}});
}

} // namespace

void add_danfe_totals(markup form, const fiscal::total_nfe& totals) {
    const fiscal::total_nfe_icms icms = totals.get_total_icms();
    const markup part = add_part(form, tr("CALCULATION OF THE TAX"));
    add_fields(part, {{tr("BASE OF THE ICMS"), amount(icms.get_total_base_normal()), sixth, true},
                      {tr("VALUE OF THE ICMS"), amount(icms.get_total_icms_normal()), sixth, true},
                      {tr("BASE OF THE ICMS ST"), amount(icms.get_total_base_st()), sixth, true},
                      {tr("VALUE OF THE ICMS ST"), amount(icms.get_total_retido()), sixth, true},
                      {tr("VALUE OF THE FCP"), amount(icms.get_total_fcp()), sixth, true},
                      {tr("TOTAL OF THE PRODUCTS"),
                       amount(icms.get_valor_total_dos_produtos_da_nota()), sixth, true}});
    add_fields(part,
               {{tr("FREIGHT"), amount(icms.get_total_frete()), sixth, true},
                {tr("INSURANCE"), amount(icms.get_total_seguro()), sixth, true},
                {tr("DISCOUNT"), amount(icms.get_valor_total_do_desconto_da_nota()), sixth, true},
                {tr("OTHER EXPENSES"), amount(icms.get_total_despesas_acessorias()), sixth, true},
                {tr("TOTAL OF THE IPI"), amount(icms.get_total_ipi()), sixth, true},
                {tr("TOTAL OF THE INVOICE"), amount(icms.get_total_da_nota()), sixth, true}});
    add_fields(
        part,
        {{tr("IMPORT DUTY"), amount(icms.get_total_imposto_de_importacao()), sixth, true},
         {tr("ICMS OF THE ORIGIN"), amount_or_zero(icms.get_total_icms_remetente()), sixth, true},
         {tr("ICMS OF THE DESTINATION"), amount_or_zero(icms.get_total_icms_destino()), sixth,
          true},
         {tr("VALUE OF THE PIS"), amount(icms.get_total_imposto_pis()), sixth, true},
         {tr("VALUE OF THE COFINS"), amount(icms.get_total_imposto_confins()), sixth, true},
         {tr("ALL TAXES, ESTIMATED"), amount(icms.get_total_dos_tributos_do_item()), sixth, true}});
    add_rare_totals(part, icms);
    if (const auto withheld = totals.get_total_nfe_retencao_tributos()) {
        add_withheld(form, *withheld);
    }
}

void add_reform_totals(markup form, const fiscal::total_nfe& totals) {
    const auto ibs_cbs = totals.get_total_ibs_cbs();
    const auto selective = totals.get_total_is();
    const auto all = totals.get_total_nfe_geral();
    if (!ibs_cbs && !selective && !all) {
        return;
    }
    const markup part = add_part(form, tr("IBS / CBS / IS"));
    const auto ibs = ibs_cbs ? ibs_cbs->get_total_grupo_ibs() : std::nullopt;
    const auto cbs = ibs_cbs ? ibs_cbs->get_total_grupo_cbs() : std::nullopt;
    const auto fuel = ibs_cbs ? ibs_cbs->get_total_grupo_monofasia() : std::nullopt;
    add_fields(
        part,
        {{tr("BASE OF IBS AND CBS"), ibs_cbs ? amount(ibs_cbs->get_total_bc_ibs_cbs()) : "", sixth,
          true},
         {tr("IBS OF THE STATE"), ibs ? amount(ibs->get_total_grupo_ibs_uf().get_total()) : "",
          sixth, true},
         {tr("IBS OF THE CITY"),
          ibs ? amount(ibs->get_total_grupo_ibs_municipio().get_total()) : "", sixth, true},
         {tr("TOTAL OF THE IBS"), ibs ? amount(ibs->get_total_ibs()) : "", sixth, true},
         {tr("TOTAL OF THE CBS"), cbs ? amount(cbs->get_total_cbs()) : "", sixth, true},
         {tr("TOTAL OF THE IS"), selective ? amount(selective->get_total()) : "", sixth, true}});
    if (fuel) {
        add_fields(
            part, {{tr("MONOPHASIC IBS"), amount(fuel->get_total_ibs()), sixth, true},
                   {tr("MONOPHASIC CBS"), amount(fuel->get_total_cbs()), sixth, true},
                   {tr("IBS SUBJECT TO WITHHOLDING"), amount(fuel->get_total_ibs_retencao()), sixth,
                    true},
                   {tr("CBS SUBJECT TO WITHHOLDING"), amount(fuel->get_total_cbs_retencao()), sixth,
                    true},
                   {tr("IBS WITHHELD BEFORE"), amount(fuel->get_total_ibs_retido()), sixth, true},
                   {tr("CBS WITHHELD BEFORE"), amount(fuel->get_total_cbs_retido()), sixth, true}});
    }
    if (all) {
        add_fields(part,
                   {{tr("TOTAL OF THE INVOICE WITH IBS, CBS AND IS"), amount(*all), 24, true}});
    }
}

void add_danfe_services(markup form, const form_source& from) {
    const auto services = from.invoice.get_total_nfe().get_total_issqn();
    if (!services) {
        return;
    }
    add_fields(add_part(form, tr("CALCULATION OF THE ISSQN")),
               {{tr("CITY REGISTRATION"),
                 from.invoice.get_emitente().get_inscricao_municipal().value_or(""), 6},
                {tr("TOTAL OF THE SERVICES"), amount(services->get_valor_servico()), 6, true},
                {tr("BASE OF THE ISSQN"), amount(services->get_valor_base_calculo()), 6, true},
                {tr("VALUE OF THE ISSQN"), amount(services->get_valor_iss()), 6, true}});
}

} // namespace nfe_summary
