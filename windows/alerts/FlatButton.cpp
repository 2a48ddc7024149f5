// SPDX-License-Identifier: MIT
#include "windows/alerts/FlatButton.h"

#include <QFocusEvent>
#include <QPainter>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

void FlatButton::paintEvent(QPaintEvent* /*event*/) {
    constexpr double ringWidth = 2;
    const Theme& theme = themeOf(*this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    fillRounded(painter, rect(), fieldRadius, isDefault() ? theme.selection : theme.button);
    if (isDown()) {
        fillRounded(painter, rect(), fieldRadius, theme.track);
    }
    const bool hasRing = hasFocus() && _isFocusShown;
    drawRoundedFrame(painter, rect(), fieldRadius, hasRing ? ringWidth : 0,
                     hasRing ? theme.focusRing : theme.hairline);
    painter.setPen(theme.text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void FlatButton::focusInEvent(QFocusEvent* event) {
    _isFocusShown = isFocusShown(event->reason(), _isFocusShown);
    QPushButton::focusInEvent(event);
}

void FlatButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    update();
}

}  // namespace tonquil
