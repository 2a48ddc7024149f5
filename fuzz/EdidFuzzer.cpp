// SPDX-License-Identifier: MIT
//
// Feeds any bytes as a monitor's EDID.

#include <algorithm>

#include "Require.h"
#include "platform/edid/Edid.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto edid = tonquil::parseEdid({data, size});
    if (edid) {
        tonquil::require(edid->vendorNumber <= 0xFFFF && edid->modelNumber <= 0xFFFF);
        tonquil::require(edid->serialNumber != 0xFFFFFFFFU && edid->serialNumber != 0x01010101U);
        tonquil::require(edid->productName.size() <= 13);
        tonquil::require(std::all_of(edid->productName.begin(), edid->productName.end(),
                                     [](char c) { return c >= ' ' && c <= '~'; }));
    }
    return 0;
}
