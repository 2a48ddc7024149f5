// SPDX-License-Identifier: MIT
#pragma once

#include "targets/PatternFrame.h"

namespace tonquil {

/// Positions of the colour target's pieces, in points. All values are whole numbers.
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

    /// The layout for an area of a given size in points. The pieces keep their proportions and are
    /// as large as fits; in an area too small for them their sizes are negative.
    [[nodiscard]] static ColorTargetLayout forSize(double width, double height);
};

}  // namespace tonquil
