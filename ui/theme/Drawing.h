// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <Qt>

class QPainter;

namespace tonquil {

struct Theme;

/// The radius of fields, tabs and the plot, in points.
inline constexpr double fieldRadius = 5;

/// Fills a line one device pixel thick that begins at the device pixel holding (`x`, `y`), in
/// points, and runs right (horizontal) or down (vertical) for `length` points.
void drawHairline(QPainter& painter, double x, double y, double length, Qt::Orientation direction,
                  const QColor& colour);

/// Strokes a rounded rectangle's inside edge with a line of `width` points; 0 is a hairline.
void drawRoundedFrame(QPainter& painter, const QRectF& frame, double radius, double width,
                      const QColor& colour);

/// Fills a rounded rectangle.
void fillRounded(QPainter& painter, const QRectF& frame, double radius, const QColor& colour);

/// Draws the background of a field, with a ring while it has the focus.
void drawField(QPainter& painter, const QRectF& frame, const Theme& theme, bool hasFocus);

/// Whether a control that a click focuses too shows the focus that came for `reason`: the
/// keyboard's is shown, a click's is not, and a window that comes back shows what it showed before.
[[nodiscard]] bool isFocusShown(Qt::FocusReason reason, bool wasShown);

}  // namespace tonquil
