// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "foundation/RunLoop.h"
#include "platform/dbus/BusConnection.h"
#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The calibrations in the colour profiles that the colour management service has in force for
/// displays, which it knows by their connectors.
///
/// With a run loop nothing is ever waited for: a display counts as uncalibrated until the answer
/// comes. Without one, `ask` waits for at most `longestAnswer`, and never again after it has waited
/// in vain.
class ProfileFiles {
 public:
    static constexpr std::chrono::milliseconds longestAnswer{100};

    struct Surroundings {
        /// Must outlive this; may be null.
        RunLoop* runLoop = nullptr;
        /// Of the system bus; without one no display has a profile.
        std::string systemBus = {};
        /// Called when a calibration has changed.
        std::function<void()> changed = {};
    };

    explicit ProfileFiles(Surroundings with);
    ProfileFiles(const ProfileFiles&) = delete;
    ProfileFiles& operator=(const ProfileFiles&) = delete;

    /// Asks for the profiles of the displays on these connectors and, with a run loop, again
    /// whenever the service tells of a change.
    void ask(std::vector<std::string> connectors);

    /// The ramp of `size` entries that calibrates the display; a straight line if none is known.
    [[nodiscard]] HardwareRamp calibration(const std::string& connector, std::uint32_t size) const;

 private:
    /// The bytes of the profiles that contain a calibration, by connector.
    using Profiles = std::map<std::string, std::vector<std::uint8_t>>;

    void open();
    void askAll();
    void askFor(const std::string& connector);
    void getProperty(const std::string& object, const char* interface, const char* name,
                     const std::string& connector,
                     void (ProfileFiles::*take)(const std::string&, const std::string&));
    void takeProfile(const std::string& connector, const std::string& profile);
    void takeFile(const std::string& connector, const std::string& file);
    void answered();

    Surroundings _with;
    std::vector<std::string> _connectors;
    Profiles _profiles;
    /// What the answers to the present questions have brought so far.
    Profiles _found;
    std::size_t _answersDue = 0;
    bool _isOpening = false;
    bool _isOpen = false;
    bool _isHopeless = false;
    bool _isStale = false;
    BusConnection _bus;
};

}  // namespace tonquil
