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
    /// The hardware's ramp; 0 or 1 entries stand for a display without gamma.
    HardwareRamp ramp;
    /// The calibration in the display's colour profile, if one is published.
    std::optional<HardwareRamp> profileRamp;
};

/// An in-memory desk of monitors, in place of a display server and its hardware. It outlives the
/// services that use it, so that one test can run several programs, one after the other or at once.
class SimulatedDesk {
 public:
    /// The first display is the main one.
    [[nodiscard]] const std::vector<SimulatedDisplay>& displays() const { return _displays; }
    /// Null if there is none with this ID; 0 means the main display.
    [[nodiscard]] SimulatedDisplay* find(DisplayID display);

    /// Attaches a display, or replaces the one with the same ID, and notifies the observers.
    void plug(SimulatedDisplay display);
    /// The ramp stays on the hardware; a display plugged in later brings its own.
    void unplug(DisplayID display);
    /// Sets a ramp as another program would.
    void setForeignRamp(DisplayID display, HardwareRamp ramp);

    /// The history of corrections set on a display; lives as long as the desk.
    [[nodiscard]] RampHistory& history(DisplayID display) { return _histories[display]; }
    /// A unique number for each service that sets corrections.
    [[nodiscard]] std::uint32_t newHolder() { return ++_holders; }

    /// The last position that the pointer was moved to.
    Point pointer;

    /// Called on changes.
    ReconfigurationCallbacks observers;

    /// How often a service has set a ramp: lets tests verify that nothing was sent.
    std::size_t rampWrites = 0;

 private:
    std::vector<SimulatedDisplay> _displays;
    std::map<DisplayID, RampHistory> _histories;
    std::uint32_t _holders = 0;
};

}  // namespace tonquil
