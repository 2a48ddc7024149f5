// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "colourfiles/IccWriter.h"
#include "model/GammaTable.h"

namespace tonquil {

/// A .cal file, CGATS text, with the 256 levels of each channel, precise to 16 bits.
[[nodiscard]] std::string writeCal(const GammaTable& table, const DescribedDisplay& display);

}  // namespace tonquil
