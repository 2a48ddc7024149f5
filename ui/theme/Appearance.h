// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QPalette>

class QWidget;

namespace tonquil {

/// The user's desktop-wide accessibility settings.
struct AccessibilityOptions {
    bool reduceTransparency = false;
    bool increaseContrast = false;
    bool reduceMotion = false;

    friend bool operator==(const AccessibilityOptions&, const AccessibilityOptions&) = default;
};

/// How a window and its content look.
struct Appearance {
    bool isDark = true;
    /// Whether the window may be translucent.
    bool allowsVibrancy = true;
    AccessibilityOptions options{};

    friend bool operator==(const Appearance&, const Appearance&) = default;
};

/// Gives `widget` and its descendants an appearance and the matching palette, and repaints them.
void setAppearance(QWidget& widget, const Appearance& appearance);

/// The appearance of everything that has none of its own: menus, lists, tool tips, icons.
void setApplicationAppearance(const Appearance& appearance);
/// Dark until it is set.
[[nodiscard]] Appearance applicationAppearance();

/// The appearance set on `widget` or its nearest ancestor that has one, else the application's.
[[nodiscard]] Appearance effectiveAppearance(const QWidget& widget);

/// The palette of `appearance` for ordinary controls. Disabled ones have 40 % of the opacity.
[[nodiscard]] QPalette paletteFor(const Appearance& appearance);

}  // namespace tonquil

Q_DECLARE_METATYPE(tonquil::Appearance)
