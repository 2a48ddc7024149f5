// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/edid/Edid.h"
#include "screens/DisplayIdentity.h"
#include "screens/Geometry.h"

namespace tonquil {

/// What other parts of the program may have seen of a display: they are told when it changes.
struct ListedDisplay {
    DisplayID id = 0;
    DisplayIdentity identity;
    std::string connector;
    std::string productName;
    std::optional<Primaries> primaries;
    /// Top-down.
    Rectangle bounds;
    std::uint32_t rampSize = 0;
    std::string obstacle;
    /// Whether the obstacle is another program that holds the display.
    bool isTaken = false;
    /// Differs when the display's own calibration does, where its changes are told in this way.
    std::uint64_t calibration = 0;

    bool operator==(const ListedDisplay&) const = default;
};

/// Fills in the identity of the display on `display.connector`. Without an EDID the connector's
/// name stands for the model: otherwise all displays of one size would share a reference ID.
void identify(ListedDisplay& display, const std::optional<Edid>& edid);

}  // namespace tonquil
