// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include "ui/theme/Appearance.h"
#include "ui/theme/Channel.h"

class QWidget;

namespace tonquil {

/// The colours that everything is drawn with: greys, and a colour only where it means a channel.
struct Theme {
    QColor panel;         ///< Opaque; see `panelOpacity`.
    double panelOpacity;  ///< 0 to 1, for where a compositor blends; otherwise the panel is opaque.
    QColor field;         ///< Fields, the plot and, in the dark theme, the strip.
    QColor button;        ///< The desktop's own buttons.
    QColor selection;     ///< Behind selected text and entries.
    QColor text;
    QColor secondaryText;
    QColor hairline;  ///< Translucent, over any of the backgrounds.
    QColor grid;      ///< The plot's quarter lines; translucent.
    QColor track;     ///< The part of a slider that is not filled; translucent.
    QColor edge;      ///< Where a slider's fill ends.
    QColor focusRing;
    QColor master;
    QColor red;
    QColor green;
    QColor blue;

    /// The colour of a channel's fills and curves; the master's grey for `None`.
    [[nodiscard]] const QColor& channel(Channel channel) const;
    /// The channel's colour for text, which reads at 4.5 : 1 or better over `panel` and `field`.
    [[nodiscard]] QColor channelText(Channel channel) const;
};

/// The theme of an appearance. Lives as long as the program.
[[nodiscard]] const Theme& themeFor(const Appearance& appearance);
/// The theme of the widget's effective appearance.
[[nodiscard]] const Theme& themeOf(const QWidget& widget);

/// `colour` moved towards white by `fraction` (0 to 1); its opacity stays.
[[nodiscard]] QColor blendedWithWhite(const QColor& colour, double fraction);

/// What a disabled control keeps of its opacity.
inline constexpr double disabledOpacity = 0.4;

}  // namespace tonquil
