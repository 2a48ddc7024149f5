// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/GammaTable.h"
#include "model/TransferFormula.h"

namespace tonquil {

/// Fits a power law: minimum and maximum from the ends of each channel's first `sampleCount` slots,
/// the exponent by least squares through the logarithms in between. A channel that is constant, or
/// has fewer than three slots, gets the exponent 1; no slots at all give 0, 1 and 1.
[[nodiscard]] TransferFormula fitTransferFormula(const GammaTable& table,
                                                 std::uint32_t sampleCount);

/// The formula at i / 255 for each slot i.
[[nodiscard]] GammaTable tableFromFormula(const TransferFormula& formula);

}  // namespace tonquil
