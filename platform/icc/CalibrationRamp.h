// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The ramp of `size` entries from an ICC profile's `vcgt` tag: the calibration that the display
/// was profiled with. Nothing if the bytes are no profile or contain no such tag.
[[nodiscard]] std::optional<HardwareRamp> calibrationRamp(std::span<const std::uint8_t> profile,
                                                          std::uint32_t size);

}  // namespace tonquil
