// SPDX-License-Identifier: MIT
#pragma once

#include "targets/PatternFrame.h"

namespace tonquil {

/// Where the pieces of the colour target are, in points. All values are whole numbers.
struct ColorTargetLayout {
    PatternFrame squareGray;
    PatternFrame squareRed;
    PatternFrame squareGreen;
    PatternFrame squareBlue;
    PatternFrame squareBW;
    PatternFrame rampGray;
    PatternFrame rampColor;
    PatternFrame rampGraySmooth;
    PatternFrame rampColorSmooth;

    /// For an area of a size in points. The pieces keep their proportions, as large as fits; in an
    /// area too small for them their sizes are negative.
    [[nodiscard]] static ColorTargetLayout forSize(double width, double height);
};

}  // namespace tonquil
