// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// A file in memory that holds a ramp's entries and can no longer be changed, for passing to
/// another process. Made anew for each ramp: some compositors read from the start, others from
/// where the last reader stopped.
class RampMemory {
 public:
    explicit RampMemory(const HardwareRamp& ramp);
    RampMemory(const RampMemory&) = delete;
    RampMemory& operator=(const RampMemory&) = delete;
    ~RampMemory();

    /// -1 where the system had no memory to give.
    [[nodiscard]] int descriptor() const { return _descriptor; }

 private:
    int _descriptor;
};

}  // namespace tonquil
