// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/GammaTable.h"

namespace tonquil {

/// What a calibration does to one channel: samples at even distances from input 0 to 1 or, without
/// samples, minimum + (maximum - minimum) * input ^ exponent. Levels may lie outside 0…1.
struct CalibrationChannel {
    std::vector<double> samples = {};
    double minimum = 0;
    double maximum = 1;
    double exponent = 1;

    /// At an input of 0…1, between two samples on the straight line through both.
    [[nodiscard]] double level(double input) const;
};

/// Red, green, blue.
using Calibration = std::array<CalibrationChannel, GammaTable::channelCount>;

/// The entry 0…65535 of a level, rounded; not-a-number gives 0.
[[nodiscard]] std::uint16_t entryOf(double level);

/// The calibration at 256 inputs from 0 to 1, each level rounded to one of 65,536.
[[nodiscard]] GammaTable tableOf(const Calibration& calibration);

/// The calibration whose samples are the first `sampleCount` slots of each channel, at least 2.
[[nodiscard]] Calibration calibrationOf(const GammaTable& table, std::uint32_t sampleCount);

}  // namespace tonquil
