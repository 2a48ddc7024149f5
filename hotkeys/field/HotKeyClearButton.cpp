// SPDX-License-Identifier: MIT
#include "hotkeys/field/HotKeyClearButton.h"

#include <QEnterEvent>
#include <QPainter>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int side = 16;
constexpr double crossInset = 5;
constexpr double crossWidth = 1.5;
constexpr double ringWidth = 2;
constexpr double ringRadius = 4;

}  // namespace

HotKeyClearButton::HotKeyClearButton(QWidget* parent) : QAbstractButton(parent) {
    // No click focus: it would end a recording before the button is released.
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    setAccessibleName(tr("Clear shortcut"));
    setToolTip(tr("Clear shortcut"));
    resize(side, side);
}

QSize HotKeyClearButton::sizeHint() const {
    return {side, side};
}

void HotKeyClearButton::paintEvent(QPaintEvent* /*event*/) {
    const Theme& theme = themeOf(*this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isLit = underMouse() || isDown();
    painter.setPen(
        QPen(isLit ? theme.text : theme.secondaryText, crossWidth, Qt::SolidLine, Qt::RoundCap));
    const QRectF cross = QRectF(rect()).adjusted(crossInset, crossInset, -crossInset, -crossInset);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
    if (hasFocus()) {
        drawRoundedFrame(painter, rect(), ringRadius, ringWidth, theme.focusRing);
    }
}

void HotKeyClearButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void HotKeyClearButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

}  // namespace tonquil
