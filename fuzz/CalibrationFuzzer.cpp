// SPDX-License-Identifier: MIT
//
// Feeds any bytes as a display's colour profile.

#include "Require.h"
#include "platform/icc/CalibrationRamp.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const std::uint32_t entries : {256U, 1'024U}) {
        const auto ramp = tonquil::calibrationRamp({data, size}, entries);
        tonquil::require(!ramp || ramp->size() == entries);
    }
    return 0;
}
