// SPDX-License-Identifier: MIT
#include "ui/style/MenuLook.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "ui/style/ChoiceLook.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double panelRadius = 8;
constexpr double highlightRadius = 4;
constexpr int entryPadding = 8;
constexpr int boxSize = 14;
constexpr int boxGap = 8;
constexpr int shortcutGap = 24;
constexpr int leastEntryHeight = 26;
constexpr int separatorHeight = 9;
constexpr double arrowWidth = 4;
constexpr double arrowHeight = 7;
constexpr double arrowStroke = 1.5;

void drawSubmenuArrow(QPainter& painter, const QRect& place, const QColor& colour,
                      bool isMirrored) {
    const double centre = place.center().y() + 0.5;
    const double tip = isMirrored ? place.left() : place.right() + 1;
    const double back = isMirrored ? tip + arrowWidth : tip - arrowWidth;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, arrowStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{
        {back, centre - arrowHeight / 2}, {tip, centre}, {back, centre + arrowHeight / 2}});
}

void drawMark(QPainter& painter, const QStyleOptionMenuItem& entry, const QRect& inside,
              const Theme& theme, bool isInList) {
    QRect box(0, 0, boxSize, boxSize);
    box.moveCenter(inside.center());
    box.moveLeft(inside.left());
    box = QStyle::visualRect(entry.direction, inside, box);
    if (!isInList && entry.checkType == QStyleOptionMenuItem::NonExclusive) {
        drawChoiceBox(painter, {.frame = box, .isChecked = entry.checked}, theme);
    } else if (entry.checkType != QStyleOptionMenuItem::NotCheckable && entry.checked) {
        drawTick(painter, box, theme.text);
    }
}

}  // namespace

void drawPopUpPanel(QPainter& painter, const QRect& frame, const Theme& theme, bool isBlended) {
    const double radius = isBlended ? panelRadius : 0;
    fillRounded(painter, frame, radius, theme.field);
    drawRoundedFrame(painter, frame, radius, 0, theme.hairline);
}

void drawMenuEntry(QPainter& painter, const QStyleOptionMenuItem& entry, const Theme& theme,
                   bool isInList) {
    painter.save();
    QRect inside = entry.rect.adjusted(entryPadding, 0, -entryPadding, 0);
    if (entry.menuItemType == QStyleOptionMenuItem::Separator) {
        drawHairline(painter, inside.left(), entry.rect.center().y(), inside.width(),
                     Qt::Horizontal, theme.hairline);
        painter.restore();
        return;
    }
    if (isInList) {
        // The list has filled it with the window's colour.
        painter.fillRect(entry.rect, theme.field);
    }
    const bool isEnabled = entry.state.testFlag(QStyle::State_Enabled);
    if (isEnabled && entry.state.testFlag(QStyle::State_Selected)) {
        fillRounded(painter, entry.rect, highlightRadius, theme.highlight);
    }
    painter.setOpacity(isEnabled ? 1 : disabledOpacity);
    const bool isMirrored = entry.direction == Qt::RightToLeft;
    if (entry.menuHasCheckableItems) {
        drawMark(painter, entry, inside, theme, isInList);
        const int width = boxSize + boxGap;
        inside.adjust(isMirrored ? 0 : width, 0, isMirrored ? -width : 0, 0);
    }
    const auto drawText = [&](const QString& text, Qt::Alignment side, const QColor& colour) {
        const auto visual = QStyle::visualAlignment(entry.direction, side | Qt::AlignVCenter);
        painter.setPen(colour);
        painter.drawText(inside,
                         static_cast<int>(visual.toInt()) | Qt::TextShowMnemonic |
                             Qt::TextDontClip | Qt::TextSingleLine,
                         text);
    };
    painter.setFont(entry.font);
    drawText(entry.text.section(u'\t', 0, 0), Qt::AlignLeft, theme.text);
    drawText(entry.text.section(u'\t', 1), Qt::AlignRight, theme.secondaryText);
    if (entry.menuItemType == QStyleOptionMenuItem::SubMenu) {
        drawSubmenuArrow(painter, inside, theme.secondaryText, isMirrored);
    }
    painter.restore();
}

QSize menuEntrySize(const QStyleOptionMenuItem& entry, const QSize& text) {
    if (entry.menuItemType == QStyleOptionMenuItem::Separator) {
        return {text.width(), separatorHeight};
    }
    const int mark = entry.menuHasCheckableItems ? boxSize + boxGap : 0;
    return {text.width() + mark + 2 * entryPadding + shortcutGap,
            std::max(leastEntryHeight, entry.fontMetrics.height() + entryPadding)};
}

}  // namespace tonquil
