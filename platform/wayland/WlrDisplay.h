// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "screens/DisplayIdentity.h"
#include "screens/Geometry.h"

namespace tonquil {

/// What other parts of the program may have seen of a display: they are told when it changes.
struct WlrDisplay {
    DisplayID id = 0;
    DisplayIdentity identity;
    std::string connector;
    /// Top-down.
    Rectangle bounds;
    std::uint32_t rampSize = 0;
    std::string obstacle;

    bool operator==(const WlrDisplay&) const = default;
};

}  // namespace tonquil
