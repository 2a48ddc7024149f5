// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ramp/RampHistory.h"
#include "screens/DisplayService.h"
#include "screens/ReconfigurationCallbacks.h"

namespace tonquil {

/// A monitor on a simulated desk.
struct SimulatedDisplay {
    DisplayID id = 0;
    DisplayIdentity identity;
    std::string connector;
    std::string productName;
    Rectangle bounds;
    /// What is on the hardware; a ramp of 0 or 1 entries stands for a display without gamma.
    HardwareRamp ramp;
    /// The calibration of the display's colour profile, where one is published.
    std::optional<HardwareRamp> profileRamp;
};

/// A desk of monitors that exists in memory: what a display server and its hardware are to a
/// program. It outlives the services that look at it, so that one test can run several programs,
/// one after the other or at once.
class SimulatedDesk {
 public:
    /// The first display is the main one.
    [[nodiscard]] const std::vector<SimulatedDisplay>& displays() const { return _displays; }
    /// Null when there is none with this ID; 0 means the main display.
    [[nodiscard]] SimulatedDisplay* find(DisplayID display);

    /// Attaches a display, or replaces the one with the same ID, and tells the observers.
    void plug(SimulatedDisplay display);
    /// The ramp stays behind on the hardware as it is; a display plugged in later brings its own.
    void unplug(DisplayID display);
    /// Sets a ramp as some other program would.
    void setForeignRamp(DisplayID display, HardwareRamp ramp);

    /// What corrections were set on a display; it lives as long as the desk.
    [[nodiscard]] RampHistory& history(DisplayID display) { return _histories[display]; }
    /// A number of its own for each service that sets corrections.
    [[nodiscard]] std::uint32_t newHolder() { return ++_holders; }

    /// Where the pointer was moved to last.
    Point pointer;

    /// Who is told of changes.
    ReconfigurationCallbacks observers;

    /// How many times a ramp was set by a service: what a test asks to see that nothing was sent.
    std::size_t rampWrites = 0;

 private:
    std::vector<SimulatedDisplay> _displays;
    std::map<DisplayID, RampHistory> _histories;
    std::uint32_t _holders = 0;
};

}  // namespace tonquil
