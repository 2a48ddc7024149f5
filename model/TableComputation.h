// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Computes the transfer tables of a curve, in place.
///
/// On entry `table` holds the display's base; on return the first `sampleCount` slots (at most
/// 256) of each channel hold the result and the others what they held. With black b, middle m,
/// white w, range r = w - b, sample count n and x = i / n:
///  - absolute: slot i = b + r * x^m; the base plays no part;
///  - over the base table: slot i = the base sampled at the position (b + r * x^m) * (n - 1),
///    where the fraction of the position weights the *lower* neighbour. A position outside the
///    base takes the end that it lies beyond, one that is not a number the first slot.
///
/// Since x stops at (n - 1) / n, the last slot stays a little below w. The result is the same to
/// the bit as the plain formula's, whatever shortcuts are taken.
void computeTransferTable(const CurveValues& curve, GammaTable& table, std::uint32_t sampleCount);

}  // namespace tonquil
