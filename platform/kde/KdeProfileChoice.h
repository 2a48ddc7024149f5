// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tonquil {

/// Which colour profile an output has: the two settings that decide it.
struct KdeProfileChoice {
    /// Where the profile is taken from, as the compositor numbers it.
    static constexpr std::uint32_t plain = 0;    ///< None: the display counts as sRGB.
    static constexpr std::uint32_t file = 1;     ///< The file at `path`.
    static constexpr std::uint32_t monitor = 2;  ///< The colours that the monitor reports.

    /// Kept by the compositor even while the source is another one. May be empty.
    std::string path;
    std::uint32_t source = plain;

    bool operator==(const KdeProfileChoice&) const = default;
};

}  // namespace tonquil
