// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Can restore the system's own calibration on the displays.
class SystemCalibration {
 public:
    virtual ~SystemCalibration() = default;

    /// Restores the system calibration of every display; logs the displays where it could not.
    virtual void restoreSystemCalibration() = 0;
};

}  // namespace tonquil
