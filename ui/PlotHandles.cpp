// SPDX-License-Identifier: MIT
#include "ui/PlotHandles.h"

#include <QLineF>
#include <QPainter>
#include <algorithm>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double handleRadius = 4;
constexpr double handleStroke = 1.5;
constexpr double handleReach = 10;
/// Closer together than this, handles cannot be told apart by eye.
constexpr double togetherReach = 3;

constexpr std::array handleChannels = {Channel::Red, Channel::Green, Channel::Blue};

}  // namespace

bool PlotHandles::areTogether(std::size_t one, std::size_t other) const {
    return QLineF(_points.at(one), _points.at(other)).length() < togetherReach;
}

std::optional<PlotHandles::Grip> PlotHandles::gripAt(const QPointF& pointer,
                                                     Channel preferred) const {
    const auto distance = [&](const QPointF& point) { return QLineF(point, pointer).length(); };
    const auto* const found = std::ranges::min_element(_points, {}, distance);
    if (distance(*found) > handleReach) {
        return std::nullopt;
    }
    const auto nearest = static_cast<std::size_t>(found - _points.begin());
    bool areAllTogether = true;
    for (std::size_t curve = 0; curve < _points.size(); ++curve) {
        if (!areTogether(curve, nearest)) {
            areAllTogether = false;
        } else if (handleChannels.at(curve) == preferred) {
            return Grip{preferred, curve};
        }
    }
    return Grip{areAllTogether ? Channel::Master : handleChannels.at(nearest), nearest};
}

void PlotHandles::draw(QPainter& painter, const Theme& theme,
                       const std::optional<Grip>& grip) const {
    const bool areAllTogether = areTogether(0, 1) && areTogether(0, 2) && areTogether(1, 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto drawHandle = [&](std::size_t curve, const QColor& colour, bool isHeld) {
        painter.setPen(QPen(isHeld ? theme.edge : colour, handleStroke));
        painter.setBrush(isHeld ? colour : theme.field);
        painter.drawEllipse(_points.at(curve), handleRadius, handleRadius);
    };
    for (std::size_t curve = 0; curve < _points.size(); ++curve) {
        const Channel channel = areAllTogether ? Channel::Master : handleChannels.at(curve);
        drawHandle(curve, theme.channel(channel), grip && grip->channel == Channel::Master);
    }
    if (grip && grip->channel != Channel::Master) {
        drawHandle(grip->curve, theme.channel(grip->channel), true);
    }
    painter.restore();
}

}  // namespace tonquil
