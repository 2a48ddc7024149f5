// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// A simulated desk with a registry on it.
struct Desk {
    explicit Desk(const std::string& json) : desk(readSimulatedDesk(json).value()) {}

    SimulatedDesk desk;
    SimulatedDisplayService service{desk};
    ScreenRegistry registry{service};

    /// The display with this ID as it would be plugged in.
    [[nodiscard]] SimulatedDisplay display(DisplayID id) { return *desk.find(id); }
    [[nodiscard]] HardwareRamp ramp(DisplayID id) { return desk.find(id)->ramp; }
};

/// Two displays with serial numbers and one without.
inline constexpr const char* threeDisplays = R"([
    {"id": 11, "serial": 1, "model": 7, "vendor": 9, "bounds": [0, 0, 1920, 1080]},
    {"id": 12, "serial": 2, "model": 7, "vendor": 9, "bounds": [1920, 0, 1280, 1024]},
    {"id": 13, "model": 4, "vendor": 9, "millimetres": [600, 340],
     "bounds": [0, 1080, 1024, 768]}])";

}  // namespace tonquil
