#include "forms.hpp"

#include "language.hpp"
#include "values.hpp"

#include <fmt/format.h>

namespace nfe_summary {

namespace {

using fiscal::nota_fiscal;

void add_issuer(markup head, const fiscal::emitente& issuer) {
    const markup box = add(head, "div", "issuer");
    add_text(box, "h3", tr("ISSUER"));
    add_text(box, "b", issuer.get_razao_social());
    const std::string trade_name = issuer.get_nome_fantasia().value_or("");
    if (!trade_name.empty() && trade_name != issuer.get_razao_social()) {
        add_text(box, "p", trade_name);
    }
    const auto place = issuer.get_endereco();
    add_text(box, "p", street(place));
    add_text(box, "p", joined({place.get_bairro(), postal_code(place)}, " - "));
    add_text(box, "p",
             joined({joined({place.get_nome_municipio(), place.get_uf()}, " - "),
                     labelled(tr("tel."), phone(issuer.get_telefone().value_or("")))}));
}

void add_title(markup head, const nota_fiscal& invoice) {
    const markup box = add(head, "div", "title");
    add_text(box, "h1", "DANFE");
    add_text(box, "p", tr("Auxiliary Document of the Electronic Invoice"));
    const markup direction = add(box, "div", "direction");
    const markup choices = add(direction, "div");
    add_text(choices, "p", tr("0 - INBOUND"));
    add_text(choices, "p", tr("1 - OUTBOUND"));
    add_text(direction, "b",
             invoice.get_tipo_operacao() == nota_fiscal::tipo_operacao::entrada ? "0" : "1");
    add_text(box, "b", say("No. {}", form_number(invoice.get_numero())));
    add_text(box, "b", say("SERIES {}", invoice.get_serie()));
}

} // namespace

void add_danfe_head(markup form, const form_source& from) {
    const nota_fiscal& invoice = from.invoice;
    const fiscal::emitente issuer = invoice.get_emitente();
    const markup part = add(form, "section", "head");
    const markup head = add(part, "div", "head-boxes");
    add_issuer(head, issuer);
    add_title(head, invoice);
    const markup box = add(head, "div", "key");
    add_key(box, from.told.key);
    add_fields(box, {{tr("ACCESS KEY"), key(from.told.key), 24}});
    add_text(box, "p",
             tr("Its authenticity can be looked up at the national portal of the NF-e, "
                "www.nfe.fazenda.gov.br/portal, or at the site of the tax office that "
                "authorised it"));
    add_fields(part,
               {{tr("NATURE OF THE OPERATION"), invoice.get_natureza_operacao(), 14},
                {from.told.valid == validity::denied ? tr("PROTOCOL OF THE DENIAL OF USE")
                                                     : tr("PROTOCOL OF THE AUTHORISATION OF USE"),
                 protocol_text(from.told), 10}});
    add_fields(
        part,
        {{tr("STATE REGISTRATION"), issuer.get_ie(), 8},
         {tr("STATE REGISTRATION OF THE TAX SUBSTITUTE"), issuer.get_iest().value_or(""), 8},
         {from.told.issuer.id.size() == 11 ? "CPF" : "CNPJ", id_text(from.told.issuer.id), 8}});
}

} // namespace nfe_summary
