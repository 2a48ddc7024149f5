// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// Knows whose ramp is on a piece of hardware: the last one that anybody else set (the system
/// ramp), and by their fingerprints those that were set as corrections.
///
/// Ramps outlive the program that set them. Without this knowledge a program that starts again
/// would take its own correction for the display's calibration, and correct twice.
class RampHistory {
 public:
    /// Corrections set longer ago than this many others are no longer recognised. Generous: it has
    /// to reach over what several of our processes may set between two looks of one of them, which
    /// may be seconds apart.
    static constexpr std::size_t mostCorrections = 256;

    [[nodiscard]] bool isCorrection(std::uint64_t fingerprint) const;
    /// Makes it the newest.
    void addCorrection(std::uint64_t fingerprint);
    /// Oldest first.
    [[nodiscard]] const std::vector<std::uint64_t>& corrections() const { return _corrections; }

    [[nodiscard]] const std::optional<HardwareRamp>& systemRamp() const { return _systemRamp; }
    void setSystemRamp(HardwareRamp ramp) { _systemRamp = std::move(ramp); }

    /// The ramp that the display has without our correction, given the present one.
    [[nodiscard]] HardwareRamp uncorrected(const HardwareRamp& present) const;

 private:
    std::vector<std::uint64_t> _corrections;
    std::optional<HardwareRamp> _systemRamp;
};

}  // namespace tonquil
