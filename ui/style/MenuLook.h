// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QRect;
class QStyleOptionMenuItem;

namespace tonquil {

struct Theme;

/// Between the edge of a menu and its entries, in points.
inline constexpr int menuPadding = 6;

/// Draws the background of a menu, a list or a tool tip. Its corners are round if a compositor
/// blends them with what is below.
void drawPopUpPanel(QPainter& painter, const QRect& frame, const Theme& theme, bool isBlended);

/// Draws an entry or a separator. In a list of choices the chosen one has a tick; in a menu,
/// entries that are on or off on their own have boxes.
void drawMenuEntry(QPainter& painter, const QStyleOptionMenuItem& entry, const Theme& theme,
                   bool isInList);

/// The size of an entry whose text, without its shortcut, has this one.
[[nodiscard]] QSize menuEntrySize(const QStyleOptionMenuItem& entry, const QSize& text);

}  // namespace tonquil
