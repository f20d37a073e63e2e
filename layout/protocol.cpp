#include <layout/protocol.hpp>

#include <algorithm>
#include <array>

namespace kivo::erp::v12::layout {

namespace {

template <std::size_t count>
bool is_one_of(std::string_view text, const std::array<std::string_view, count>& texts) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// The text of the element directly in another; empty where either is not there.
std::string text_in(const node* parent, const element_name& name) {
    const node* const found = parent == nullptr ? nullptr : child_named(*parent, name);
    return found == nullptr ? std::string() : std::string(found->text);
}

const node* in(const node* parent, const element_name& name) {
    return parent == nullptr ? nullptr : child_named(*parent, name);
}

} // namespace

standing standing_of(std::string_view status) {
    using namespace std::string_view_literals;
    if (is_one_of(status, std::array{"100"sv, "150"sv})) {
        return standing::authorised;
    }
    if (is_one_of(status, std::array{"101"sv, "151"sv, "155"sv})) {
        return standing::cancelled;
    }
    if (is_one_of(status, std::array{"110"sv, "205"sv, "301"sv, "302"sv, "303"sv})) {
        return standing::denied;
    }
    return standing::rejected;
}

protocol read_protocol(const node& protnfe) {
    const node* const answer = in(&protnfe, "infProt");
    return {text_in(answer, "chNFe"),   text_in(answer, "nProt"),    text_in(answer, "cStat"),
            text_in(answer, "xMotivo"), text_in(answer, "dhRecbto"), text_in(answer, "tpAmb")};
}

bool event::is_registered() const {
    return status == "135" || status == "136" || (is_cancellation() && status == "155");
}

bool event::is_cancellation() const { return type == "110111" || type == "110112"; }

bool event::is_correction() const { return type == "110110"; }

event read_event(const node& document) {
    const bool answered = document.name == "procEventoNFe";
    const node* const told = in(answered ? in(&document, "evento") : &document, "infEvento");
    const node* const detail = in(told, "detEvento");
    const node* const answer = answered ? in(in(&document, "retEvento"), "infEvento") : nullptr;
    return {.key = text_in(told, "chNFe"),
            .type = text_in(told, "tpEvento"),
            .sequence = text_in(told, "nSeqEvento"),
            .name = text_in(detail, "descEvento"),
            .time = text_in(told, "dhEvento"),
            .environment = text_in(told, "tpAmb"),
            .justification = text_in(detail, "xJust"),
            .correction = text_in(detail, "xCorrecao"),
            .status = text_in(answer, "cStat"),
            .reason = text_in(answer, "xMotivo"),
            .number = text_in(answer, "nProt"),
            .registered = text_in(answer, "dhRegEvento")};
}

} // namespace kivo::erp::v12::layout
