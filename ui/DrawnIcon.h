// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <functional>

class QPainter;

namespace tonquil {

/// Draws an icon in the square of 16 points at the painter's origin.
using IconDrawing = std::function<void(QPainter& painter, QIcon::Mode mode)>;

/// An icon that is drawn anew wherever it is shown, at that place's scale and in the theme of that
/// moment. Disabled, it is dimmed like any control.
///
/// Where icons are shown by others, as in the tray, they are asked to show their own icon of that
/// `name`, if there is one.
[[nodiscard]] QIcon drawnIcon(IconDrawing draw, const QString& name = {});

}  // namespace tonquil
