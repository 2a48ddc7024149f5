// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/GammaTable.h"

namespace tonquil {

/// A hardware gamma ramp: three channels of 16-bit entries, 0 (dark) to 65535 (full), as many as
/// the hardware has.
class HardwareRamp {
 public:
    /// A size that an X server reports above this is treated as a driver bug and refused before
    /// memory is allocated.
    static constexpr std::uint32_t largestSize = 16384;

    HardwareRamp() = default;
    /// All entries 0.
    explicit HardwareRamp(std::uint32_t size) : _size(size), _entries(3 * std::size_t{size}) {}

    /// Entries per channel.
    [[nodiscard]] std::uint32_t size() const { return _size; }
    [[nodiscard]] std::span<std::uint16_t> channel(std::size_t index) {
        return std::span(_entries).subspan(index * _size, _size);
    }
    [[nodiscard]] std::span<const std::uint16_t> channel(std::size_t index) const {
        return std::span(_entries).subspan(index * _size, _size);
    }
    /// Red, green and blue one after the other.
    [[nodiscard]] std::span<const std::uint16_t> entries() const { return _entries; }
    [[nodiscard]] std::span<std::uint16_t> entries() { return _entries; }

    /// A 64-bit digest for recognising a ramp; not proof against forgery.
    [[nodiscard]] std::uint64_t fingerprint() const;

    /// Replaces the entries by a table, resampled linearly from end to end; 256 entries take it
    /// level by level. Levels are first clamped to 0…1 (a not-a-number becomes 0) and rounded after
    /// resampling. Keeps the size and does not allocate.
    ///
    /// On a ramp shorter than 256, a table whose slots beyond the ramp's length are all 0 was
    /// computed for that length and is copied slot by slot.
    void setTable(const GammaTable& table);
    /// Writes the ramp into a table's first slots and returns how many: all 256, resampled, or one
    /// per entry of a ramp with fewer.
    std::uint32_t getTable(GammaTable& table) const;

    /// A linear ramp from 0 to 65535.
    [[nodiscard]] static HardwareRamp straight(std::uint32_t size);

    bool operator==(const HardwareRamp&) const = default;

 private:
    std::uint32_t _size = 0;
    std::vector<std::uint16_t> _entries;
};

}  // namespace tonquil
