// SPDX-License-Identifier: MIT
#include "windows/preferences/FlatChoices.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr double boxRadius = 3;
constexpr float frameOpacity = 0.6F;

/// The box, with a focus ring if the focus is shown.
void drawBox(QPainter& painter, const QRectF& box, double radius, const QStyleOptionButton& option,
             const Theme& theme) {
    constexpr double ringWidth = 2;
    fillRounded(painter, box, radius, theme.field);
    if (option.state.testFlag(QStyle::State_Sunken)) {
        fillRounded(painter, box, radius, theme.track);
    }
    if (option.state.testFlag(QStyle::State_HasFocus) &&
        option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        drawRoundedFrame(painter, box, radius, ringWidth, theme.focusRing);
    } else {
        QColor frame = theme.secondaryText;
        frame.setAlphaF(frameOpacity);
        drawRoundedFrame(painter, box, radius, 1, frame);
    }
}

/// The painter's opacity dims all of a disabled control; the style would dim its text once more.
void drawAsEnabled(QStyleOptionButton& option) {
    option.state |= QStyle::State_Enabled;
    option.palette.setCurrentColorGroup(QPalette::Active);
}

void drawTick(QPainter& painter, const QRectF& box, const QColor& colour) {
    const auto point = [&box](double x, double y) {
        return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
    };
    QPainterPath tick(point(0.26, 0.53));
    tick.lineTo(point(0.43, 0.70));
    tick.lineTo(point(0.75, 0.31));
    painter.setPen(QPen(colour, box.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(tick);
}

void drawDot(QPainter& painter, const QRectF& box, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(box.center(), box.width() * 0.22, box.height() * 0.22);
}

}  // namespace

void FlatCheckBox::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    const Theme& theme = themeOf(*this);
    const QRectF box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    drawBox(painter, box, boxRadius, option, theme);
    if (isChecked()) {
        drawTick(painter, box, theme.text);
    }
    option.rect = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    drawAsEnabled(option);
    painter.drawControl(QStyle::CE_CheckBoxLabel, option);
}

void FlatRadioButton::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    const Theme& theme = themeOf(*this);
    const QRectF box = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    drawBox(painter, box, box.width() / 2, option, theme);
    if (isChecked()) {
        drawDot(painter, box, theme.text);
    }
    option.rect = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    drawAsEnabled(option);
    painter.drawControl(QStyle::CE_RadioButtonLabel, option);
}

}  // namespace tonquil
