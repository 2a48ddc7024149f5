// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "colourfiles/Calibration.h"
#include "foundation/Problem.h"

namespace tonquil {

/// Whether a file starts like a calibration in CGATS text; it may still be damaged.
[[nodiscard]] bool beginsLikeCal(std::span<const std::uint8_t> bytes);

/// Reads the first table of a .cal file, CGATS text with the columns RGB_I, RGB_R, RGB_G and RGB_B
/// in any order among others. The inputs RGB_I are evenly spaced from 0 to 1, 2 to 65,536 of them.
[[nodiscard]] Result<Calibration> readCal(std::span<const std::uint8_t> text);

}  // namespace tonquil
