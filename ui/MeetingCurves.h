// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPolygonF>
#include <array>

#include "ui/theme/Appearance.h"

class QPen;

namespace tonquil {

/// Red, green and blue, each from left to right, in points.
using CurveLines = std::array<QPolygonF, 3>;

/// Replaces the content of `picture` (ARGB, 32 bits, premultiplied) with the lines, each in its
/// channel's colour and styled for `kind`. Where lines overlap, colours add up like light on the
/// dark theme and like inks on the light one, so that three equal lines are white or black. The
/// background that the picture is later drawn on does not take part.
void drawMeetingCurves(QImage& picture, const CurveLines& lines, const QPen& kind,
                       const Appearance& appearance);

/// Drops points within a twentieth of a point of the line that skips them: the result looks the
/// same and draws in half the time. The points must go from left to right.
[[nodiscard]] QPolygonF withoutStraightParts(const QPolygonF& points);

}  // namespace tonquil
