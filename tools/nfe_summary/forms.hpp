#pragma once

#include "markup.hpp"
#include "survey.hpp"

#include <string>
#include <vector>

/// The printed forms of an invoice, part by part.
namespace nfe_summary {

/// What a form is filled from: the objects, and the document for what has no field.
struct form_source {
    const layout::node& infnfe;
    const fiscal::nota_fiscal& invoice;
    const surveyed& told;
};

/// Of model 55: the DANFE.
void add_danfe(markup page, const form_source& from);
void add_danfe_head(markup form, const form_source& from);
void add_danfe_totals(markup form, const fiscal::total_nfe& totals);
void add_danfe_transport(markup form, const form_source& from);
void add_danfe_items(markup form, const std::vector<fiscal::produto>& items);
void add_danfe_services(markup form, const form_source& from);

/// Of model 65: the receipt of a consumer.
void add_receipt(markup page, const form_source& from);

/// The amounts of IBS, CBS and IS; nothing where the invoice has none.
void add_reform_totals(markup form, const fiscal::total_nfe& totals);

/// The key with its bars.
void add_key(markup form, const std::string& key);

/// The number of an invoice as forms have it: `000.018.642`.
std::string form_number(std::uint32_t number);

/// Number and time of the authorisation; empty without one.
std::string protocol_text(const surveyed& told);

} // namespace nfe_summary
