// SPDX-License-Identifier: MIT
#include "targets/PatternCanvas.h"

#include <QTransform>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tonquil {

namespace {

int rounded(double value) {
    return static_cast<int>(std::lround(value));
}

}  // namespace

QColor grayOf(double level) {
    const int grey = rounded(level * 255);
    return {grey, grey, grey};
}

// Qt may place a view between device pixels. The view takes the pixels nearest to its edges, and
// the painter counts device pixels from there.
PatternCanvas::PatternCanvas(QWidget& view)
    : _painter(&view), _bounds{0, 0, double(view.width()), double(view.height())} {
    const QTransform toDevice = _painter.deviceTransform();
    const int left = rounded(toDevice.dx());
    const int top = rounded(toDevice.dy());
    _ratio = toDevice.m11();
    _pixelWidth = rounded(toDevice.dx() + _bounds.width * _ratio) - left;
    _pixelHeight = rounded(toDevice.dy() + _bounds.height * _ratio) - top;
    _painter.setRenderHint(QPainter::Antialiasing, false);
    _painter.setWorldTransform(QTransform::fromTranslate(left, top) * toDevice.inverted());
}

PatternFrame PatternCanvas::snapped(const PatternFrame& frame) const {
    const double left = std::round(frame.x * _ratio);
    const double bottom = std::round(frame.y * _ratio);
    return {left, bottom, std::round((frame.x + frame.width) * _ratio) - left,
            std::round((frame.y + frame.height) * _ratio) - bottom};
}

void PatternCanvas::fillPixels(const PatternFrame& pixels, const QColor& colour) {
    if (!pixels.isEmpty()) {
        _painter.fillRect(pixels.fromTopOf(_pixelHeight), colour);
    }
}

void PatternCanvas::fill(const PatternFrame& frame, const QColor& colour) {
    fillPixels(snapped(frame), colour);
}

// Anything beyond the view is clipped.
void PatternCanvas::fillAll(const QColor& colour) {
    _painter.fillRect(-1, -1, _pixelWidth + 2, _pixelHeight + 2, colour);
}

void PatternCanvas::fillBorder() {
    // Grey 0.65 at the top and 0.85 at the bottom, times 255. Dividing last keeps halves exact.
    constexpr double topLevel = 165.75;
    constexpr double span = 51;
    const double height = _bounds.height * _ratio;
    for (int row = -1; row <= _pixelHeight; ++row) {
        const double fromTop = height - (_pixelHeight - row - 0.5);
        const int grey = rounded(topLevel + std::clamp(span * fromTop / height, 0.0, span));
        _painter.fillRect(-1, row, _pixelWidth + 2, 1, QColor(grey, grey, grey));
    }
}

void PatternCanvas::fillFromBlack(const PatternFrame& frame, const QColor& full, bool isReversed) {
    const PatternFrame pixels = snapped(frame);
    const double black = (isReversed ? frame.x + frame.width : frame.x) * _ratio;
    const double width = frame.width * _ratio;
    for (int column = 0; column < pixels.width; ++column) {
        const double left = pixels.x + column;
        const double distance = std::abs(left + 0.5 - black);
        const auto level = [&](int component) {
            return std::min(rounded(component * distance / width), component);
        };
        fillPixels({left, pixels.y, 1, pixels.height},
                   {level(full.red()), level(full.green()), level(full.blue())});
    }
}

}  // namespace tonquil
