// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "tests/support/Ramp.h"

namespace tonquil {

/// One channel of a calibration given as a formula: min + (max - min) * input ^ gamma.
struct VideoCardFormula {
    double gamma = 1.0;
    double min = 0.0;
    double max = 1.0;
};

/// A display profile whose `vcgt` tag holds these tables, of 256 entries each.
[[nodiscard]] std::vector<std::uint8_t> buildIccWithTable(const Ramp& table);

/// A display profile whose `vcgt` tag holds a formula for red, green and blue.
[[nodiscard]] std::vector<std::uint8_t> buildIccWithFormula(
    const std::array<VideoCardFormula, 3>& formula);

/// A display profile without a `vcgt` tag.
[[nodiscard]] std::vector<std::uint8_t> buildIccWithoutCalibration();

}  // namespace tonquil
