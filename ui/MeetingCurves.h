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

/// Replaces what is in `picture` (ARGB, 32 bits, premultiplied) by the lines, each in its channel's
/// colour and otherwise of this `kind`. Where they meet, light adds up on the dark theme and inks
/// do on the light one, so that three equal lines are white or black. What the picture is laid over
/// does not join in.
void drawMeetingCurves(QImage& picture, const CurveLines& lines, const QPen& kind,
                       const Appearance& appearance);

/// Leaves out the points that lie within a twentieth of a point of the line past them: what is
/// drawn looks the same and takes half the time. The points go from left to right.
[[nodiscard]] QPolygonF withoutStraightParts(const QPolygonF& points);

}  // namespace tonquil
