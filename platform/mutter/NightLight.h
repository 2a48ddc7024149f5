// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include "platform/dbus/BusConnection.h"
#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The desktop's night light, as its settings service tells of it.
class NightLight {
 public:
    /// The connection must outlive this. `changed` is called when `white` differs.
    NightLight(BusConnection& bus, std::function<void()> changed)
        : _bus(bus), _changed(std::move(changed)) {}
    NightLight(const NightLight&) = delete;
    NightLight& operator=(const NightLight&) = delete;

    /// Asks, and follows what the service says from then on. Only once the connection is open.
    void start();
    /// Whether the service has answered, or there is none.
    [[nodiscard]] bool isKnown() const { return _isKnown; }
    /// The share of red, green and blue, 0…1, that the night light leaves; all 1 while it is off.
    [[nodiscard]] const std::array<double, 3>& white() const { return _white; }
    /// Gives a ramp that white.
    void tint(HardwareRamp& ramp) const;

 private:
    void take(BusArguments& properties);

    BusConnection& _bus;
    std::function<void()> _changed;
    bool _isKnown = false;
    bool _isActive = false;
    double _kelvin = 6500;
    std::array<double, 3> _white{1, 1, 1};
};

}  // namespace tonquil
