// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "colourfiles/Calibration.h"
#include "foundation/Problem.h"

namespace tonquil {

/// Larger profiles are not read. Those of displays have a few MiB at most.
inline constexpr std::size_t mostIccBytes = std::size_t{32} << 20U;

/// Whether a file starts like an ICC profile; it may still be damaged.
[[nodiscard]] bool beginsLikeIcc(std::span<const std::uint8_t> bytes);

/// Reads the `vcgt` tag of an ICC profile of version 2 or 4: a table of one or three channels with
/// 8 or 16 bits, or a formula. A profile without that tag is a problem.
[[nodiscard]] Result<Calibration> readIcc(std::span<const std::uint8_t> profile);

}  // namespace tonquil
