// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "foundation/Problem.h"
#include "platform/simulated/SimulatedDesk.h"

namespace tonquil {

/// Reads a desk from JSON: an array of objects, one a display, the main display first. Every key
/// may be left out:
///
///     [{ "id": 1, "serial": 7, "model": 2, "vendor": 3, "builtIn": false,
///        "millimetres": [600, 340], "connector": "DP-1", "productName": "Left",
///        "bounds": [0, 0, 1920, 1080], "rampSize": 256 }]
///
/// Displays without an ID are numbered from 1, those without bounds stand side by side. Ramps begin
/// as the straight line that display servers start with, entry i = i * 65536 / size.
[[nodiscard]] Result<SimulatedDesk> readSimulatedDesk(std::string_view json);

/// Three displays of different identities, for demonstrations and machines without a desktop.
[[nodiscard]] SimulatedDesk demonstrationDesk();

/// The ramp that a display server starts with: entry i = i * 65536 / size, which stops short of
/// 65535.
[[nodiscard]] HardwareRamp serverStartRamp(std::uint32_t size);

}  // namespace tonquil
