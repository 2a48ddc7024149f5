// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <array>

#include "ui/theme/Appearance.h"

class QPainter;

namespace tonquil {

/// The icons on the panel's buttons, drawn for an appearance.
enum class PanelIcon { Close, Menu, Reset, Targets, Remote, Unsaved, Compare };
[[nodiscard]] QIcon panelIcon(PanelIcon icon, const Appearance& appearance);

/// The channel strip's icons for a tab (0 black, 2 white, anything else middle), in the order
/// master, red, green, blue: a curve in the channel's colour, with the tab's point marked on it.
[[nodiscard]] std::array<QIcon, 4> touchBarChannelImagesForTab(int tab,
                                                               const Appearance& appearance);

/// The program's own icon.
[[nodiscard]] QIcon programIcon();
/// Draws the program icon in the square of 16 points at the painter's origin, for sizes beyond an
/// icon's.
void drawProgramIcon(QPainter& painter);

}  // namespace tonquil
