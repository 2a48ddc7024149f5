// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Computes the transfer tables of a curve, in place.
///
/// On entry `table` holds the display's base; on return the first `sampleCount` slots (at most 256)
/// of each channel hold the result and the others are unchanged. With black b, middle m, white w,
/// range r = w - b, sample count n and x = i / n:
///  - absolute: slot i = b + r * x^m; the base is ignored;
///  - over the base table: slot i = the base sampled at position (b + r * x^m) * (n - 1), where the
///    fraction of the position weights the *lower* neighbour. A position outside the base is
///    clamped to its nearest end; NaN takes the first slot.
///
/// x stops at (n - 1) / n, so the last slot stays a little below w. The result is bit-identical to
/// the plain formula, whatever shortcuts are used.
void computeTransferTable(const CurveValues& curve, GammaTable& table, std::uint32_t sampleCount);

}  // namespace tonquil
