// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include "ui/theme/Appearance.h"
#include "ui/theme/Channel.h"

class QWidget;

namespace tonquil {

/// The colours everything is drawn with: greys, and a hue only where it means a channel.
struct Theme {
    QColor panel;         ///< Opaque; see `panelOpacity`.
    double panelOpacity;  ///< 0 to 1, for use with a compositor; without one the panel is opaque.
    QColor field;         ///< Fields, the plot, the title strip and menus.
    QColor button;        ///< Push buttons, and unselected tabs on the light theme.
    QColor selection;     ///< Behind selected text and entries.
    QColor text;
    QColor secondaryText;
    QColor highlight;  ///< Behind the entry or the flat button under the pointer; translucent.
    QColor hairline;   ///< Translucent, over any of the backgrounds.
    QColor outline;    ///< Around the box of an unchecked choice; translucent.
    QColor grid;       ///< The plot's quarter lines; translucent.
    QColor track;      ///< The unfilled part of a slider; translucent.
    QColor edge;       ///< The end of a slider's fill.
    QColor focusRing;
    QColor master;
    QColor red;
    QColor green;
    QColor blue;

    /// The colour of a channel's fills and curves; the master's grey for `None`.
    [[nodiscard]] const QColor& channel(Channel channel) const;
    /// The channel's colour for text, with a contrast of at least 4.5 : 1 on `panel` and `field`.
    [[nodiscard]] QColor channelText(Channel channel) const;
};

/// The theme of an appearance. Valid for the whole run of the program.
[[nodiscard]] const Theme& themeFor(const Appearance& appearance);
/// The theme of the widget's effective appearance.
[[nodiscard]] const Theme& themeOf(const QWidget& widget);

/// `colour` blended with white by `fraction` (0 to 1), with its opacity unchanged.
[[nodiscard]] QColor blendedWithWhite(const QColor& colour, double fraction);

/// The share of its opacity that a disabled control keeps.
inline constexpr double disabledOpacity = 0.4;

}  // namespace tonquil
