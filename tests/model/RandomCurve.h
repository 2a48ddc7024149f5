// SPDX-License-Identifier: MIT
#pragma once

#include <random>

#include "model/CurveValues.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

/// Curves as people make them, and now and then as nobody should: out of range, huge, infinite,
/// not a number, exponents equal between channels or not.
[[nodiscard]] CurveValues randomCurveValues(std::mt19937& random);

/// A curve within the ranges that the panel offers.
[[nodiscard]] std::shared_ptr<TQExtendedGammaCurve> randomCurve(std::mt19937& random);

}  // namespace tonquil
