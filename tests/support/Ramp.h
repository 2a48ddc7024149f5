// SPDX-License-Identifier: MIT
#pragma once

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

/// Prints a handful of entries, which is what a failing test shows.
std::ostream& operator<<(std::ostream& stream, const Ramp& ramp);

}  // namespace tonquil
