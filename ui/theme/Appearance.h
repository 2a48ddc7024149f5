// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QPalette>

class QWidget;

namespace tonquil {

/// What the person asked of their whole desktop.
struct AccessibilityOptions {
    bool reduceTransparency = false;
    bool increaseContrast = false;
    bool reduceMotion = false;

    friend bool operator==(const AccessibilityOptions&, const AccessibilityOptions&) = default;
};

/// How a window and everything in it looks.
struct Appearance {
    bool isDark = true;
    /// Whether what lies behind the window may shine through.
    bool allowsVibrancy = true;
    AccessibilityOptions options{};

    friend bool operator==(const Appearance&, const Appearance&) = default;
};

/// Gives `widget` and all below it an appearance, and the palette that goes with it, and repaints
/// them. Menus and dialogs are windows of their own: give them an appearance too.
void setAppearance(QWidget& widget, const Appearance& appearance);

/// The appearance of the nearest of `widget` and its parents that was given one; dark if none was.
[[nodiscard]] Appearance effectiveAppearance(const QWidget& widget);

/// The colours of `appearance` for ordinary controls. What is disabled has 40 % of its opacity.
[[nodiscard]] QPalette paletteFor(const Appearance& appearance);

}  // namespace tonquil

Q_DECLARE_METATYPE(tonquil::Appearance)
