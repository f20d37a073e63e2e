#include "survey.hpp"

#include "csv.hpp"
#include "in_order.hpp"
#include "item_taxes.hpp"
#include "language.hpp"
#include "progress.hpp"
#include "reading.hpp"

#include <layout/access_key.hpp>

#include <fmt/format.h>

#include <bit>
#include <exception>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace nfe_summary {

namespace {

nature nature_of(const fiscal::nota_fiscal& invoice) {
    using purpose = fiscal::nota_fiscal::indicador_finalidade_emissao;
    switch (invoice.get_indicador_finalidade_emissao()) {
    case purpose::complementar:
        return nature::complement;
    case purpose::ajuste:
        return nature::adjustment;
    case purpose::devolucao:
        return nature::returned;
    case purpose::nota_credito:
        return nature::credit_note;
    case purpose::nota_debito:
        return nature::debit_note;
    case purpose::nao_informado:
    case purpose::normal:
        break;
    }
    return invoice.get_tipo_operacao() == fiscal::nota_fiscal::tipo_operacao::entrada
               ? nature::inbound
               : nature::regular;
}

std::size_t content_of(const layout::node& infnfe) {
    const std::hash<std::string_view> hash;
    std::size_t result = 0;
    for (const layout::node* element = &infnfe; element != &infnfe + infnfe.size; ++element) {
        for (const std::string_view text : {element->name.text(), element->text}) {
            result = std::rotl(result, 7) ^ hash(text);
        }
    }
    return result;
}

validity validity_of(const surveyed& invoice) {
    if (invoice.environment == "2" || (invoice.answer && invoice.answer->environment == "2")) {
        return validity::test;
    }
    if (!invoice.answer) {
        return validity::unauthorised;
    }
    switch (layout::standing_of(invoice.answer->status)) {
    case layout::standing::authorised:
        return validity::authorised;
    case layout::standing::cancelled:
        return validity::cancelled;
    case layout::standing::denied:
        return validity::denied;
    case layout::standing::rejected:
        break;
    }
    return validity::rejected;
}

surveyed_item surveyed_item_of(const fiscal::produto& item) {
    return {ncm_of(item),
            cfop_of(item),
            counts_in_total(item),
            item.get_valor_total_bruto(),
            tax_on_operation(item).amount,
            ipi_of(item).amount};
}

surveyed survey_invoice(const layout::tree& tree, survey_detail detail) {
    const layout::invoice_document document = read_invoice(tree);
    const fiscal::nota_fiscal& invoice = document.invoice;
    const layout::node& infnfe = layout::invoice_in(tree);
    const auto recipient = invoice.get_destinatario();
    const auto place = recipient ? recipient->get_endereco() : std::nullopt;

    surveyed result;
    result.key = layout::key_of(infnfe);
    result.environment = layout::text_at(infnfe, "ide/tpAmb");
    result.number = fmt::to_string(invoice.get_numero());
    result.issued = layout::text_at(infnfe, "ide/dhEmi");
    result.issuer = {id_in(infnfe, "emit"), invoice.get_emitente().get_razao_social(),
                     invoice.get_emitente().get_endereco().get_uf()};
    result.recipient = {id_in(infnfe, "dest"),
                        recipient ? recipient->get_razao_social().value_or("") : "",
                        place ? place->get_uf() : ""};
    result.total = invoice.get_total_nfe().get_total_icms().get_total_da_nota();
    result.kind = nature_of(invoice);
    result.answer = answer_in(tree);
    if (result.answer && !result.answer->key.empty() && result.answer->key != result.key) {
        result.answer.reset(); // that of another
    }
    result.content = content_of(infnfe);
    result.problems = key_problems(tree);
    result.refused = !document.report.refused.empty();
    for (std::string& refusal : refusals(document.report)) {
        result.problems.push_back(std::move(refusal));
    }
    if (detail == survey_detail::rows) {
        result.row = csv_row(infnfe, invoice, result.issuer, result.recipient);
    } else if (detail != survey_detail::invoices) {
        for (const fiscal::produto& item : invoice.get_produtos()) {
            if (detail == survey_detail::items) {
                result.items.push_back(surveyed_item_of(item));
            } else {
                result.item_rows.push_back(csv_item_row(result.item_rows.size() + 1, item));
            }
        }
    }
    return result;
}

/// What stands in one file.
struct surveyed_file {
    std::vector<surveyed> invoices;
    std::vector<layout::event> events;
    std::vector<layout::protocol> answers;
};

surveyed_file survey_source(const std::string& path, const source& file, survey_detail detail) {
    surveyed_file result;
    for (std::size_t index = 0; index < file.invoices.size(); ++index) {
        surveyed& added = result.invoices.emplace_back();
        try {
            added = survey_invoice(*file.invoices[index], detail);
        } catch (const std::exception& failure) {
            added.failure = failure.what();
        }
        added.file = name_in(path, file, index);
    }
    result.events = file.events;
    result.answers = file.answers;
    return result;
}

surveyed_file survey_file(const std::string& path, std::size_t limit, survey_detail detail) {
    try {
        return survey_source(path, read_source(path, limit), detail);
    } catch (const std::exception& failure) {
        surveyed_file result;
        surveyed& failed = result.invoices.emplace_back();
        failed.file = path;
        failed.failure = failure.what();
        return result;
    }
}

/// A key tells an invoice from others of its environment.
std::string identity(const std::string& environment, const std::string& key) {
    return key.empty() ? "" : environment + '/' + key;
}

/// Of each key, the invoice that counts.
using invoices_by_key = std::unordered_map<std::string, surveyed*>;

/// Lets one of those with the same key count: one with an answer, else the first.
invoices_by_key tell_repeated(survey& all) {
    invoices_by_key counting;
    for (surveyed& invoice : all.invoices) {
        const std::string key = identity(invoice.environment, invoice.key);
        if (key.empty() || !invoice.failure.empty()) {
            continue;
        }
        const auto [known, is_new] = counting.emplace(key, &invoice);
        if (is_new) {
            continue;
        }
        surveyed* other = &invoice;
        if (invoice.answer && !known->second->answer) {
            std::swap(known->second, other);
        }
        other->repeated = true;
        if (other->content == known->second->content) {
            other->notes.push_back(say("the same invoice as in {}", known->second->file));
        } else {
            other->problems.push_back(
                say("another invoice has the same key: {}", known->second->file));
        }
    }
    return counting;
}

surveyed* found_in(const invoices_by_key& by_key, const std::string& environment,
                   const std::string& key) {
    const auto found = by_key.find(identity(environment, key));
    return found == by_key.end() ? nullptr : found->second;
}

void apply_answers(survey& all, const invoices_by_key& by_key) {
    for (surveyed_answer& answer : all.answers) {
        surveyed* const invoice = found_in(by_key, answer.told.environment, answer.told.key);
        answer.has_invoice = invoice != nullptr;
        if (answer.has_invoice && !invoice->answer) {
            invoice->answer = answer.told;
        }
    }
}

void apply_events(survey& all, const invoices_by_key& by_key) {
    for (surveyed_event& event : all.events) {
        surveyed* const invoice = found_in(by_key, event.told.environment, event.told.key);
        event.has_invoice = invoice != nullptr;
        if (!event.has_invoice) {
            continue;
        }
        const bool could_count =
            invoice->valid == validity::authorised || invoice->valid == validity::unauthorised;
        if (event.told.is_registered() && event.told.is_cancellation() && could_count) {
            invoice->valid = validity::cancelled;
        }
        invoice->notes.push_back(event_text(event.told));
    }
}

void add(survey& all, const std::string& path, surveyed_file&& made) {
    for (surveyed& invoice : made.invoices) {
        all.invoices.push_back(std::move(invoice));
    }
    for (layout::event& event : made.events) {
        all.events.push_back({path, std::move(event)});
    }
    for (layout::protocol& answer : made.answers) {
        all.answers.push_back({path, std::move(answer)});
    }
}

/// Tells what events, answers and repeated keys make of the invoices.
void settle(survey& all) {
    const invoices_by_key counting = tell_repeated(all);
    apply_answers(all, counting);
    for (surveyed& invoice : all.invoices) {
        invoice.valid = validity_of(invoice);
    }
    apply_events(all, counting);
}

} // namespace

survey survey_of(const std::vector<std::string>& paths, std::size_t limit, survey_detail detail) {
    survey all;
    all.invoices.reserve(paths.size());
    progress shown(paths.size());
    make_in_order(
        paths.size(),
        [&](std::size_t index) {
            surveyed_file made = survey_file(paths[index], limit, detail);
            shown.step();
            return made;
        },
        [&](std::size_t index, surveyed_file&& made) { add(all, paths[index], std::move(made)); });
    settle(all);
    return all;
}

survey survey_of(const std::deque<named_source>& files, survey_detail detail) {
    survey all;
    for (const named_source& file : files) {
        add(all, file.path, survey_source(file.path, file.content, detail));
    }
    settle(all);
    return all;
}

std::string event_text(const layout::event& event) {
    const std::string when = time_text(event.time);
    std::string text = event.is_cancellation() ? say("cancellation of {}", when)
                       : event.is_correction()
                           ? say("correction letter {} of {}", event.sequence, when)
                           : say("event {} {} of {}", event.type, event.name, when);
    const std::string& words = event.is_correction() ? event.correction : event.justification;
    text += words.empty() ? "" : ": " + words;
    return joined({text, event_problem(event)}, "; ");
}

std::string event_problem(const layout::event& event) {
    if (event.is_registered()) {
        return "";
    }
    return event.status.empty() ? tr("not registered: it changes nothing")
                                : say("not registered: {} {}", event.status, event.reason);
}

} // namespace nfe_summary
