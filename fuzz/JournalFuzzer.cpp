// SPDX-License-Identifier: MIT
//
// Feeds any contents of the two root-window properties, which every client can write.

#include <cstring>
#include <vector>

#include "Require.h"
#include "platform/x11/displays/X11RampJournal.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint32_t> units(size / sizeof(std::uint32_t));
    if (!units.empty()) {
        std::memcpy(units.data(), data, units.size() * sizeof(std::uint32_t));
    }
    const auto contents = tonquil::X11RampJournal::parse(units, units);
    for (const auto& [crtc, history] : contents.histories) {
        tonquil::require(history.corrections().size() <= tonquil::RampHistory::mostHolders);
        tonquil::require(!history.systemRamp() ||
                         history.systemRamp()->size() <= tonquil::HardwareRamp::largestSize);
    }
    return 0;
}
