#pragma once

#include <base/optional.hpp>

#include <string>
#include <string_view>

/// Bar codes as drawings.
namespace nfe_summary {

using kivo::core::v7::optional;

/// Dark bars or squares on a light ground, the narrowest of them one wide.
struct bars {
    float width = 0;
    float height = 0;
    float margin = 0; ///< what has to stay light around it
    std::string path; ///< of the dark parts, as SVG has paths
};

/// Whether a text has as many characters as an access key, and none that no key has.
bool is_key(std::string_view text);

/// An access key in Code 128, digits in pairs (128C); absent for what is none.
optional<bars> key_bars(std::string_view key);

/// A text as QR code, as a consumer's invoice has it; absent for one that does not fit.
optional<bars> qr_code(std::string_view text);

} // namespace nfe_summary
