// SPDX-License-Identifier: MIT
#include "platform/icc/CalibrationRamp.h"

#include "colourfiles/IccReader.h"

namespace tonquil {

std::optional<HardwareRamp> calibrationRamp(std::span<const std::uint8_t> profile,
                                            std::uint32_t size) {
    const auto calibration = size < 2 ? tl::make_unexpected(Problem{}) : readIcc(profile);
    if (!calibration) {
        return std::nullopt;
    }
    HardwareRamp ramp(size);
    for (std::size_t c = 0; c < calibration->size(); ++c) {
        for (std::uint32_t i = 0; i < size; ++i) {
            const double input = static_cast<double>(i) / static_cast<double>(size - 1);
            ramp.channel(c)[i] = entryOf(calibration->at(c).level(input));
        }
    }
    return ramp;
}

}  // namespace tonquil
