// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

namespace tonquil {

struct Theme;

/// The width of a scroll bar, in points.
inline constexpr int scrollBarExtent = 12;

/// Draws a scroll bar as nothing but its handle.
void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const Theme& theme);

/// A part of a scroll bar that has no arrows.
[[nodiscard]] QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);

}  // namespace tonquil
