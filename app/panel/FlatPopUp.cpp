// SPDX-License-Identifier: MIT
#include "app/panel/FlatPopUp.h"

#include <QPainter>

#include "ui/Drawing.h"
#include "ui/Theme.h"

namespace tonquil {

void FlatPopUp::paintEvent(QPaintEvent* /*event*/) {
    constexpr int padding = 8;
    const Theme& theme = themeOf(*this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    drawField(painter, rect(), theme, hasFocus());
    const QRect inside = rect().adjusted(padding, 0, -padding, 0);
    painter.setPen(theme.text);
    painter.drawText(inside,
                     Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft),
                     currentText());
    painter.setPen(theme.secondaryText);
    painter.drawText(inside,
                     Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignRight),
                     QStringLiteral("\u25BE"));
}

}  // namespace tonquil
