// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>

#include "targets/PatternFrame.h"

class QWidget;

namespace tonquil {

/// The grey of a level from 0 to 1, rounded to the nearest of the 256 that a display shows.
[[nodiscard]] QColor grayOf(double level);

/// What is nearly black around the patterns of a window, from 0 to 1.
inline constexpr double darkBackgroundLevel = 0.06;

/// Draws a pattern on a view to the device pixel, whatever the ratio of pixels to points.
///
/// Each edge of what is filled goes to the nearest device pixel (half up, and away from the view's
/// left edge), counted from the view's lower left corner; nothing is blended. A gradient has, in
/// each row or column of device pixels, the colour at the middle of that row or column, rounded to
/// the nearest 8-bit level. To be made and used within the view's paintEvent.
class PatternCanvas {
 public:
    explicit PatternCanvas(QWidget& view);

    /// The view, in points.
    [[nodiscard]] const PatternFrame& bounds() const { return _bounds; }
    /// What a frame of one point leaves of the view, in points.
    [[nodiscard]] PatternFrame content() const { return _bounds.insetBy(1, 1); }
    /// Device pixels to a point.
    [[nodiscard]] double ratio() const { return _ratio; }

    /// The device pixels that a frame in points takes: whole numbers.
    [[nodiscard]] PatternFrame snapped(const PatternFrame& frame) const;
    /// Fills device pixels. An empty frame is not drawn.
    void fillPixels(const PatternFrame& pixels, const QColor& colour);
    /// Fills a frame in points.
    void fill(const PatternFrame& frame, const QColor& colour);
    /// Fills all of the view, also the pixels that it has only in part.
    void fillAll(const QColor& colour);
    /// Fills all of the view with the gradient that is seen as a frame around the content.
    void fillBorder();
    /// Fills a frame in points from black at its left to `full` at its right edge, or the other way
    /// round.
    void fillFromBlack(const PatternFrame& frame, const QColor& full, bool isReversed);

 private:
    QPainter _painter;
    PatternFrame _bounds;
    double _ratio = 1;
    int _pixelWidth = 0;
    int _pixelHeight = 0;
};

}  // namespace tonquil
