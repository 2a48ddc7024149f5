// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace tonquil {

/// The share of red, green and blue, 0…1, that gives a display whose white is daylight of 6500 K
/// the white of a black body of that temperature. 6500 K is 1, 1, 1; what is outside 1000…15000 K
/// counts as the nearer end, and not-a-number as 6500 K.
[[nodiscard]] std::array<double, 3> blackBodyWhite(double kelvin);

}  // namespace tonquil
