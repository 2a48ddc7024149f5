// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "targets/PatternFrame.h"

namespace tonquil {

/// Where the pieces of the grayscale target are, in points.
struct GrayscaleTargetLayout {
    /// From `middleBox1` at the left to `middleBox5`. Their lower edges and their heights may end
    /// in quarters and halves of a point.
    std::array<PatternFrame, 5> middleBoxes;
    PatternFrame rampGray;         ///< Below the boxes; whole points.
    PatternFrame rampGrayFlipped;  ///< Above the boxes; whole points.

    /// For an area of a size in points. The pieces keep their proportions, as large as fits with a
    /// margin of 4 %; in an area too small for them they are empty.
    [[nodiscard]] static GrayscaleTargetLayout forSize(double width, double height);
};

}  // namespace tonquil
