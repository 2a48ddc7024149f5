// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "colourfiles/IccWriter.h"
#include "foundation/Problem.h"
#include "model/GammaTable.h"

namespace tonquil {

/// The formats in which a display's table can be exported for other programs.
enum class ExportFormat : std::uint8_t {
    Icc,    ///< A colour profile.
    Cal,    ///< Calibration in CGATS text.
    Table,  ///< 768 bytes: 256 of red, of green and of blue, each 256 times its level.
};

/// The contents of such a file. The table's first `sampleCount` slots count, and are resampled to
/// 256. A problem with fewer than 2.
[[nodiscard]] Result<std::vector<std::uint8_t>> exportedTable(ExportFormat format,
                                                              const GammaTable& table,
                                                              std::uint32_t sampleCount,
                                                              const DescribedDisplay& display);

}  // namespace tonquil
