#include "show.hpp"

#include "language.hpp"
#include "names.hpp"
#include "references.hpp"
#include "values.hpp"

#include <layout/text.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace nfe_summary {

namespace {

using fiscal::nota_fiscal;

std::string number_of(const optional<fiscal::cnpj>& company, const optional<std::string>& person) {
    return joined(
        {labelled("CNPJ", cnpj_text(company)), labelled("CPF", cpf_text(person.value_or("")))});
}

std::string with_trade_name(const fiscal::emitente& issuer) {
    const std::string name = issuer.get_razao_social();
    const std::string trade_name = issuer.get_nome_fantasia().value_or("");
    return trade_name.empty() || trade_name == name ? name
                                                    : fmt::format("{} ({})", name, trade_name);
}

void show_issuer(const page& out, const fiscal::emitente& issuer) {
    out.fields(
        tr("Issuer"),
        {with_trade_name(issuer),
         joined({number_of(issuer.get_cnpj(), {}), labelled(tr("state reg."), issuer.get_ie()),
                 labelled(tr("ST reg."), issuer.get_iest()),
                 labelled(tr("city reg."), issuer.get_inscricao_municipal()),
                 name_of(issuer.get_regime_fiscal())}),
         joined({address(issuer.get_endereco()), labelled(tr("tel."), issuer.get_telefone())})});
}

void show_recipient(const page& out, const optional<fiscal::destinatario>& recipient) {
    if (!recipient) {
        out.field(tr("Recipient"), tr("not named"));
        return;
    }
    const auto place = recipient->get_endereco();
    out.fields(
        tr("Recipient"),
        {recipient->get_razao_social().value_or(""),
         joined({number_of(recipient->get_cnpj(), recipient->get_cpf()),
                 labelled(tr("foreign id"), recipient->get_indicador_estrangeiro()),
                 labelled(tr("state reg."), recipient->get_ie()),
                 labelled("SUFRAMA", recipient->get_inscricao_suframa())}),
         joined({place ? address(*place) : "", labelled(tr("tel."), recipient->get_telefone()),
                 recipient->get_email().value_or("")})});
}

/// Texts behind amounts that end below each other.
std::vector<std::string> behind_amounts(const std::vector<std::string>& amounts,
                                        const std::vector<std::string>& texts) {
    std::size_t width = 0;
    for (const std::string& amount : amounts) {
        width = std::max(width, columns(amount));
    }
    std::vector<std::string> result;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        result.push_back(right(amounts[index], width) + "  " + texts[index]);
    }
    return result;
}

} // namespace

void show_head(const page& out, const nota_fiscal& invoice) {
    const std::string model = invoice.get_modelo_emissao();
    out.heading(say("{} {}, series {}, model {}", model == "65" ? "NFC-e" : "NF-e",
                    invoice.get_numero(), invoice.get_serie(), model));
    out.field(tr("Key"), key(invoice.get_chave_44_digitos()));
    out.field(tr("Issued"), time(invoice.get_data_emissao()));
    out.field(invoice.get_tipo_operacao() == nota_fiscal::tipo_operacao::entrada ? tr("Entry")
                                                                                 : tr("Departure"),
              time(invoice.get_data_saida_entrada()));
    out.field(tr("Operation"),
              joined({invoice.get_natureza_operacao(), name_of(invoice.get_tipo_operacao()),
                      name_of(invoice.get_indicador_operacao())}));
    if (invoice.get_indicador_finalidade_emissao() !=
        nota_fiscal::indicador_finalidade_emissao::normal) {
        out.field(tr("Purpose"), name_of(invoice.get_indicador_finalidade_emissao()));
    }
    if (invoice.get_indicador_ambiente() == nota_fiscal::indicador_ambiente::homologacao) {
        out.field(tr("Environment"), tr("test, without fiscal value"));
    }
    if (invoice.get_tipo_emissao() != fiscal::tipo_emissao::normal) {
        out.field(tr("Emission"),
                  joined({name_of(invoice.get_tipo_emissao()),
                          labelled(tr("since"), time(invoice.get_data_contingencia())),
                          invoice.get_justificativa_entrada_contingencia().value_or("")}));
    }
    out.fields(tr("Refers to"), references(invoice));
}

void show_parties(const page& out, const nota_fiscal& invoice) {
    show_issuer(out, invoice.get_emitente());
    show_recipient(out, invoice.get_destinatario());
    if (const auto place = invoice.get_local_entrega()) {
        out.fields(tr("Delivery to"), {number_of(place->get_cnpj(), place->get_cpf()),
                                       address(place->get_endereco())});
    }
}

void show_transport(const page& out, const fiscal::informacoes_transporte& transport) {
    out.field(tr("Transport"), name_of(transport.get_modalidade_frete()));
    if (const auto carrier = transport.get_transportador()) {
        optional<fiscal::cnpj> company;
        optional<std::string> person;
        if (const auto document = carrier->get_documento()) {
            // a person is the first alternative
            if (document->index() == 0) {
                person = layout::text_of(std::get<0>(*document));
            } else {
                company = std::get<1>(*document);
            }
        }
        out.fields(
            tr("Carrier"),
            {joined({carrier->get_razao_social().value_or(""), number_of(company, person),
                     labelled(tr("state reg."), carrier->get_ie())}),
             joined({carrier->get_endereco().value_or(""),
                     joined({carrier->get_municipio().value_or(""), carrier->get_uf().value_or("")},
                            " - ")})});
    }
    if (const auto vehicle = transport.get_veiculo()) {
        out.field(tr("Vehicle"), joined({joined({vehicle->get_placa(), vehicle->get_uf()}, " - "),
                                         labelled("RNTC", vehicle->get_rntc())}));
    }
    std::vector<std::string> volumes;
    for (const fiscal::volume& volume : transport.get_volumes()) {
        const auto kilograms = [](const optional<fiscal::decimal>& weight) {
            return weight ? quantity(*weight) + " kg" : "";
        };
        const std::uint32_t count = volume.get_quantidade(); // 0: not told
        volumes.push_back(joined(
            {joined({count == 0 ? "" : fmt::to_string(count), volume.get_especie().value_or("")},
                    " "),
             volume.get_marca().value_or(""), volume.get_numeracao().value_or(""),
             labelled(tr("net"), kilograms(volume.get_peso_liquido())),
             labelled(tr("gross"), kilograms(volume.get_peso_bruto()))}));
    }
    out.fields(tr("Volumes"), volumes);
}

void show_payment(const page& out, const nota_fiscal& invoice) {
    const auto payment = invoice.get_informacoes_pagamento();
    std::vector<std::string> amounts;
    std::vector<std::string> payments;
    for (const auto& part : payment.get_detalhes_pagamento()) {
        const auto terms = part.get_indicador_forma_pagamento();
        const auto card = part.get_transacao_tef();
        amounts.push_back(amount(part.get_valor_pagamento()));
        payments.push_back(joined(
            {name_of(part.get_meio_pagamento()), part.get_descricao_meio_pagamento().value_or(""),
             terms ? name_of(*terms) : "", day(part.get_data_pagamento()),
             labelled(tr("authorisation no."),
                      card ? card->get_numero_autorizacao() : std::nullopt)}));
    }
    out.fields(tr("Payments"), behind_amounts(amounts, payments));
    out.field(tr("Change"), amount(payment.get_valor_total_troco()));
    if (const auto billing = invoice.get_cobranca()) {
        out.field(tr("Bill"), joined({billing->get_numero_fatura().value_or(""),
                                      amount(billing->get_valor_original_fatura()),
                                      labelled(tr("less"), amount(billing->get_valor_desconto())),
                                      labelled(tr("net"), amount(billing->get_valor_liquido()))}));
        amounts.clear();
        std::vector<std::string> instalments;
        for (const fiscal::duplicata& part : billing->get_duplicatas()) {
            amounts.push_back(amount(part.get_valor_duplicata()));
            instalments.push_back(joined({labelled(tr("due"), day(part.get_data_vencimento())),
                                          part.get_numero_duplicata().value_or("")}));
        }
        out.fields(tr("Instalments"), behind_amounts(amounts, instalments));
    }
}

void show_texts(const page& out, const nota_fiscal& invoice) {
    if (const auto agent = invoice.get_informacoes_intermediador()) {
        out.field(tr("Intermediary"), joined({labelled("CNPJ", cnpj_text(agent->get_cnpj())),
                                              agent->get_identificador_cadastrado()}));
    }
    if (const auto exported = invoice.get_comercio_exterior()) {
        out.field(tr("Export"), joined({exported->get_local_embarque(), exported->get_uf_saida(),
                                        exported->get_local_despacho().value_or("")}));
    }
    if (const auto texts = invoice.get_informacoes_adicionais()) {
        out.field(tr("Notes"), texts->get_informacoes_complementares().value_or(""));
        out.field(tr("To tax office"), texts->get_informacoes_adicionais_fisco().value_or(""));
    }
}

void show_answer(const page& out, const optional<layout::protocol>& answer) {
    if (!answer) {
        out.field(tr("Authorisation"), tr("none in the file"));
        return;
    }
    const layout::standing standing = layout::standing_of(answer->status);
    out.fields(tr("Authorisation"),
               {joined({standing == layout::standing::authorised  ? ""
                        : standing == layout::standing::cancelled ? tr("CANCELLED")
                        : standing == layout::standing::denied    ? tr("USE DENIED")
                                                                  : tr("REJECTED: no invoice"),
                        joined({answer->status, answer->reason}, " ")}),
                joined({labelled(tr("protocol"), answer->number), time_text(answer->received),
                        answer->environment == "2" ? tr("test, without fiscal value") : ""})});
}

void show_event(const page& out, const layout::event& event) {
    out.heading(event.is_cancellation() ? std::string(tr("Cancellation"))
                : event.is_correction() ? say("Correction letter {}", event.sequence)
                                        : say("Event {} {}", event.type, event.name));
    out.field(tr("Key"), key(event.key));
    out.field(tr("Happened"), time_text(event.time));
    if (event.environment == "2") {
        out.field(tr("Environment"), tr("test, without fiscal value"));
    }
    out.field(tr("Justification"), event.justification);
    out.field(tr("Correction"), event.correction);
    out.fields(
        tr("Registration"),
        {event.is_registered() ? joined({event.status, event.reason}, " ") : event_problem(event),
         joined({labelled(tr("protocol"), event.number), time_text(event.registered)})});
}

void show(const page& out, const layout::tree& tree, const layout::invoice_document& document) {
    const nota_fiscal& invoice = document.invoice;
    show_head(out, invoice);
    show_answer(out, answer_in(tree));
    out.fields(tr("Doubtful"), key_problems(tree));
    show_parties(out, invoice);
    page::line("");
    show_items(out, invoice.get_produtos());
    page::line("");
    show_totals(out, invoice.get_total_nfe());
    page::line("");
    show_payment(out, invoice);
    show_transport(out, invoice.get_informacoes_transporte());
    show_texts(out, invoice);
    page::line("");
    show_reading(out, document);
}

} // namespace nfe_summary
