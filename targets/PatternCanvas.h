// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>

#include "targets/PatternFrame.h"

class QWidget;

namespace tonquil {

/// The grey for a level from 0 to 1, rounded to the nearest of 256.
[[nodiscard]] QColor grayOf(double level);

/// The near-black level around the patterns in a window, from 0 to 1.
inline constexpr double darkBackgroundLevel = 0.06;

/// Draws a pattern on a view exactly to the device pixel, at any ratio of pixels to points.
///
/// Each filled edge is snapped to the nearest device pixel (half up, and away from the view's left
/// edge), counted from the view's lower left corner; nothing is antialiased. Each row or column of
/// a gradient has the colour at its middle, rounded to the nearest 8-bit level. Create and use it
/// within the view's paintEvent.
class PatternCanvas {
 public:
    explicit PatternCanvas(QWidget& view);

    /// The view, in points.
    [[nodiscard]] const PatternFrame& bounds() const { return _bounds; }
    /// The view minus a frame of one point, in points.
    [[nodiscard]] PatternFrame content() const { return _bounds.insetBy(1, 1); }
    /// Device pixels per point.
    [[nodiscard]] double ratio() const { return _ratio; }

    /// The device pixels covered by a frame in points: whole numbers.
    [[nodiscard]] PatternFrame snapped(const PatternFrame& frame) const;
    /// Fills device pixels. Skips an empty frame.
    void fillPixels(const PatternFrame& pixels, const QColor& colour);
    /// Fills a frame in points.
    void fill(const PatternFrame& frame, const QColor& colour);
    /// Fills the whole view, including partially covered pixels.
    void fillAll(const QColor& colour);
    /// Fills the whole view with the gradient that shows as a frame around the content.
    void fillBorder();
    /// Fills a frame in points with a gradient from black on the left to `full` on the right, or
    /// reversed.
    void fillFromBlack(const PatternFrame& frame, const QColor& full, bool isReversed);

 private:
    QPainter _painter;
    PatternFrame _bounds;
    double _ratio = 1;
    int _pixelWidth = 0;
    int _pixelHeight = 0;
};

}  // namespace tonquil
