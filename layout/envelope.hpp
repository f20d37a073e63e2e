#pragma once

#include <layout/tree.hpp>

#include <vector>

/// What stands in one file: an invoice, alone or with its answer, many of them in a batch or a
/// list, or what belongs to invoices; all of that also inside a message of a web service.
namespace kivo::erp::v12::layout {

/// An invoice in a document. The elements are those of the document, and live as long as it.
struct enveloped_invoice {
    const node* nfe = nullptr;     ///< NFe
    const node* around = nullptr;  ///< the nfeProc that holds this invoice alone; else null
    const node* protnfe = nullptr; ///< the answer in the same nfeProc, or of its key; else null
};

/// What a document holds, in its order.
struct envelope {
    std::vector<enveloped_invoice> invoices;
    std::vector<const node*> answers; ///< protNFe of invoices that the document does not hold
    std::vector<const node*> events;  ///< procEventoNFe, or evento without an answer

    bool empty() const { return invoices.empty() && answers.empty() && events.empty(); }
};

/// Finds the invoices of a document, and what belongs to invoices, at any depth.
envelope open_envelope(const tree& document);

/// The tree of one invoice: an nfeProc, or an NFe without an answer. Its texts are those of the
/// document, and live as long as it.
tree document_of(const enveloped_invoice& invoice);

} // namespace kivo::erp::v12::layout
