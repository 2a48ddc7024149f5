// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace tonquil {

/// The three channels of a gamma ramp, as the X server holds them: of equal size, from 0 to 65535.
struct Ramp {
    std::vector<std::uint16_t> red;
    std::vector<std::uint16_t> green;
    std::vector<std::uint16_t> blue;

    bool operator==(const Ramp& other) const = default;
};

}  // namespace tonquil
