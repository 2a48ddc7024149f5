// SPDX-License-Identifier: MIT
#include "ui/style/ChoiceLook.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double boxRadius = 3;
constexpr double boxRing = 2;

void drawDot(QPainter& painter, const QRectF& box, const QColor& colour) {
    const double side = box.width() * 0.44;
    QRectF dot(0, 0, side, side);
    dot.moveCenter(box.center());
    fillRounded(painter, dot, side / 2, colour);
}

}  // namespace

void drawTick(QPainter& painter, const QRectF& box, const QColor& colour) {
    const auto point = [&box](double x, double y) {
        return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
    };
    QPainterPath tick(point(0.26, 0.53));
    tick.lineTo(point(0.43, 0.70));
    tick.lineTo(point(0.75, 0.31));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(tick,
                       QPen(colour, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

void drawChoiceBox(QPainter& painter, const ChoiceBox& box, const Theme& theme) {
    const double radius = box.isRound ? box.frame.width() / 2 : boxRadius;
    fillRounded(painter, box.frame, radius, theme.field);
    if (box.isDown) {
        fillRounded(painter, box.frame, radius, theme.track);
    }
    if (box.hasFocusRing) {
        drawRoundedFrame(painter, box.frame, radius, boxRing, theme.focusRing);
    } else {
        drawRoundedFrame(painter, box.frame, radius, 1, theme.outline);
    }
    if (box.isChecked && box.isRound) {
        drawDot(painter, box.frame, theme.text);
    } else if (box.isChecked) {
        drawTick(painter, box.frame, theme.text);
    }
}

}  // namespace tonquil
