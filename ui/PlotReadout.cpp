// SPDX-License-Identifier: MIT
#include "ui/PlotReadout.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double plateGap = 4;
constexpr double platePadding = 4;
constexpr double columnGap = 8;
/// How near the pointer may come before the plate moves to the other corner.
constexpr double plateReach = 12;

constexpr double plateOpacity = 0.85;
constexpr double highestLevel = 255;

}  // namespace

PlotReadout::PlotReadout(double input, const std::array<double, 3>& outputs)
    : _lines{{Channel::None, QCoreApplication::translate("CurvePlot", "In"), input},
             {Channel::Red, QCoreApplication::translate("CurvePlot", "R"), outputs[0]},
             {Channel::Green, QCoreApplication::translate("CurvePlot", "G"), outputs[1]},
             {Channel::Blue, QCoreApplication::translate("CurvePlot", "B"), outputs[2]}} {}

double PlotReadout::wholeLevel(double input) {
    return std::round(input * highestLevel) / highestLevel;
}

void PlotReadout::draw(QPainter& painter, const QFont& font, const QRectF& graph,
                       const QPointF& pointer, const Theme& theme) const {
    const QFontMetrics metrics(font);
    const auto widthOf = [&](const QString& text) {
        return static_cast<double>(metrics.horizontalAdvance(text));
    };
    double titles = 0;
    for (const Line& line : _lines) {
        titles = std::max(titles, widthOf(line.title));
    }
    const double levels = widthOf(QStringLiteral("255"));
    const double shares = widthOf(QStringLiteral("100.0 %"));
    const double height = metrics.height();
    QRectF plate(graph.left() + plateGap, graph.top() + plateGap,
                 titles + levels + shares + 2 * columnGap + 2 * platePadding,
                 height * static_cast<double>(_lines.size()) + platePadding);
    const double reach = plateReach;
    if (plate.adjusted(-reach, -reach, reach, reach).contains(pointer)) {
        plate.moveBottomRight(graph.bottomRight() - QPointF(plateGap, plateGap));
    }
    QColor background = theme.field;
    background.setAlphaF(static_cast<float>(plateOpacity));
    fillRounded(painter, plate, fieldRadius, background);
    painter.setFont(font);
    QRectF row(plate.left() + platePadding, plate.top() + platePadding / 2, titles, height);
    for (const Line& line : _lines) {
        painter.setPen(line.channel == Channel::None ? theme.text
                                                     : theme.channelText(line.channel));
        const QRectF level(row.right() + columnGap, row.top(), levels, height);
        const QRectF share(level.right() + columnGap, row.top(), shares, height);
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, line.title);
        painter.drawText(level, Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(std::lround(line.level * highestLevel)));
        painter.drawText(share, Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(line.level * 100, 'f', 1) + QStringLiteral(" %"));
        row.translate(0, height);
    }
}

}  // namespace tonquil
