// SPDX-License-Identifier: MIT
#include "platform/ramp/HardwareRamp.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tonquil {

namespace {

constexpr double full = 65535.0;

/// Clamps to 0…1; a not-a-number fails the comparison and becomes 0.
double clampedLevel(double level) {
    return level > 0.0 ? std::min(level, 1.0) : 0.0;
}

std::uint16_t entryForLevel(double level) {
    return static_cast<std::uint16_t>(std::lround(clampedLevel(level) * full));
}

double levelOf(std::uint16_t entry) {
    return static_cast<double>(entry) / full;
}

/// Evaluates a polyline through equally spaced points at `index` of `count` equal steps from its
/// first point to its last.
template <typename Value>
double resampled(std::size_t points, std::size_t index, std::size_t count, Value value) {
    // Integer arithmetic up to the fraction, so that the ends and all common points are exact.
    const std::size_t numerator = index * (points - 1);
    const std::size_t lower = numerator / (count - 1);
    const double fraction =
        static_cast<double>(numerator % (count - 1)) / static_cast<double>(count - 1);
    const double low = value(lower);
    return fraction == 0.0 ? low : low + fraction * (value(lower + 1) - low);
}

bool isComputedForLength(const GammaTable& table, std::uint32_t length) {
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        const auto beyond = table.channel(c).subspan(length);
        if (std::any_of(beyond.begin(), beyond.end(), [](float level) { return level != 0; })) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::uint64_t HardwareRamp::fingerprint() const {
    // FNV-1a over 64-bit words, with a shift so that high bits reach the low ones.
    std::uint64_t digest = 0xcbf29ce484222325U ^ _size;
    const auto mix = [&digest](std::uint64_t word) {
        digest = (digest ^ word) * 0x100000001b3U;
        digest ^= digest >> 29U;
    };
    std::size_t i = 0;
    for (; i + 4 <= _entries.size(); i += 4) {
        std::uint64_t word = 0;
        std::memcpy(&word, _entries.data() + i, sizeof word);
        mix(word);
    }
    for (; i < _entries.size(); ++i) {
        mix(_entries[i]);
    }
    return digest;
}

void HardwareRamp::setTable(const GammaTable& table) {
    const bool isSlotBySlot =
        _size == GammaTable::capacity ||
        (_size < GammaTable::capacity && (_size < 2 || isComputedForLength(table, _size)));
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        const auto levels = table.channel(c);
        const auto ramp = channel(c);
        for (std::size_t i = 0; i < _size; ++i) {
            // Clamped before interpolating: otherwise an infinity would turn the entries between it
            // and its neighbours into infinities or not-a-numbers.
            const auto level = [&](std::size_t slot) { return clampedLevel(levels[slot]); };
            ramp[i] = entryForLevel(
                isSlotBySlot ? level(i) : resampled(GammaTable::capacity, i, _size, level));
        }
    }
}

std::uint32_t HardwareRamp::getTable(GammaTable& table) const {
    const std::uint32_t count = std::min(_size, GammaTable::capacity);
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        const auto ramp = channel(c);
        const auto levels = table.channel(c);
        const auto level = [&](std::size_t i) { return levelOf(ramp[i]); };
        for (std::size_t i = 0; i < count; ++i) {
            levels[i] =
                static_cast<float>(_size <= count ? level(i) : resampled(_size, i, count, level));
        }
    }
    return count;
}

HardwareRamp HardwareRamp::straight(std::uint32_t size) {
    HardwareRamp ramp(size);
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::uint32_t i = 0; i < size; ++i) {
            ramp.channel(c)[i] = entryForLevel(size < 2 ? 0.0 : i / (size - 1.0));
        }
    }
    return ramp;
}

}  // namespace tonquil
