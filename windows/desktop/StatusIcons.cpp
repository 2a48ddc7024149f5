// SPDX-License-Identifier: MIT
#include "windows/desktop/StatusIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace tonquil {

namespace {

const QColor light(0xF2, 0xF2, 0xF2);
const QColor rim(0x20, 0x20, 0x20);

/// The curve rises from the lower left of a square of 16 points.
QPainterPath curve() {
    QPainterPath path(QPointF(2.5, 13.5));
    path.quadTo(QPointF(10.5, 12), QPointF(13.5, 2.5));
    return path;
}

QPainterPath areaBelowCurve() {
    QPainterPath path = curve();
    path.lineTo(13.5, 13.5);
    path.closeSubpath();
    return path;
}

QPixmap draw(int pixels, bool isActive) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 16.0, pixels / 16.0);
    const QPainterPath shape = isActive ? areaBelowCurve() : curve();
    const auto stroke = [&](const QColor& colour, double width) {
        painter.strokePath(shape, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    stroke(rim, 3.6);
    if (isActive) {
        painter.fillPath(shape, light);
    }
    stroke(light, 1.6);
    return pixmap;
}

}  // namespace

QIcon statusIcon(bool isActive) {
    QIcon icon;
    for (const int pixels : {16, 22, 24, 32, 44, 48, 64}) {
        icon.addPixmap(draw(pixels, isActive));
    }
    return icon;
}

}  // namespace tonquil
