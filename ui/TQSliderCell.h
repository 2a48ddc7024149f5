// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tonquil {

struct Theme;

/// Draws a slider: a flat bar filled up to the value. There is no knob.
class TQSliderCell {
 public:
    /// What the drawing depends on besides the colours.
    struct State {
        double fraction = 0;         ///< Position of the value between minimum (0) and maximum (1).
        double neutralFraction = 0;  ///< The same for the neutral value.
        bool isHighlighted = false;  ///< Hovered or focused.
        bool isMirrored = false;     ///< The minimum is on the right.
    };

    /// Height of the bar, in points.
    static constexpr double trackHeight = 6;

    /// The fill colour; red until set.
    [[nodiscard]] QColor color() const { return _controlColor; }
    void setColor(const QColor& colour) { _controlColor = colour; }

    /// The bar within a slider's frame: the full width minus a margin for the focus ring.
    [[nodiscard]] static QRectF trackInside(const QRectF& frame);
    /// The position of a fraction (0 to 1) in `track`, in points from the left of the frame.
    [[nodiscard]] static double positionOf(double fraction, const QRectF& track, bool isMirrored);
    /// The fraction at a horizontal position, clamped to 0…1 beyond the ends.
    [[nodiscard]] static double fractionAt(double x, const QRectF& track, bool isMirrored);

    /// Draws the track, its fill, the fill's light edge and the notch below the neutral value.
    void drawBarInside(QPainter& painter, const QRectF& frame, const State& state,
                       const Theme& theme) const;
    /// Draws nothing: the end of the fill shows the value.
    void drawKnob(QPainter& painter, const QRectF& frame) const;

 private:
    QColor _controlColor = QColor(255, 0, 0);
};

}  // namespace tonquil
