// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// A colour's place in the CIE 1931 chromaticity diagram.
struct Chromaticity {
    double x = 0;
    double y = 0;

    bool operator==(const Chromaticity&) const = default;
};

/// The colours that a display mixes all others from, and its white. The defaults are those of sRGB.
struct Primaries {
    Chromaticity red{0.64, 0.33};
    Chromaticity green{0.30, 0.60};
    Chromaticity blue{0.15, 0.06};
    Chromaticity white{0.3127, 0.3290};

    bool operator==(const Primaries&) const = default;
};

}  // namespace tonquil
