// SPDX-License-Identifier: MIT
#include "ui/style/ScrollBarLook.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int handleInset = 3;
constexpr int leastHandle = 24;

}  // namespace

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool isVertical = bar.orientation == Qt::Vertical;
    const int length = isVertical ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    int handle = length;
    if (range > 0) {
        const qint64 shown = static_cast<qint64>(length) * bar.pageStep / (range + bar.pageStep);
        handle = std::clamp(static_cast<int>(shown), std::min(leastHandle, length), length);
    }
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - handle, bar.upsideDown);
    const auto piece = [&](int from, int to) {
        const QRect along =
            isVertical ? QRect(bar.rect.x(), bar.rect.y() + from, bar.rect.width(), to - from)
                       : QRect(bar.rect.x() + from, bar.rect.y(), to - from, bar.rect.height());
        return isVertical ? along : QStyle::visualRect(bar.direction, bar.rect, along);
    };
    switch (part) {
        case QStyle::SC_ScrollBarSlider:
            return piece(start, start + handle);
        case QStyle::SC_ScrollBarSubPage:
            return piece(0, start);
        case QStyle::SC_ScrollBarAddPage:
            return piece(start + handle, length);
        case QStyle::SC_ScrollBarGroove:
            return bar.rect;
        default:
            return {};
    }
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const Theme& theme) {
    if (bar.maximum <= bar.minimum) {
        return;
    }
    const bool isHighlighted = bar.state.testFlag(QStyle::State_MouseOver) ||
                               bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const QRectF handle = QRectF(scrollBarPart(bar, QStyle::SC_ScrollBarSlider))
                              .adjusted(handleInset, handleInset, -handleInset, -handleInset);
    fillRounded(painter, handle, std::min(handle.width(), handle.height()) / 2,
                isHighlighted ? theme.secondaryText : theme.outline);
}

}  // namespace tonquil
