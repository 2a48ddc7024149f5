// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include "platform/dbus/BusConnection.h"
#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The desktop's night light, as reported by its settings service.
class NightLight {
 public:
    /// The connection must outlive this. `changed` is called when its colour differs.
    NightLight(BusConnection& bus, std::function<void()> changed)
        : _bus(bus), _changed(std::move(changed)) {}
    NightLight(const NightLight&) = delete;
    NightLight& operator=(const NightLight&) = delete;

    /// Asks, and follows what the service says from then on. Only once the connection is open.
    void start();
    /// Whether the service has answered, or there is none.
    [[nodiscard]] bool isKnown() const { return _isKnown; }
    /// Gives a ramp the night light's colour; does nothing while the night light is off.
    void tint(HardwareRamp& ramp) const;

 private:
    void take(BusArguments& properties);

    BusConnection& _bus;
    std::function<void()> _changed;
    bool _isKnown = false;
    bool _isActive = false;
    double _kelvin = 6500;
    /// The share of red, green and blue, 0…1, that it leaves; all 1 while it is off.
    std::array<double, 3> _white{1, 1, 1};
};

}  // namespace tonquil
