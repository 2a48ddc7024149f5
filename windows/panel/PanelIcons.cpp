// SPDX-License-Identifier: MIT
#include "windows/panel/PanelIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <functional>

#include "ui/DrawnIcon.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

/// Draws the icon at every scale that a desktop may request, in a square of 16 points.
QIcon iconFrom(const std::function<void(QPainter&)>& draw, int points) {
    QIcon icon;
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        const int pixels = qRound(points * scale);
        QPixmap pixmap(pixels, pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(pixels / 16.0, pixels / 16.0);
        draw(painter);
        painter.end();
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    return icon;
}

QPen penOf(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawClose(QPainter& painter) {
    painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
    painter.drawLine(QPointF(11.5, 4.5), QPointF(4.5, 11.5));
}

void drawMenu(QPainter& painter) {
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    for (const double x : {3.5, 8.0, 12.5}) {
        painter.drawEllipse(QPointF(x, 8), 1.25, 1.25);
    }
}

/// An arrow most of the way round, counter-clockwise.
void drawReset(QPainter& painter) {
    const QRectF circle(3, 3.5, 10, 10);
    constexpr int degree = 16;
    painter.drawArc(circle, -200 * degree, 300 * degree);
    QPainterPath head;
    head.moveTo(3, 2);
    head.lineTo(3.2, 6.6);
    head.lineTo(7.6, 5.4);
    painter.drawPath(head);
}

/// A square of four quarters, two of them filled, like those of the targets.
void drawTargets(QPainter& painter) {
    const QColor colour = painter.pen().color();
    painter.drawRoundedRect(QRectF(2.7, 2.7, 10.6, 10.6), 1.5, 1.5);
    for (const QPointF& corner : {QPointF(5, 5), QPointF(8, 8)}) {
        painter.fillRect(QRectF(corner, QSizeF(3, 3)), colour);
    }
}

void drawStep(QPainter& painter, bool isUp) {
    painter.drawLine(QPointF(4.5, 8), QPointF(11.5, 8));
    if (isUp) {
        painter.drawLine(QPointF(8, 4.5), QPointF(8, 11.5));
    }
}

/// Waves that spread to both sides of a point.
void drawRemote(QPainter& painter) {
    constexpr int degree = 16;
    for (const double radius : {3.0, 5.5}) {
        const QRectF circle(8 - radius, 8 - radius, 2 * radius, 2 * radius);
        painter.drawArc(circle, -45 * degree, 90 * degree);
        painter.drawArc(circle, 135 * degree, 90 * degree);
    }
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(8, 8), 1.25, 1.25);
}

/// A triangle with a stroke and a dot inside.
void drawWarning(QPainter& painter) {
    QPainterPath triangle(QPointF(8, 2.5));
    triangle.lineTo(14.5, 13.5);
    triangle.lineTo(1.5, 13.5);
    triangle.closeSubpath();
    painter.drawPath(triangle);
    painter.drawLine(QPointF(8, 6.5), QPointF(8, 9));
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(8, 11.3), 0.9, 0.9);
}

/// A circle of two halves: before and after.
void drawCompare(QPainter& painter) {
    const QRectF circle(2.8, 2.8, 10.4, 10.4);
    constexpr int degree = 16;
    painter.drawEllipse(circle);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPie(circle, -90 * degree, 180 * degree);
}

/// The curve from black to white in the channel icons.
QPointF curvePoint(double input) {
    return {2 + input * 12, 14 - input * input * 12};
}

void drawCurve(QPainter& painter, int tab, const QColor& colour) {
    QPainterPath curve(curvePoint(0));
    curve.quadTo(QPointF(8, 14), curvePoint(1));
    painter.setPen(penOf(colour, 1.5));
    painter.drawPath(curve);
    const double input = tab == 0 ? 0 : tab == 2 ? 1 : 0.5;
    painter.setBrush(colour);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(curvePoint(input), 2, 2);
}

void drawPanelIcon(QPainter& painter, PanelIcon icon) {
    switch (icon) {
        case PanelIcon::Close:
            drawClose(painter);
            break;
        case PanelIcon::Menu:
            drawMenu(painter);
            break;
        case PanelIcon::Reset:
            drawReset(painter);
            break;
        case PanelIcon::Targets:
            drawTargets(painter);
            break;
        case PanelIcon::Remote:
            drawRemote(painter);
            break;
        case PanelIcon::Compare:
            drawCompare(painter);
            break;
        case PanelIcon::Warning:
            drawWarning(painter);
            break;
        case PanelIcon::Less:
        case PanelIcon::More:
            drawStep(painter, icon == PanelIcon::More);
            break;
    }
}

}  // namespace

QIcon panelIcon(PanelIcon icon) {
    return drawnIcon([icon](QPainter& painter, QIcon::Mode mode) {
        const Theme& theme = themeFor(applicationAppearance());
        painter.setPen(penOf(mode == QIcon::Active ? theme.text : theme.secondaryText, 1.4));
        drawPanelIcon(painter, icon);
    });
}

QIcon channelIcon(Channel channel, int tab) {
    return drawnIcon([channel, tab](QPainter& painter, QIcon::Mode /*mode*/) {
        drawCurve(painter, tab, themeFor(applicationAppearance()).channel(channel));
    });
}

void drawProgramIcon(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x2A, 0x2A, 0x2A));
    painter.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3.5, 3.5);
    painter.setPen(penOf(QColor(0x7A, 0x7A, 0x7A), 0.6));
    painter.drawLine(QPointF(3, 13), QPointF(13, 3));
    painter.setPen(penOf(Qt::white, 1.5));
    painter.setBrush(Qt::NoBrush);
    QPainterPath curve(QPointF(3, 13));
    curve.quadTo(QPointF(8.5, 11.5), QPointF(13, 3));
    painter.drawPath(curve);
}

QIcon programIcon() {
    QIcon icon = iconFrom(drawProgramIcon, 32);
    for (const int points : {16, 48, 128}) {
        icon.addPixmap(iconFrom(drawProgramIcon, points).pixmap(points));
    }
    return icon;
}

}  // namespace tonquil
