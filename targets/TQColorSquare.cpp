// SPDX-License-Identifier: MIT
#include "targets/TQColorSquare.h"

#include <cmath>

#include "targets/PatternCanvas.h"

namespace tonquil {

namespace {

/// 0.5^(1/1.8): half the luminance of full output under a power law of 1.8.
constexpr double halfLuminance = 0.6803950000871885;

struct SquareColours {
    QColor foreground;
    QColor background;
};

SquareColours coloursOf(std::uint32_t variant) {
    const int half = static_cast<int>(std::lround(halfLuminance * 255));
    switch (variant) {
        case 0:
            return {Qt::white, QColor(half, half, half)};
        case 1:
            return {QColor(255, 0, 0), QColor(half, 0, 0)};
        case 2:
            return {QColor(0, 255, 0), QColor(0, half, 0)};
        case 3:
            return {QColor(0, 0, 255), QColor(0, 0, half)};
        default:
            return {Qt::black, Qt::white};
    }
}

/// Rows of device pixels from the outer edge of each quarter, which keeps its outermost row. Omits
/// a row that starts within the quarter but rounds to outside of it.
void drawLines(PatternCanvas& canvas, const PatternFrame& lower, const PatternFrame& upper) {
    const double end = lower.height * canvas.ratio();
    const PatternFrame a = canvas.snapped(lower);
    for (int row = 1; row < end && row < a.height; row += 2) {
        canvas.fillPixels({a.x, a.y + row, a.width, 1}, Qt::black);
    }
    const PatternFrame b = canvas.snapped(upper);
    for (int row = 2; row < end && row <= b.height; row += 2) {
        canvas.fillPixels({b.x, b.y + b.height - row, b.width, 1}, Qt::black);
    }
}

}  // namespace

TQColorSquare::TQColorSquare(std::uint32_t variant, QWidget* parent)
    : QWidget(parent), _variant(variant) {}

void TQColorSquare::setVariant(std::uint32_t variant) {
    _variant = variant;
    update();
}

void TQColorSquare::paintEvent(QPaintEvent* /*event*/) {
    PatternCanvas canvas(*this);
    canvas.fillBorder();
    const PatternFrame content = canvas.content();
    if (content.isEmpty()) {
        return;
    }
    const auto& [x, y, width, height] = content;
    const PatternFrame lowerRight{x + width / 2, y, width / 2, height / 2};
    const PatternFrame upperLeft{x, y + height / 2, width / 2, height / 2};
    const auto [foreground, background] = coloursOf(_variant);
    canvas.fill(content, background);
    canvas.fill(lowerRight, foreground);
    canvas.fill(upperLeft, foreground);
    if (_variant != 4) {
        drawLines(canvas, lowerRight, upperLeft);
    }
}

}  // namespace tonquil
