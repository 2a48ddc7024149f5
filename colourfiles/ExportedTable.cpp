// SPDX-License-Identifier: MIT
#include "colourfiles/ExportedTable.h"

#include <algorithm>
#include <cmath>

#include "colourfiles/CalWriter.h"
#include "colourfiles/Calibration.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

/// A byte of 255 is the level 255/256, so full level is out of its reach.
std::vector<std::uint8_t> rawTable(const GammaTable& table) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(table.levels.size());
    for (const float level : table.levels) {
        bytes.push_back(static_cast<std::uint8_t>(std::min(std::lround(level * 256), 255L)));
    }
    return bytes;
}

}  // namespace

Result<std::vector<std::uint8_t>> exportedTable(ExportFormat format, const GammaTable& table,
                                                std::uint32_t sampleCount,
                                                const DescribedDisplay& display) {
    if (sampleCount < 2) {
        return problem(TONQUIL_TEXT("Problem", "There is no display whose table could be saved."));
    }
    // Holds the levels to 0…1 too.
    const GammaTable whole = tableOf(calibrationOf(table, sampleCount));
    switch (format) {
        case ExportFormat::Icc:
            return writeIcc(whole, display);
        case ExportFormat::Cal: {
            const std::string text = writeCal(whole, display);
            return std::vector<std::uint8_t>(text.begin(), text.end());
        }
        case ExportFormat::Table:
            break;
    }
    return rawTable(whole);
}

}  // namespace tonquil
