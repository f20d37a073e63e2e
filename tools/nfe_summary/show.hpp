#pragma once

#include "page.hpp"
#include "reading.hpp"

#include <layout/xml.hpp>

/// An invoice on one screen, part by part.
namespace nfe_summary {

namespace fiscal = kivo::erp::v12::fiscal;
namespace layout = kivo::erp::v12::layout;

void show(const page& out, const layout::invoice_document& document);

void show_head(const page& out, const fiscal::nota_fiscal& invoice);
void show_items(const page& out, const std::vector<fiscal::produto>& items);
void show_totals(const page& out, const fiscal::total_nfe& totals);
void show_payment(const page& out, const fiscal::nota_fiscal& invoice);
void show_transport(const page& out, const fiscal::informacoes_transporte& transport);
void show_texts(const page& out, const fiscal::nota_fiscal& invoice);

} // namespace nfe_summary
