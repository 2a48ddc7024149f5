// SPDX-License-Identifier: MIT
#include "ui/TQVibrantLabel.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr double usualLightening = 0.25;
constexpr double opaqueLightening = 0.66;

}  // namespace

TQVibrantLabel::TQVibrantLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
}

double TQVibrantLabel::lightening() const {
    const Appearance appearance = effectiveAppearance(*this);
    const bool isOpaque = appearance.options.reduceTransparency;
    if (!appearance.isDark || (!appearance.allowsVibrancy && !isOpaque)) {
        return 0;
    }
    return isOpaque ? opaqueLightening : usualLightening;
}

void TQVibrantLabel::setDoubleClickAction(std::function<void()> action) {
    _doubleClickAction = std::move(action);
}

void TQVibrantLabel::paintEvent(QPaintEvent* event) {
    const double fraction = lightening();
    if (fraction <= 0) {
        QLabel::paintEvent(event);
        return;
    }
    // Changing the palette while painting would schedule another repaint, so a copy is changed.
    QPalette lighter = palette();
    lighter.setColor(foregroundRole(), blendedWithWhite(lighter.color(foregroundRole()), fraction));
    QPainter painter(this);
    drawFrame(&painter);
    const int inset = margin();
    // A label follows the direction of its text, not of the layout.
    const auto direction = text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    auto flags = static_cast<int>(QStyle::visualAlignment(direction, alignment()).toInt());
    flags |= direction == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    flags |= wordWrap() ? Qt::TextWordWrap : 0;
    flags |= buddy() != nullptr ? Qt::TextShowMnemonic : 0;
    style()->drawItemText(&painter, contentsRect().adjusted(inset, inset, -inset, -inset), flags,
                          lighter, isEnabled(), text(), foregroundRole());
}

void TQVibrantLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !_doubleClickAction) {
        QLabel::mouseDoubleClickEvent(event);
        return;
    }
    _doubleClickAction();
}

}  // namespace tonquil
