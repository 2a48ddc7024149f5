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

/// The rectangle of a scroll bar's part; empty for the arrows, which our scroll bars lack.
[[nodiscard]] QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);

}  // namespace tonquil
