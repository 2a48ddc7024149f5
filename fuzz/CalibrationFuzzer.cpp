// SPDX-License-Identifier: MIT
//
// Feeds any bytes as a display's colour profile.

#include "Require.h"
#include "platform/icc/CalibrationRamp.h"
#include "platform/icc/CorrectionProfile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const std::uint32_t entries : {256U, 1'024U}) {
        const auto ramp = tonquil::calibrationRamp({data, size}, entries);
        tonquil::require(!ramp || ramp->size() == entries);
    }
    // Whatever else it is made from, a correction is what it was told to be.
    const auto straight = tonquil::HardwareRamp::straight(256);
    const auto correction = tonquil::correctionProfile({data, size}, straight);
    tonquil::require(!correction || (tonquil::isCorrectionProfile(*correction) &&
                                     tonquil::calibrationRamp(*correction, 256) == straight));
    return 0;
}
