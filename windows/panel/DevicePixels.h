// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "screens/Geometry.h"

namespace tonquil {

/// Turns the toolkit's points into pixels of the desktop and back. The toolkit scales each screen
/// from its upper left corner, whose place it takes as it is in pixels.
[[nodiscard]] Rectangle devicePixelsFrom(const QRect& points);
[[nodiscard]] QPoint pointsFrom(const Point& devicePixels);
[[nodiscard]] QRect pointsFrom(const Rectangle& devicePixels);

}  // namespace tonquil
