// SPDX-License-Identifier: MIT
#include "targets/ColorTargetLayout.h"

#include <algorithm>
#include <cmath>

namespace tonquil {

namespace {

/// The target is 32 units wide and 22 high; a square's side is 5 units.
double unitFor(const PatternFrame& area) {
    return std::min(std::floor(area.width * 0.03125), std::floor(area.height / 22));
}

/// About `5 * unit`, of the form 4k + 3.
double sideFor(double unit) {
    return std::round((std::round(5 * unit) - 3) * 0.25) * 4 + 3;
}

}  // namespace

ColorTargetLayout ColorTargetLayout::forSize(double width, double height) {
    const PatternFrame bounds{0, 0, width, height};
    // A 4 % margin, currently switched off.
    const PatternFrame area =
        bounds.insetBy(std::round(0.04 * width) * 0, std::round(0.04 * height) * 0);
    const double unit = unitFor(area);
    const double side = sideFor(unit);
    const double pitch = side + unit;
    const double squaresY = std::round((area.height - side) * 0.5);
    const double rowWidth = 6 * side - unit;
    const double left = std::round((width - rowWidth) * 0.5);
    const auto square = [&](int column) {
        return PatternFrame{left + std::round(column * pitch), squaresY, side, side};
    };

    const double rampWidth = std::round(4 * pitch) + side;
    const double grayHeight = std::round(0.5 * side);
    const double colorHeight = std::round(0.6 * side);
    const double graySmoothY = squaresY + std::round(pitch);
    const double colorSmoothY = graySmoothY + grayHeight + std::round(unit);
    const double grayY = squaresY - std::round(unit) - grayHeight;
    const double colorY = grayY - (std::round(unit) + colorHeight);
    return {.squareGray = square(0),
            .squareRed = square(1),
            .squareGreen = square(2),
            .squareBlue = square(3),
            .squareBW = square(4),
            .rampGray = {left, grayY, rampWidth, grayHeight},
            .rampColor = {left, colorY, rampWidth, colorHeight},
            .rampGraySmooth = {left, graySmoothY, rampWidth, grayHeight},
            .rampColorSmooth = {left, colorSmoothY, rampWidth, colorHeight}};
}

}  // namespace tonquil
