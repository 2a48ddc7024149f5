// SPDX-License-Identifier: MIT
#include "windows/panel/FormChevron.h"

#include <QCoreApplication>
#include <QPainter>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr QSize chevronButton(48, 12);
constexpr double chevronWidth = 10;
constexpr double chevronHeight = 4;
constexpr double chevronStroke = 1.5;

}  // namespace

FormChevron::FormChevron(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    resize(chevronButton);
    showForm(true);
}

void FormChevron::showForm(bool isAdvanced) {
    _isAdvanced = isAdvanced;
    const QString name =
        isAdvanced ? QCoreApplication::translate("Panel", "Hide the sliders of the colours")
                   : QCoreApplication::translate("Panel", "Show the sliders of the colours");
    setToolTip(name);
    setAccessibleName(name);
    update();
}

QSize FormChevron::sizeHint() const {
    return chevronButton;
}

void FormChevron::paintEvent(QPaintEvent* /*event*/) {
    const Theme& theme = themeOf(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHighlighted = underMouse() || isDown() || hasFocus();
    painter.setPen(QPen(isHighlighted ? theme.text : theme.secondaryText, chevronStroke,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF centre = QRectF(rect()).center();
    const double tip = _isAdvanced ? -chevronHeight / 2 : chevronHeight / 2;
    const QPolygonF line{centre + QPointF(-chevronWidth / 2, -tip), centre + QPointF(0, tip),
                         centre + QPointF(chevronWidth / 2, -tip)};
    painter.drawPolyline(line);
    if (hasFocus()) {
        drawRoundedFrame(painter, rect(), fieldRadius, 2, theme.focusRing);
    }
}

}  // namespace tonquil
