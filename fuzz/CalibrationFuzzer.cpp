// SPDX-License-Identifier: MIT
//
// Feeds any bytes as a display's colour profile: what is read must survive writing to the bit.

#include "Require.h"
#include "colourfiles/IccReader.h"
#include "colourfiles/IccWriter.h"
#include "platform/icc/CalibrationRamp.h"
#include "platform/icc/CorrectionProfile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tonquil;
    const auto read = readIcc({data, size});
    for (const std::uint32_t entries : {256U, 1'024U}) {
        const auto ramp = calibrationRamp({data, size}, entries);
        require(ramp.has_value() == read.has_value());
        require(!ramp || ramp->size() == entries);
    }
    // A correction holds the ramp that it was made for, whatever profile it is based on.
    const auto straight = HardwareRamp::straight(256);
    const auto correction = correctionProfile({data, size}, straight);
    require(!correction ||
            (isCorrectionProfile(*correction) && calibrationRamp(*correction, 256) == straight));
    if (!read) {
        require(!read.error().sentence.empty());
        return 0;
    }
    const GammaTable table = tableOf(*read);
    const auto written = writeIcc(table, {.name = "fuzz", .time = 0}).value();
    require(beginsLikeIcc(written));
    require(haveSameBits(tableOf(readIcc(written).value()), table));
    return 0;
}
