// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The ramp of `size` entries that an ICC profile's `vcgt` tag asks for: the calibration that the
/// display was profiled with. Nothing when the bytes are no profile or hold no such tag.
[[nodiscard]] std::optional<HardwareRamp> calibrationRamp(std::span<const std::uint8_t> profile,
                                                          std::uint32_t size);

}  // namespace tonquil
