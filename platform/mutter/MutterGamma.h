// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "foundation/RunLoop.h"
#include "foundation/TranslatableText.h"
#include "platform/dbus/BusConnection.h"
#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// How one generation of the compositor takes gamma ramps for its monitors, which are named by
/// their connectors.
///
/// Everything is asked and answered in the background. Of each monitor one ramp at most is on its
/// way; what the host wants meanwhile is sent when that one has arrived, so a compositor slower
/// than a slider is never behind by more than one.
class MutterGamma {
 public:
    static constexpr std::uint32_t smallestSize = 2;
    static constexpr std::uint32_t largestSize = 65'536;
    static constexpr std::chrono::milliseconds retryInterval{10'000};

    /// What it works with; must outlive this object.
    struct Host {
        BusConnection& bus;
        /// Null where nothing is tried again.
        RunLoop* runLoop;
        /// The ramp for a monitor as of now.
        std::function<HardwareRamp(const std::string& connector, std::uint32_t size)> ramp;
        /// Called when the state of a monitor may have changed.
        std::function<void()> changed;
    };

    /// What is known of a monitor.
    struct State {
        /// Entries per channel of its ramp; 0 where this is not known.
        std::uint32_t size = 0;
        /// Why nothing can be set, as a sentence; empty if it can or was not tried.
        std::string obstacle = {};
        /// Whether that is another program that has the monitor.
        bool isTaken = false;
        /// False where there is known to be none.
        bool hasRamp = true;
        /// Whether the last ramp has arrived.
        bool isReached = false;
    };

    virtual ~MutterGamma() = default;

    /// Replaces the list of monitors. What is held stays held, and its ramp is sent again.
    virtual void setMonitors(const std::vector<std::string>& connectors) = 0;
    /// Puts the host's ramp on a monitor and keeps it there.
    virtual void hold(const std::string& connector) = 0;
    /// Gives a monitor back: the host's ramp for it is the system's from now on.
    virtual void release(const std::string& connector) = 0;
    /// The default state for a monitor that is not there.
    [[nodiscard]] virtual State state(const std::string& connector) const = 0;
    /// Whether the compositor owes no answer.
    [[nodiscard]] virtual bool isIdle() const = 0;

 protected:
    /// Why a ramp of a size that is out of range cannot be set.
    [[nodiscard]] static std::string obstacleFromSize(std::uint32_t size) {
        return size == 0
                   ? TONQUIL_TEXT("Problem", "This display has no gamma ramp.")
                   : TONQUIL_TEXT("Problem",
                                  "The compositor gives an impossible size for this display's "
                                  "gamma ramp.");
    }
};

}  // namespace tonquil
