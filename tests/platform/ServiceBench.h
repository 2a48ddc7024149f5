// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "foundation/Log.h"
#include "platform/ramp/HardwareRamp.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Two displays, seen from outside of the service that is being tested.
class ServiceBench {
 public:
    virtual ~ServiceBench() = default;

    /// A service as another program would open it, at once with others.
    [[nodiscard]] virtual std::unique_ptr<DisplayService> openService(Log log) = 0;
    /// What is on the hardware of the first (0) or second (1) display.
    [[nodiscard]] virtual HardwareRamp hardwareRamp(int display) = 0;
    virtual void setForeignRamp(int display, const HardwareRamp& ramp) = 0;
    /// Publishes a colour profile whose calibration is this ramp.
    virtual void publishProfile(int display, const HardwareRamp& ramp) = 0;
    virtual void unplugSecond() = 0;
    virtual void plugSecond() = 0;
};

[[nodiscard]] std::unique_ptr<ServiceBench> makeSimulatedBench();
[[nodiscard]] std::unique_ptr<ServiceBench> makeX11Bench();

}  // namespace tonquil
