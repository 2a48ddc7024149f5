// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// Knows whose ramp is on a piece of hardware: the last one that was there without a correction of
/// ours (the system ramp), and by their fingerprints the corrections that were set.
///
/// Ramps outlive the program that set them. Without this knowledge a program that starts again
/// would take its own correction for the display's calibration, and correct twice.
class RampHistory {
 public:
    /// A correction, and which of our running programs set it. The number may be used again once
    /// that program has ended.
    struct Correction {
        std::uint64_t fingerprint = 0;
        std::uint32_t holder = 0;

        bool operator==(const Correction&) const = default;
    };

    /// How many corrections are remembered, those apart that are their holder's last: these may
    /// still be on the hardware however many others were set since.
    static constexpr std::size_t mostCorrections = 256;
    /// No display server has more clients than this.
    static constexpr std::size_t mostHolders = 2048;

    [[nodiscard]] bool isCorrection(std::uint64_t fingerprint) const;
    /// Whether this holder's correction is remembered as its own.
    [[nodiscard]] bool has(const Correction& correction) const;
    /// Makes it the newest, and its holder's last.
    void addCorrection(const Correction& correction);
    /// Oldest first.
    [[nodiscard]] const std::vector<Correction>& corrections() const { return _corrections; }

    [[nodiscard]] const std::optional<HardwareRamp>& systemRamp() const { return _systemRamp; }
    void setSystemRamp(HardwareRamp ramp) { _systemRamp = std::move(ramp); }

    /// The ramp that the display has without our correction, given the present one.
    [[nodiscard]] HardwareRamp uncorrected(const HardwareRamp& present) const;
    /// The ramp that lies under a correction on a ramp of `size` entries.
    [[nodiscard]] HardwareRamp underCorrection(std::uint32_t size) const;

 private:
    std::vector<Correction> _corrections;
    std::optional<HardwareRamp> _systemRamp;
};

}  // namespace tonquil
