// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "model/GammaTable.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

/// The curve that comes closest to a table.
struct CurveFit {
    /// Absolute; split into masters and remainders.
    std::shared_ptr<TQExtendedGammaCurve> curve;
    /// The largest difference between a level of the table and the curve's, held to 0…1.
    float largestDifference = 0;
};

/// Finds black, middle and white of each channel by least squares over all 256 levels. A table that
/// came from an absolute curve gives that curve back. The middle is held to 1/32…32; a channel of
/// one level only has the middle 1.
[[nodiscard]] CurveFit fitCurve(const GammaTable& table);

}  // namespace tonquil
