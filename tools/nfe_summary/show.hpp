#pragma once

#include "page.hpp"
#include "reading.hpp"
#include "survey.hpp"

/// An invoice on one screen, part by part.
namespace nfe_summary {

void show(const page& out, const layout::tree& tree, const layout::invoice_document& document);

/// An event without its invoice.
void show_event(const page& out, const layout::event& event);

void show_head(const page& out, const fiscal::nota_fiscal& invoice);
void show_answer(const page& out, const optional<layout::protocol>& answer);
void show_parties(const page& out, const fiscal::nota_fiscal& invoice);
void show_items(const page& out, const std::vector<fiscal::produto>& items);
void show_totals(const page& out, const fiscal::total_nfe& totals);
void show_payment(const page& out, const fiscal::nota_fiscal& invoice);
void show_transport(const page& out, const fiscal::informacoes_transporte& transport);
void show_texts(const page& out, const fiscal::nota_fiscal& invoice);

} // namespace nfe_summary
