// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace tonquil {

/// A transfer table: 256 levels for each of red, green and blue, in this order.
///
/// A level is 0 (dark) to 1 (full); nothing here enforces the range, whoever drives the hardware
/// clamps. The channels always stand 256 slots apart, also where a display fills fewer of them.
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

/// Whether two tables hold the same bits: not-a-number equals itself, 0 and -0 differ.
[[nodiscard]] inline bool haveSameBits(const GammaTable& a, const GammaTable& b) {
    // Comparing representations is the point.
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
    return std::memcmp(a.levels.data(), b.levels.data(), sizeof a.levels) == 0;
}

/// A display's own calibration, over which curves are laid.
struct BaseGamma {
    GammaTable table;
    /// How many slots of each channel the display filled, 0 to 256; the others are 0.
    std::uint32_t sampleCount = 0;
};

}  // namespace tonquil
