// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// A copy of an ICC profile with `ramp`, of 256 entries, as its calibration (`vcgt`), marked as
/// made by us. Nothing unless it is the profile of an RGB display.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> correctionProfile(
    std::span<const std::uint8_t> profile, const HardwareRamp& ramp);

/// Whether a profile has our mark, wherever it was copied to.
[[nodiscard]] bool isCorrectionProfile(std::span<const std::uint8_t> profile);

}  // namespace tonquil
