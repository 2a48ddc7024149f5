// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace tonquil {

/// A transfer table: 256 levels each for red, green and blue, in this order.
///
/// A level is 0 (dark) to 1 (full). The range is not enforced here; the code that drives the
/// hardware clamps. Channels always start 256 slots apart, even if a display fills fewer slots.
struct GammaTable {
    static constexpr std::uint32_t capacity = 256;
    static constexpr std::size_t channelCount = 3;

    std::array<float, channelCount * capacity> levels{};

    [[nodiscard]] std::span<float, capacity> channel(std::size_t index) {
        return std::span<float, capacity>(levels.data() + index * capacity, capacity);
    }
    [[nodiscard]] std::span<const float, capacity> channel(std::size_t index) const {
        return std::span<const float, capacity>(levels.data() + index * capacity, capacity);
    }
};

/// Whether two tables hold the same bits: NaN equals itself, 0 and -0 differ.
[[nodiscard]] inline bool haveSameBits(const GammaTable& a, const GammaTable& b) {
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): comparing bits is the point.
    return std::memcmp(a.levels.data(), b.levels.data(), sizeof a.levels) == 0;
}

/// A display's own calibration, to which curves are applied.
struct BaseGamma {
    GammaTable table;
    /// How many slots of each channel the display filled, 0 to 256; the rest are 0.
    std::uint32_t sampleCount = 0;
};

}  // namespace tonquil
