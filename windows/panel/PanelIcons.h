// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include "ui/theme/Channel.h"

class QPainter;

namespace tonquil {

/// The icons on the panel's buttons.
enum class PanelIcon { Close, Menu, Reset, Targets, Remote, Warning, Compare, Less, More };
[[nodiscard]] QIcon panelIcon(PanelIcon icon);

/// A curve in the channel's colour, with the point of a tab (0 black, 2 white, anything else
/// middle) marked on it.
[[nodiscard]] QIcon channelIcon(Channel channel, int tab);

/// The program's own icon.
[[nodiscard]] QIcon programIcon();
/// Draws the program icon in the square of 16 points at the painter's origin, for sizes beyond an
/// icon's.
void drawProgramIcon(QPainter& painter);

}  // namespace tonquil
