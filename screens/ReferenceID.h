// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "screens/DisplayIdentity.h"

namespace tonquil {

/// Identifies a display across sessions and reconnects; the key of every per-display setting.
struct ReferenceID {
    std::string text;
    /// True if the display has no serial number: another machine's display of the same model may
    /// then have the same text.
    bool isLocallyUnique = false;
};

/// "serial-model-vendor", or, without a usable serial number, "builtin-model-vendor" for a built-in
/// display and "WIDTHxHEIGHT-model-vendor" (millimetres, six decimals, a decimal point in every
/// locale) for any other.
[[nodiscard]] ReferenceID referenceIDFor(const DisplayIdentity& identity);

/// "<referenceID>@<connector>": tells twins (displays with the same reference ID) apart by
/// connector.
[[nodiscard]] std::string twinReferenceIDFor(const std::string& referenceID,
                                             const std::string& connector);

}  // namespace tonquil
