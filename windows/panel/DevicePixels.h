// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "screens/Geometry.h"

namespace tonquil {

/// Whether the desktop alone places windows, as on Wayland. A program then only learns on which
/// screen a window is.
[[nodiscard]] bool areWindowsPlacedByDesktop();

/// Converts between Qt's points and desktop pixels. Qt scales each screen from its upper left
/// corner, whose position it uses unscaled, in pixels. On Wayland desktop pixels are points: there
/// displays have their places and sizes in points.
[[nodiscard]] Rectangle devicePixelsFrom(const QRect& points);
[[nodiscard]] QPoint pointsFrom(const Point& devicePixels);
[[nodiscard]] QRect pointsFrom(const Rectangle& devicePixels);

}  // namespace tonquil
