// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// Tells whose ramp is on the hardware: remembers the last one without a correction of ours (the
/// system ramp), and the fingerprints of the corrections that were set.
///
/// Ramps outlive the program that set them. Without this knowledge a restarted program would take
/// its own correction for the display's calibration and correct twice.
class RampHistory {
 public:
    /// A correction, and which of our running programs (the holder) set it. A holder's number may
    /// be reused once that program has ended.
    struct Correction {
        std::uint64_t fingerprint = 0;
        std::uint32_t holder = 0;

        bool operator==(const Correction&) const = default;
    };

    /// How many corrections are remembered, not counting those that are their holder's last: these
    /// may still be on the hardware, however many others were set since.
    static constexpr std::size_t mostCorrections = 256;
    /// No display server allows more clients than this.
    static constexpr std::size_t mostHolders = 2048;

    [[nodiscard]] bool isCorrection(std::uint64_t fingerprint) const;
    /// Whether this correction is remembered for this holder.
    [[nodiscard]] bool has(const Correction& correction) const;
    /// Makes it the newest correction, and its holder's last.
    void addCorrection(const Correction& correction);
    /// Oldest first.
    [[nodiscard]] const std::vector<Correction>& corrections() const { return _corrections; }

    [[nodiscard]] const std::optional<HardwareRamp>& systemRamp() const { return _systemRamp; }
    void setSystemRamp(HardwareRamp ramp) { _systemRamp = std::move(ramp); }

    /// The display's ramp without our correction, given the current one.
    [[nodiscard]] HardwareRamp uncorrected(const HardwareRamp& present) const;
    /// The ramp underneath a correction, for a ramp of `size` entries.
    [[nodiscard]] HardwareRamp underCorrection(std::uint32_t size) const;

 private:
    std::vector<Correction> _corrections;
    std::optional<HardwareRamp> _systemRamp;
};

}  // namespace tonquil
