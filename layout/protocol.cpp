#include <layout/protocol.hpp>

#include <algorithm>
#include <array>
#include <string>

namespace kivo::erp::v12::layout {

namespace {

template <std::size_t count>
bool is_one_of(std::string_view text, const std::array<std::string_view, count>& texts) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// The text of the element at a path, as a string of its own.
std::string string_at(const node& parent, std::string_view path) {
    return std::string(text_at(parent, path));
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
    const auto told = [&](const char* name) {
        return string_at(protnfe, std::string("infProt/") + name);
    };
    return {told("chNFe"),   told("nProt"),    told("cStat"),
            told("xMotivo"), told("dhRecbto"), told("tpAmb")};
}

bool event::is_registered() const {
    return status == "135" || status == "136" || (is_cancellation() && status == "155");
}

bool event::is_cancellation() const { return type == "110111" || type == "110112"; }

bool event::is_correction() const { return type == "110110"; }

event read_event(const node& document) {
    const bool answered = document.name == "procEventoNFe";
    const auto told = [&](const char* path) {
        return string_at(document, std::string(answered ? "evento/" : "") + "infEvento/" + path);
    };
    const auto answer = [&](const char* name) {
        return answered ? string_at(document, std::string("retEvento/infEvento/") + name)
                        : std::string();
    };
    return {.key = told("chNFe"),
            .type = told("tpEvento"),
            .sequence = told("nSeqEvento"),
            .name = told("detEvento/descEvento"),
            .time = told("dhEvento"),
            .environment = told("tpAmb"),
            .justification = told("detEvento/xJust"),
            .correction = told("detEvento/xCorrecao"),
            .status = answer("cStat"),
            .reason = answer("xMotivo"),
            .number = answer("nProt"),
            .registered = answer("dhRegEvento")};
}

} // namespace kivo::erp::v12::layout
