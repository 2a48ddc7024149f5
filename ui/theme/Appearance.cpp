// SPDX-License-Identifier: MIT
#include "ui/theme/Appearance.h"

#include <QApplication>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr const char* propertyName = "tonquilAppearance";

}  // namespace

void setAppearance(QWidget& widget, const Appearance& appearance) {
    widget.setProperty(propertyName, QVariant::fromValue(appearance));
    widget.setPalette(paletteFor(appearance));
    // Some options change how a control is drawn without changing the palette.
    widget.update();
    for (QWidget* child : widget.findChildren<QWidget*>()) {
        child->update();
    }
}

void setApplicationAppearance(const Appearance& appearance) {
    qApp->setProperty(propertyName, QVariant::fromValue(appearance));
    const QPalette palette = paletteFor(appearance);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

Appearance applicationAppearance() {
    return qApp->property(propertyName).value<Appearance>();
}

Appearance effectiveAppearance(const QWidget& widget) {
    for (const QWidget* each = &widget; each != nullptr; each = each->parentWidget()) {
        const QVariant appearance = each->property(propertyName);
        if (appearance.isValid()) {
            return appearance.value<Appearance>();
        }
    }
    return applicationAppearance();
}

QPalette paletteFor(const Appearance& appearance) {
    const Theme& theme = themeFor(appearance);
    QPalette palette(theme.button, theme.panel);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::AlternateBase, theme.panel);
    palette.setColor(QPalette::ToolTipBase, theme.field);
    palette.setColor(QPalette::Highlight, theme.selection);
    palette.setColor(QPalette::Link, theme.blue);
    palette.setColor(QPalette::LinkVisited, theme.blue);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText,
          QPalette::BrightText, QPalette::ToolTipText, QPalette::PlaceholderText}) {
        QColor colour = role == QPalette::PlaceholderText ? theme.secondaryText : theme.text;
        palette.setColor(role, colour);
        colour.setAlphaF(static_cast<float>(disabledOpacity));
        palette.setColor(QPalette::Disabled, role, colour);
    }
    return palette;
}

}  // namespace tonquil
