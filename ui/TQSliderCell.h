// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tonquil {

struct Theme;

/// A slider's look: a flat bar whose filled part ends where the value is. There is no knob.
class TQSliderCell {
 public:
    /// What a drawing of the bar depends on besides the colours.
    struct State {
        double fraction = 0;         ///< Where the value lies between minimum (0) and maximum (1).
        double neutralFraction = 0;  ///< The same of the neutral value.
        bool isHighlighted = false;  ///< Under the pointer, or with the focus.
        bool isMirrored = false;     ///< The minimum is at the right.
    };

    /// The height of the bar, in points.
    static constexpr double trackHeight = 6;

    /// The fill's colour; red until it is set.
    [[nodiscard]] QColor color() const { return _controlColor; }
    void setColor(const QColor& colour) { _controlColor = colour; }

    /// The bar within a slider's frame: the whole width but a margin for the focus ring.
    [[nodiscard]] static QRectF trackInside(const QRectF& frame);
    /// Where in `track` a fraction (0 to 1) lies, in points from the left of the frame.
    [[nodiscard]] static double positionOf(double fraction, const QRectF& track, bool isMirrored);
    /// The fraction at a horizontal position; held within 0 to 1 beyond the ends.
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
