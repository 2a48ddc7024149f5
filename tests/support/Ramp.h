// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <vector>

namespace tonquil {

/// The three tables of a gamma ramp, as the X server holds them.
///
/// All three have the same number of entries, each from 0 to 65535.
struct Ramp {
    std::vector<std::uint16_t> red;
    std::vector<std::uint16_t> green;
    std::vector<std::uint16_t> blue;

    bool operator==(const Ramp& other) const = default;
};

/// Prints a handful of entries of red, which is what a failing test shows.
inline std::ostream& operator<<(std::ostream& stream, const Ramp& ramp) {
    stream << ramp.red.size() << " entries:";
    for (std::size_t index = 0; index < ramp.red.size(); index += 1 + ramp.red.size() / 4) {
        stream << " [" << index << "] " << ramp.red[index];
    }
    return stream;
}

}  // namespace tonquil
