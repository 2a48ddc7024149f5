// SPDX-License-Identifier: MIT
#pragma once

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// The table computation as it is written on paper, slot by slot and without any shortcut: what
/// the real one must equal to the bit.
void computeByPlainFormula(const CurveValues& curve, GammaTable& table, std::uint32_t sampleCount);

}  // namespace tonquil
