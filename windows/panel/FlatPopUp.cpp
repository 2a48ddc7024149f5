// SPDX-License-Identifier: MIT
#include "windows/panel/FlatPopUp.h"

#include <QPainter>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

void FlatPopUp::paintEvent(QPaintEvent* /*event*/) {
    constexpr int padding = 8;
    const Theme& theme = themeOf(*this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    drawField(painter, rect(), theme, hasFocus());
    const QRect inside = rect().adjusted(padding, 0, -padding, 0);
    const auto draw = [&](Qt::Alignment side, const QString& text) {
        const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), side);
        painter.drawText(inside, static_cast<int>((Qt::AlignVCenter | visual).toInt()), text);
    };
    painter.setPen(theme.text);
    draw(Qt::AlignLeft, currentText());
    painter.setPen(theme.secondaryText);
    draw(Qt::AlignRight, QStringLiteral("\u25BE"));
}

}  // namespace tonquil
