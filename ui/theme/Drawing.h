// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <Qt>

class QPainter;

namespace tonquil {

struct Theme;

/// Corner radius of fields, tabs and the plot, in points.
inline constexpr double fieldRadius = 5;

/// Fills a line one device pixel thick, starting at the device pixel that contains (`x`, `y`), in
/// points, and running right (horizontal) or down (vertical) for `length` points.
void drawHairline(QPainter& painter, double x, double y, double length, Qt::Orientation direction,
                  const QColor& colour);

/// Strokes the inside edge of a rounded rectangle with a line of `width` points; 0 is a hairline.
void drawRoundedFrame(QPainter& painter, const QRectF& frame, double radius, double width,
                      const QColor& colour);

void fillRounded(QPainter& painter, const QRectF& frame, double radius, const QColor& colour);

/// Draws a field's background, with a ring while it has the focus.
void drawField(QPainter& painter, const QRectF& frame, const Theme& theme, bool hasFocus);

/// Whether a control that can also be focused by a click should draw a focus ring after getting the
/// focus for `reason`: yes for the keyboard, no for a click, unchanged when its window is
/// reactivated.
[[nodiscard]] bool isFocusShown(Qt::FocusReason reason, bool wasShown);

}  // namespace tonquil
