#pragma once

#include "source.hpp"
#include "values.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

/// Many invoices: each with what makes it count or not.
namespace nfe_summary {

/// Whether an invoice is one, in the order in which it matters.
enum class validity : std::uint8_t {
    authorised,
    unauthorised, ///< no answer of the tax office is known
    cancelled,
    denied,
    rejected,
    test, ///< of the test environment, whatever the answer
};

/// What an invoice is for. Only regular ones are sales or the like.
enum class nature : std::uint8_t {
    regular,
    inbound, ///< issued for goods that come in (tpNF 0)
    complement,
    adjustment,
    returned,
    credit_note,
    debit_note,
};

/// An issuer or recipient.
struct party {
    std::string id; ///< CNPJ or CPF, plain
    std::string name;
    std::string state;
};

/// What is summed of an item.
struct surveyed_item {
    std::string ncm;
    std::string cfop;
    bool counts = true; ///< in the invoice's total
    fiscal::decimal value;
    optional<fiscal::decimal> icms;
    optional<fiscal::decimal> ipi;
};

/// An invoice among others.
struct surveyed {
    std::string file;    ///< with the number in it where it holds several
    std::string failure; ///< why it cannot be read; the rest is empty then

    std::string key;
    std::string environment; ///< 1 production, 2 homologation (tpAmb)
    std::string number;
    std::string issued; ///< AAAA-MM-DDThh:mm:ss-03:00
    party issuer;
    party recipient;
    fiscal::decimal total;
    nature kind = nature::regular;
    optional<layout::protocol> answer; ///< to this invoice
    std::size_t content = 0;           ///< the same for the same texts
    std::vector<surveyed_item> items;  ///< where they are asked for
    std::string row;                   ///< for --csv, without its ends
    std::vector<std::string> item_rows;

    validity valid = validity::unauthorised;
    bool refused = false;              ///< a field cannot hold a text of it
    bool repeated = false;             ///< its key comes twice, and the other counts
    std::vector<std::string> problems; ///< what makes it doubtful
    std::vector<std::string> notes;    ///< what else is to be told

    bool counts() const { return failure.empty() && !repeated; }
};

/// An event, or an answer, and its file.
struct surveyed_event {
    std::string file;
    layout::event told;
    bool has_invoice = false; ///< among the files
};
struct surveyed_answer {
    std::string file;
    layout::protocol told;
    bool has_invoice = false;
};

struct survey {
    std::vector<surveyed> invoices; ///< in the order of the files, with those that cannot be read
    std::vector<surveyed_event> events;
    std::vector<surveyed_answer> answers;
};

/// What of each invoice is kept.
enum class survey_detail {
    invoices,
    items,     ///< what is summed of each
    rows,      ///< the lines of --csv
    item_rows, ///< those of --csv --items
};

/// Reads files on all cores, and tells what events, answers and repeated keys make of the invoices.
survey survey_of(const std::vector<std::string>& paths, std::size_t limit, survey_detail detail);

/// The same of files that are read already.
survey survey_of(const std::deque<named_source>& files, survey_detail detail);

/// What an event tells, in one line.
std::string event_text(const layout::event& event);

/// Why an event changes nothing; empty where it does.
std::string event_problem(const layout::event& event);

} // namespace nfe_summary
