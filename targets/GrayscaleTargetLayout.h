// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "targets/PatternFrame.h"

namespace tonquil {

/// Positions of the grayscale target's pieces, in points.
struct GrayscaleTargetLayout {
    /// From `middleBox1` on the left to `middleBox5`. Their lower edges and heights may be
    /// multiples of a quarter point.
    std::array<PatternFrame, 5> middleBoxes;
    PatternFrame rampGray;         ///< Below the boxes; whole points.
    PatternFrame rampGrayFlipped;  ///< Above the boxes; whole points.

    /// The layout for an area of a given size in points. The pieces keep their proportions and are
    /// as large as fits with a margin of 4 %; in an area too small for them they are empty.
    [[nodiscard]] static GrayscaleTargetLayout forSize(double width, double height);
};

}  // namespace tonquil
