// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cli/Commands.h"
#include "model/GammaTable.h"
#include "screens/DisplayIdentity.h"

namespace tonquil {

/// A table that was read from a display.
struct DisplayTable {
    DisplayDescription display;
    GammaTable table;
    /// How many samples per channel were read, at least 2.
    std::uint32_t sampleCount = 0;
};

enum class TableSource : std::uint8_t {
    Base,      ///< The system calibration.
    Hardware,  ///< Whatever is on the hardware now.
};

/// Reads the table of the one display that is named, or of the main one.
[[nodiscard]] Result<DisplayTable> readTable(TableSource source, const Arguments& arguments,
                                             const CommandEnvironment& environment);

}  // namespace tonquil
