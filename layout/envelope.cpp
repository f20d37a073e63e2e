#include <layout/envelope.hpp>

#include <layout/access_key.hpp>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace kivo::erp::v12::layout {

namespace {

std::size_t count_named(const node& parent, const element_name& name) {
    const children all(parent);
    return static_cast<std::size_t>(std::count_if(
        all.begin(), all.end(), [&](const node& child) { return child.name == name; }));
}

std::string_view key_in(const node& nfe) {
    const node* const infnfe = child_named(nfe, "infNFe");
    return infnfe == nullptr ? std::string_view() : key_of(*infnfe);
}

void collect(const node& element, envelope& found) {
    if (element.name == "nfeProc" && count_named(element, "NFe") == 1 &&
        count_named(element, "protNFe") <= 1) {
        found.invoices.push_back(
            {child_named(element, "NFe"), &element, child_named(element, "protNFe")});
    } else if (element.name == "NFe") {
        found.invoices.push_back({&element, nullptr, nullptr});
    } else if (element.name == "protNFe") {
        found.answers.push_back(&element);
    } else if (element.name == "procEventoNFe" || element.name == "evento") {
        found.events.push_back(&element);
    } else {
        for (const node& child : children(element)) {
            collect(child, found);
        }
    }
}

} // namespace

envelope open_envelope(const tree& document) {
    envelope found;
    collect(document.root(), found);
    if (found.answers.empty()) {
        return found;
    }
    std::unordered_map<std::string_view, const node*> by_key;
    for (const node* const answer : found.answers) {
        by_key.emplace(text_at(*answer, "infProt/chNFe"), answer);
    }
    std::unordered_set<const node*> taken;
    for (enveloped_invoice& invoice : found.invoices) {
        const auto answer = by_key.find(key_in(*invoice.nfe));
        if (invoice.protnfe == nullptr && answer != by_key.end() && !answer->first.empty()) {
            invoice.protnfe = answer->second;
            taken.insert(answer->second);
        }
    }
    std::erase_if(found.answers, [&](const node* answer) { return taken.contains(answer); });
    return found;
}

tree document_of(const enveloped_invoice& invoice) {
    tree result;
    if (invoice.around != nullptr && child_named(*invoice.around, "protNFe") == invoice.protnfe) {
        result.add(*invoice.around);
    } else if (invoice.protnfe == nullptr) {
        result.add(*invoice.nfe);
    } else {
        result.open("nfeProc");
        if (const node* const version = child_named(*invoice.protnfe, "@versao")) {
            result.add(*version);
        }
        result.add(*invoice.nfe);
        result.add(*invoice.protnfe);
        result.close();
    }
    return result;
}

} // namespace kivo::erp::v12::layout
