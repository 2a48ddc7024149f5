// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <array>
#include <vector>

#include "ui/theme/Channel.h"

class QPainter;

namespace tonquil {

struct Theme;

/// A small table over the plot: the input under the pointer and what each channel makes of it, as
/// 8-bit levels and in per cent.
class PlotReadout {
 public:
    /// Levels from 0 to 1.
    PlotReadout(double input, const std::array<double, 3>& outputs);

    /// The whole 8-bit level nearest to an input, so that the table's numbers are exact.
    [[nodiscard]] static double wholeLevel(double input);

    /// Draws the table into the upper left corner of `graph` or, if the pointer is there, into its
    /// lower right one.
    void draw(QPainter& painter, const QFont& font, const QRectF& graph, const QPointF& pointer,
              const Theme& theme) const;

 private:
    struct Line {
        Channel channel;
        QString title;
        double level;
    };

    std::vector<Line> _lines;
};

}  // namespace tonquil
