#include "bars.hpp"

#include <fmt/format.h>

#include <zint.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>

namespace nfe_summary {

namespace {

struct delete_symbol {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using symbol_owner = std::unique_ptr<zint_symbol, delete_symbol>;

symbol_owner symbol_of(int symbology) {
    symbol_owner symbol(ZBarcode_Create());
    if (symbol) {
        symbol->symbology = symbology;
        symbol->show_hrt = 0;
        symbol->scale = 0.5F; // a module is one wide
    }
    return symbol;
}

optional<bars> drawn(const symbol_owner& symbol, std::string_view text, float margin) {
    constexpr std::size_t longest = 4096; // no code holds so many
    if (!symbol || text.empty() || text.size() > longest) {
        return {};
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const int outcome =
        ZBarcode_Encode_and_Buffer_Vector(symbol.get(), bytes, static_cast<int>(text.size()), 0);
    if (outcome >= ZINT_ERROR || symbol->vector == nullptr) {
        return {};
    }
    bars result{symbol->vector->width, symbol->vector->height, margin, ""};
    const auto out = std::back_inserter(result.path);
    for (const zint_vector_rect* dark = symbol->vector->rectangles; dark != nullptr;
         dark = dark->next) {
        fmt::format_to(out, "M{} {}h{}v{}h-{}z", dark->x, dark->y, dark->width, dark->height,
                       dark->width);
    }
    return result;
}

} // namespace

bool is_key(std::string_view text) {
    constexpr std::size_t length = 44;
    return text.size() == length && std::all_of(text.begin(), text.end(), [](char character) {
               return (character >= '0' && character <= '9') ||
                      (character >= 'A' && character <= 'Z');
           });
}

optional<bars> key_bars(std::string_view key) {
    const symbol_owner symbol = symbol_of(BARCODE_CODE128);
    if (!is_key(key) || !symbol) {
        return {};
    }
    symbol->height = 50;
    return drawn(symbol, key, 10);
}

optional<bars> qr_code(std::string_view text) {
    constexpr int medium_correction = 2;
    const symbol_owner symbol = symbol_of(BARCODE_QRCODE);
    if (symbol) {
        symbol->input_mode = UNICODE_MODE;
        symbol->option_1 = medium_correction;
    }
    return drawn(symbol, text, 4);
}

} // namespace nfe_summary
