// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "model/GammaTable.h"
#include "model/Primaries.h"

namespace tonquil {

/// What a colour file says about its display.
struct DescribedDisplay {
    /// What it is called, as in "DP-1 DELL U2720Q".
    std::string name;
    Primaries primaries = {};
    /// When the file is made; its date and time are UTC.
    std::time_t time = 0;
};

/// The display's name and the date: printable ASCII, for programs that know nothing else.
[[nodiscard]] std::string descriptionOf(const DescribedDisplay& display);

/// A display's ICC profile of version 2 with the table as its `vcgt`: 256 entries of 16 bits. The
/// colours are those of the display's primaries with the tone curve of sRGB. The same arguments
/// give the same bytes.
[[nodiscard]] Result<std::vector<std::uint8_t>> writeIcc(const GammaTable& table,
                                                         const DescribedDisplay& display);

}  // namespace tonquil
