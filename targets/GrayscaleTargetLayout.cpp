// SPDX-License-Identifier: MIT
#include "targets/GrayscaleTargetLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tonquil {

GrayscaleTargetLayout GrayscaleTargetLayout::forSize(double width, double height) {
    const PatternFrame area = PatternFrame{0, 0, width, height}.insetBy(std::round(0.04 * width),
                                                                        std::round(0.04 * height));
    const double unit = std::min(std::round(area.width * 0.03125), std::round(area.height / 22));
    const double left = area.x + unit + std::round((area.width - 31 * unit) * 0.5);
    const double side = std::round(5 * unit);
    const double pitch = unit + side;
    const double boxesY = std::round((area.height - side) * 0.5) + unit + side / 4;
    const double rowY = boxesY - side / 4;
    const double rampWidth = std::round(4 * pitch) + side;
    const double rampHeight = std::round(1.2 * side);

    GrayscaleTargetLayout layout{
        .middleBoxes = {},
        .rampGray = {left, rowY - std::round(unit) - rampHeight, rampWidth, rampHeight},
        .rampGrayFlipped = {left, rowY + std::round(pitch), rampWidth, rampHeight}};
    double column = 0;
    for (PatternFrame& box : layout.middleBoxes) {
        box = {left + std::round(column * pitch), boxesY, side, side / 2};
        ++column;
    }
    return layout;
}

}  // namespace tonquil
