// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace tonquil {

/// One channel's three control points.
struct ChannelCurve {
    float black = 0;   ///< Output level at input 0.
    float middle = 1;  ///< Exponent on the normalised input.
    float white = 1;   ///< Output level that input 1 would reach.
};

/// Everything that a table is computed from, apart from the display's base: nine values and a mode.
struct CurveValues {
    /// Red, green, blue.
    std::array<ChannelCurve, 3> channels{};
    /// A KVBlendingMode; any other number is treated as 0.
    std::int32_t blendingMode = 1;
};

/// Compares bits, so NaN equals itself and a changed sign of zero is a change.
[[nodiscard]] inline bool haveSameBits(const CurveValues& a, const CurveValues& b) {
    static_assert(sizeof(CurveValues) == 10 * sizeof(float), "no padding to compare by accident");
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): see above.
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace tonquil
