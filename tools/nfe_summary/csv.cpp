#include "csv.hpp"

#include "item_taxes.hpp"
#include "language.hpp"

#include <fmt/format.h>

#include <initializer_list>
#include <string_view>

namespace nfe_summary {

namespace {

using fiscal::decimal;

/// A text as a field of a line. What a spreadsheet would take for a formula gets an apostrophe in
/// front: texts come from strangers.
std::string field_of(std::string_view text) {
    std::string result = harmless(text);
    if (!result.empty() &&
        std::string_view("=+-@").find(result.front()) != std::string_view::npos) {
        result.insert(0, 1, '\'');
    }
    if (result.find_first_of(",\"") == result.npos) {
        return result;
    }
    std::string quoted = "\"";
    for (const char character : result) {
        quoted += character;
        quoted += character == '"' ? "\"" : "";
    }
    return quoted + '"';
}

/// The fields of a line, one behind the other.
class line {
public:
    line& text(std::string_view value) { return put(field_of(value)); }
    /// A number is no formula, also where it is negative.
    line& number(std::string_view value) { return put(value); }
    line& number(const decimal& value) { return number(plain(value)); }
    line& number(const optional<decimal>& value) { return number(plain(value)); }
    /// Fields that are such a line.
    line& fields(std::string_view part) { return put(part); }

    std::string take() { return std::move(text_); }

private:
    line& put(std::string_view field) {
        text_ += first_ ? "" : ",";
        text_ += field;
        first_ = false;
        return *this;
    }

    std::string text_;
    bool first_ = true;
};

std::string_view word_of(validity valid) {
    switch (valid) {
    case validity::authorised:
        return "authorised";
    case validity::unauthorised:
        return "unauthorised";
    case validity::cancelled:
        return "cancelled";
    case validity::denied:
        return "denied";
    case validity::rejected:
        return "rejected";
    case validity::test:
        return "test";
    }
    return {};
}

constexpr std::string_view invoice_headings =
    "file,chNFe,status,counted,cStat,nProt,dhRecbto,tpAmb,mod,serie,nNF,dhEmi,tpNF,finNFe,natOp,"
    "emit_id,emit_xNome,emit_UF,dest_id,dest_xNome,dest_UF,vProd,vFrete,vSeg,vDesc,vOutro,vBC,"
    "vICMS,vST,vIPI,vPIS,vCOFINS,vIBS,vCBS,vNF,problems";

constexpr std::string_view item_headings =
    "file,chNFe,status,counted,nNF,dhEmi,emit_id,dest_id,nItem,cProd,cEAN,xProd,NCM,CEST,CFOP,uCom,"
    "qCom,vUnCom,vProd,vFrete,vSeg,vDesc,vOutro,indTot,ICMS_CST,vICMS,IPI_CST,vIPI,vPIS,vCOFINS,"
    "vIBS,vCBS";

void write(std::string_view text) { fmt::print("{}\r\n", text); }

} // namespace

std::string csv_row(const layout::node& infnfe, const fiscal::nota_fiscal& invoice,
                    const party& issuer, const party& recipient) {
    const fiscal::total_nfe totals = invoice.get_total_nfe();
    const fiscal::total_nfe_icms icms = totals.get_total_icms();
    const auto ibs_cbs = totals.get_total_ibs_cbs();
    const auto ibs = ibs_cbs ? ibs_cbs->get_total_grupo_ibs() : std::nullopt;
    const auto cbs = ibs_cbs ? ibs_cbs->get_total_grupo_cbs() : std::nullopt;
    const auto told = [&](const char* element) {
        return layout::text_at(infnfe, std::string("ide/") + element);
    };
    return line()
        .text(told("mod"))
        .text(told("serie"))
        .text(told("nNF"))
        .text(told("dhEmi"))
        .text(told("tpNF"))
        .text(told("finNFe"))
        .text(told("natOp"))
        .text(issuer.id)
        .text(issuer.name)
        .text(issuer.state)
        .text(recipient.id)
        .text(recipient.name)
        .text(recipient.state)
        .number(icms.get_valor_total_dos_produtos_da_nota())
        .number(icms.get_total_frete())
        .number(icms.get_total_seguro())
        .number(icms.get_valor_total_do_desconto_da_nota())
        .number(icms.get_total_despesas_acessorias())
        .number(icms.get_total_base_normal())
        .number(icms.get_total_icms_normal())
        .number(icms.get_total_retido())
        .number(icms.get_total_ipi())
        .number(icms.get_total_imposto_pis())
        .number(icms.get_total_imposto_confins())
        .number(ibs ? plain(ibs->get_total_ibs()) : "")
        .number(cbs ? plain(cbs->get_total_cbs()) : "")
        .number(icms.get_total_da_nota())
        .take();
}

std::string csv_item_row(std::size_t number, const fiscal::produto& item) {
    const item_tax operation = tax_on_operation(item);
    const item_tax ipi = ipi_of(item);
    const auto cest = item.get_cest();
    return line()
        .number(fmt::to_string(number))
        .text(item.get_codigo_produto())
        .text(item.get_codigo_de_barras())
        .text(item.get_descricao())
        .text(ncm_of(item))
        .text(cest ? fmt::format("{:07}", *cest) : "")
        .text(cfop_of(item))
        .text(item.get_unidade_comercial())
        .number(item.get_quantidade_comercial())
        .number(item.get_valor_unitario_comercial())
        .number(item.get_valor_total_bruto())
        .number(item.get_valor_frete())
        .number(item.get_valor_seguro())
        .number(item.get_valor_desconto())
        .number(item.get_valor_despesas_acessorias())
        .text(counts_in_total(item) ? "1" : "0")
        .text(operation.situation)
        .number(operation.amount)
        .text(ipi.situation)
        .number(ipi.amount)
        .number(pis_of(item).plain_text())
        .number(cofins_of(item).plain_text())
        .number(ibs_of(item).plain_text())
        .number(cbs_of(item).plain_text())
        .take();
}

void write_csv(const survey& all, bool items) {
    write(items ? item_headings : invoice_headings);
    for (const surveyed& invoice : all.invoices) {
        if (!invoice.failure.empty()) {
            continue;
        }
        line begin;
        begin.text(invoice.file)
            .text(invoice.key)
            .text(word_of(invoice.valid))
            .text(invoice.counts() ? "1" : "0");
        if (items) {
            begin.text(invoice.number)
                .text(invoice.issued)
                .text(invoice.issuer.id)
                .text(invoice.recipient.id);
            const std::string head = begin.take();
            for (const std::string& item : invoice.item_rows) {
                write(line().fields(head).fields(item).take());
            }
        } else {
            const layout::protocol answer = invoice.answer.value_or(layout::protocol());
            write(begin.text(answer.status)
                      .text(answer.number)
                      .text(answer.received)
                      .text(invoice.environment)
                      .fields(invoice.row)
                      .text(joined(invoice.problems, "; "))
                      .take());
        }
    }
}

} // namespace nfe_summary
