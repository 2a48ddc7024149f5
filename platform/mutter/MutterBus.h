// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "foundation/RunLoop.h"
#include "platform/dbus/BusConnection.h"
#include "platform/mutter/MutterMonitors.h"

namespace tonquil {

/// The session bus, which of the compositor's services are on it, and what they say of the
/// monitors.
class MutterBus {
 public:
    /// The run loop must outlive it; null is a program without one.
    explicit MutterBus(RunLoop* runLoop) : _connection(runLoop) {}

    /// Connects and finds the services; false if that takes longer than `limit`. `lost` is called
    /// with a sentence when the bus or the compositor has gone afterwards. Call once.
    [[nodiscard]] bool open(const std::string& address, std::chrono::milliseconds limit,
                            std::function<void(const std::string&)> lost);
    /// Whether there are calibration sessions; only once it is open.
    [[nodiscard]] bool lendsSessions() const { return _lendsSessions == true; }
    /// Whether the compositor tells of its monitors, and takes ramps for their hardware; likewise.
    [[nodiscard]] bool hasMonitors() const { return _hasMonitors == true; }

    /// Calls back whenever something about the monitors has changed.
    void watchMonitors(std::function<void()> changed);
    /// Calls back with what the monitors are now, or `failed` if the compositor fails to say.
    void askForMonitors(std::function<void(MutterLayout)> answered, std::function<void()> failed);

    [[nodiscard]] BusConnection& connection() { return _connection; }

 private:
    void askFor(const char* name, std::optional<bool>& isThere);

    std::function<void(const std::string&)> _lost;
    std::optional<bool> _lendsSessions;
    std::optional<bool> _hasMonitors;
    BusConnection _connection;
};

}  // namespace tonquil
