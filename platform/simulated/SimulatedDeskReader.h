// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "foundation/Problem.h"
#include "platform/simulated/SimulatedDesk.h"

namespace tonquil {

/// Reads a desk from JSON: an array of objects, one per display, the main display first. Every key
/// is optional:
///
///     [{ "id": 1, "serial": 7, "model": 2, "vendor": 3, "builtIn": false,
///        "millimetres": [600, 340], "connector": "DP-1", "productName": "Left",
///        "bounds": [0, 0, 1920, 1080], "rampSize": 256 }]
///
/// Displays without an ID are numbered from 1, those without bounds are placed side by side. Ramps
/// start as the linear ramp of a display server, entry i = i * 65536 / size.
[[nodiscard]] Result<SimulatedDesk> readSimulatedDesk(std::string_view json);

/// Three displays of different identities, for demonstrations and machines without a desktop.
[[nodiscard]] SimulatedDesk demonstrationDesk();

/// The initial ramp of a display server: entry i = i * 65536 / size, which stops short of 65535.
[[nodiscard]] HardwareRamp serverStartRamp(std::uint32_t size);

}  // namespace tonquil
