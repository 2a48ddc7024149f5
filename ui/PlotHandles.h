// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <array>
#include <cstddef>
#include <optional>

#include "ui/theme/Channel.h"

class QPainter;

namespace tonquil {

struct Theme;

/// The points of the red, the green and the blue curve at one input, as handles to drag.
class PlotHandles {
 public:
    /// What a press takes hold of.
    struct Grip {
        /// `Master` if all three lie together.
        Channel channel = Channel::Master;
        /// The curve whose point is followed: 0 red, 1 green, 2 blue.
        std::size_t curve = 0;

        friend bool operator==(const Grip&, const Grip&) = default;
    };

    /// In points of the plot.
    explicit PlotHandles(const std::array<QPointF, 3>& points) : _points(points) {}

    /// The nearest handle within reach of the pointer. Where several lie together, it is the one of
    /// the preferred channel, else all of them or the first.
    [[nodiscard]] std::optional<Grip> gripAt(const QPointF& pointer, Channel preferred) const;
    /// Draws rings, and those that a press would take hold of as filled.
    void draw(QPainter& painter, const Theme& theme, const std::optional<Grip>& grip) const;

    [[nodiscard]] const QPointF& point(const Grip& grip) const { return _points.at(grip.curve); }

 private:
    [[nodiscard]] bool areTogether(std::size_t one, std::size_t other) const;

    std::array<QPointF, 3> _points;
};

}  // namespace tonquil
