// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/Primaries.h"

namespace tonquil {

/// Identifies a display while it is attached; it may get a different ID when it comes back. 0 means
/// the main display.
using DisplayID = std::uint32_t;

/// What a display reports about itself.
struct DisplayIdentity {
    /// 0 and 4294967295 mean no serial number.
    std::uint32_t serialNumber = 0;
    std::uint32_t modelNumber = 0;
    std::uint32_t vendorNumber = 0;
    bool isBuiltIn = false;
    double widthInMillimetres = 0;
    double heightInMillimetres = 0;

    bool operator==(const DisplayIdentity&) const = default;
};

/// What the user sees about a display.
struct DisplayDescription {
    /// The connector name, such as "DP-1".
    std::string connector;
    /// The monitor's model name, such as "DELL U2720Q"; may be empty.
    std::string productName;
    /// Entries per channel of the hardware gamma ramp; 0 if there is none.
    std::uint32_t rampSize = 0;
    /// Why the display cannot be corrected, as a sentence; empty if it can.
    std::string obstacle;
    /// Whether the obstacle is another program that holds the display, and may let it go.
    bool isTaken = false;
    /// Whether a correction stays on the display when the program that set it ends.
    bool outlivesProgram = true;
    /// Whether it can be told what is on the hardware now.
    bool isReadable = true;
    /// Nothing where the display does not report plausible ones.
    std::optional<Primaries> primaries = {};

    /// Connector and model name, as far as they are known.
    [[nodiscard]] std::string name() const {
        return productName.empty() ? connector : connector + " " + productName;
    }
};

}  // namespace tonquil
