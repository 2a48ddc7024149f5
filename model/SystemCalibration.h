// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Whoever can give the displays back to the calibration that the system itself uses.
class SystemCalibration {
 public:
    virtual ~SystemCalibration() = default;

    /// Puts every display back to its system calibration; says in the log which it could not.
    virtual void restoreSystemCalibration() = 0;
};

}  // namespace tonquil
