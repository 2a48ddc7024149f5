// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "screens/Geometry.h"

namespace tonquil {

/// Converts between Qt's points and desktop pixels. Qt scales each screen from its upper left
/// corner, whose position it uses unscaled, in pixels.
[[nodiscard]] Rectangle devicePixelsFrom(const QRect& points);
[[nodiscard]] QPoint pointsFrom(const Point& devicePixels);
[[nodiscard]] QRect pointsFrom(const Rectangle& devicePixels);

}  // namespace tonquil
