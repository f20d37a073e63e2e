#pragma once

#include <layout/tree.hpp>

#include <base/optional.hpp>

#include <string>
#include <string_view>
#include <vector>

/// What the tax office answered to an invoice, and the events that it registered for it: documents
/// that stand beside the invoice, or in files of their own. Texts are those of the documents.
namespace kivo::erp::v12::layout {

/// The force of law that a status gives an invoice.
enum class standing {
    authorised, ///< accepted in time or late
    cancelled,  ///< accepted, and made void
    denied,     ///< its use is denied: the number is taken, the sale may not happen
    rejected,   ///< not accepted: no invoice
};

/// What a status (cStat) makes of an invoice.
standing standing_of(std::string_view status);

/// The answer to an invoice (protNFe).
struct protocol {
    std::string key;         ///< access key (chNFe)
    std::string number;      ///< of the protocol, 15 digits (nProt); empty where it was refused
    std::string status;      ///< code of the answer (cStat)
    std::string reason;      ///< the answer in words (xMotivo)
    std::string received;    ///< date and time of receipt (dhRecbto)
    std::string environment; ///< 1 production, 2 homologation (tpAmb)

    bool operator==(const protocol&) const = default;
};

/// Reads a protNFe element.
protocol read_protocol(const node& protnfe);

/// An event of an invoice with the answer to it (procEventoNFe), or without (evento).
struct event {
    std::string key;           ///< access key of the invoice (chNFe)
    std::string type;          ///< code of its kind (tpEvento)
    std::string sequence;      ///< number among those of its kind (nSeqEvento)
    std::string name;          ///< its kind in words (descEvento)
    std::string time;          ///< when it happened (dhEvento)
    std::string environment;   ///< 1 production, 2 homologation (tpAmb)
    std::string justification; ///< of a cancellation (xJust)
    std::string correction;    ///< of a correction letter (xCorrecao)
    std::string status;        ///< code of the answer (cStat); empty without one
    std::string reason;        ///< the answer in words (xMotivo)
    std::string number;        ///< of the protocol of the event (nProt)
    std::string registered;    ///< when it was registered (dhRegEvento)

    /// Whether the tax office took it down: without that, it changes nothing.
    bool is_registered() const;
    /// Whether it makes the invoice void, once it is registered.
    bool is_cancellation() const;
    bool is_correction() const;

    bool operator==(const event&) const = default;
};

/// Reads a procEventoNFe or evento element.
event read_event(const node& document);

} // namespace kivo::erp::v12::layout
