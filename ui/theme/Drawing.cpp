// SPDX-License-Identifier: MIT
#include "ui/theme/Drawing.h"

#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>

#include "ui/theme/Theme.h"

namespace tonquil {

void drawHairline(QPainter& painter, double x, double y, double length, Qt::Orientation direction,
                  const QColor& colour) {
    const double scale = painter.device()->devicePixelRatioF();
    const auto snapped = [scale](double position) { return std::floor(position * scale) / scale; };
    const double width = 1 / scale;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(direction == Qt::Horizontal ? QRectF(x, snapped(y), length, width)
                                                 : QRectF(snapped(x), y, width, length),
                     colour);
    painter.restore();
}

void drawRoundedFrame(QPainter& painter, const QRectF& frame, double radius, double width,
                      const QColor& colour) {
    const double thickness = width > 0 ? width : 1 / painter.device()->devicePixelRatioF();
    const double inset = thickness / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, thickness));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset),
                            std::max(0.0, radius - inset), std::max(0.0, radius - inset));
    painter.restore();
}

void fillRounded(QPainter& painter, const QRectF& frame, double radius, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(frame, radius, radius);
    painter.restore();
}

void drawField(QPainter& painter, const QRectF& frame, const Theme& theme, bool hasFocus) {
    constexpr double ringWidth = 2;
    fillRounded(painter, frame, fieldRadius, theme.field);
    if (hasFocus) {
        drawRoundedFrame(painter, frame, fieldRadius, ringWidth, theme.focusRing);
    } else {
        drawRoundedFrame(painter, frame, fieldRadius, 0, theme.hairline);
    }
}

bool isFocusShown(Qt::FocusReason reason, bool wasShown) {
    switch (reason) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            return true;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
            return wasShown;
        default:
            return false;
    }
}

}  // namespace tonquil
