// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace tonquil {

/// The steps of a ramp, from black to white.
inline constexpr int rampStepCount = 16;

/// The start of step `step`, as a fraction of the ramp's width; 1 for `rampStepCount`.
///
/// Steps are narrower in the middle and wider at both ends: near-black and near-white get the most
/// room.
[[nodiscard]] inline double rampStepPosition(int step) {
    const double t = step * 0.0625;
    const double fromMiddle = 2 * t - 1;
    return 0.8 * t + 0.2 * (std::pow(fromMiddle, 5) + 1) * 0.5;
}

/// The start of step `step` in a ramp that starts at `x` and is `width` wide, all in points: a
/// whole number of points from `x`, rounded half away from zero.
[[nodiscard]] inline double rampStepBoundary(int step, double x, double width) {
    return std::round(rampStepPosition(step) * width) + x;
}

/// The level of a step, from 0 to 1.
[[nodiscard]] inline double rampStepLevel(int step) {
    return step / static_cast<double>(rampStepCount - 1);
}

}  // namespace tonquil
