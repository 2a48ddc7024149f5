// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/GammaTable.h"
#include "model/TransferFormula.h"

namespace tonquil {

/// Minimum and maximum from the ends of each channel's first `sampleCount` slots, the exponent as
/// the least-squares line through the logarithms of what lies between. A channel that is constant,
/// or of fewer than three slots, has the exponent 1; no slots at all give 0, 1 and 1.
[[nodiscard]] TransferFormula fitTransferFormula(const GammaTable& table,
                                                 std::uint32_t sampleCount);

/// The formula at i / 255 for each slot i.
[[nodiscard]] GammaTable tableFromFormula(const TransferFormula& formula);

}  // namespace tonquil
