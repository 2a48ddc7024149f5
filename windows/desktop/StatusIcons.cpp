// SPDX-License-Identifier: MIT
#include "windows/desktop/StatusIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QStandardPaths>

#include "ui/DrawnIcon.h"

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

QPainterPath dottedCurve() {
    constexpr double radius = 1.1;
    constexpr int dots = 5;
    const QPainterPath line = curve();
    QPainterPath path;
    for (int dot = 0; dot < dots; ++dot) {
        const double along = line.length() * dot / (dots - 1);
        path.addEllipse(line.pointAtPercent(line.percentAtLength(along)), radius, radius);
    }
    return path;
}

void drawStatus(QPainter& painter, bool isActive) {
    constexpr double strokeWidth = 1.6;
    constexpr double rimWidth = 0.9;
    const QPainterPath shape = isActive ? areaBelowCurve() : dottedCurve();
    const double outline = isActive ? strokeWidth : 0;
    const auto stroke = [&](const QColor& colour, double width) {
        painter.strokePath(shape, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    stroke(rim, outline + 2 * rimWidth);
    painter.fillPath(shape, light);
    if (isActive) {
        stroke(light, outline);
    }
}

/// Nothing if the icon is not installed: a tray might show a sign for a missing one.
QString installedIcon(const QString& name) {
    const QString file = QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(name);
    const bool isInstalled =
        !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
    return isInstalled ? name : QString();
}

}  // namespace

QIcon statusIcon(bool isActive) {
    return drawnIcon(
        [isActive](QPainter& painter, QIcon::Mode /*mode*/) { drawStatus(painter, isActive); },
        installedIcon(isActive ? QStringLiteral("tonquil-symbolic")
                               : QStringLiteral("tonquil-off-symbolic")));
}

}  // namespace tonquil
