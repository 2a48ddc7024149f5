// SPDX-License-Identifier: MIT
#include "ui/TQSliderCell.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double margin = 7;
constexpr double trackRadius = 3;
constexpr double markWidth = 2;
constexpr double edgeOverhang = 1;
constexpr double notchGap = 2;
constexpr double notchHeight = 3;

constexpr float restingOpacity = 0.7F;

// A mark centred on `x` that never leaves the track and starts on a device pixel, so that the edge
// and the notch for the same value line up and are both sharp.
QRectF markAt(double x, const QRectF& track, double top, double height, const QPainter& painter) {
    const double left = std::clamp(x - markWidth / 2, track.left(),
                                   std::max(track.left(), track.right() - markWidth));
    const double scale = painter.device()->devicePixelRatioF();
    return {std::round(left * scale) / scale, top, markWidth, height};
}

}  // namespace

QRectF TQSliderCell::trackInside(const QRectF& frame) {
    return {frame.left() + margin, frame.center().y() - trackHeight / 2, frame.width() - 2 * margin,
            trackHeight};
}

double TQSliderCell::positionOf(double fraction, const QRectF& track, bool isMirrored) {
    return track.left() + (isMirrored ? 1 - fraction : fraction) * track.width();
}

double TQSliderCell::fractionAt(double x, const QRectF& track, bool isMirrored) {
    if (track.width() <= 0) {
        return 0;
    }
    const double fraction = std::clamp((x - track.left()) / track.width(), 0.0, 1.0);
    return isMirrored ? 1 - fraction : fraction;
}

void TQSliderCell::drawBarInside(QPainter& painter, const QRectF& frame, const State& state,
                                 const Theme& theme) const {
    const QRectF track = trackInside(frame);
    const double end = positionOf(state.fraction, track, state.isMirrored);
    const double start = positionOf(0, track, state.isMirrored);
    QColor fill = _controlColor;
    if (!state.isHighlighted) {
        fill.setAlphaF(fill.alphaF() * restingOpacity);
    }

    fillRounded(painter, track, trackRadius, theme.track);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(track, trackRadius, trackRadius);
    painter.setClipPath(outline);
    painter.fillRect(QRectF(QPointF(start, track.top()), QPointF(end, track.bottom())).normalized(),
                     fill);
    painter.restore();

    const double notch = positionOf(state.neutralFraction, track, state.isMirrored);
    painter.fillRect(markAt(notch, track, track.bottom() + notchGap, notchHeight, painter),
                     theme.secondaryText);
    fillRounded(
        painter,
        markAt(end, track, track.top() - edgeOverhang, trackHeight + 2 * edgeOverhang, painter),
        markWidth / 2, theme.edge);
}

void TQSliderCell::drawKnob(QPainter& /*painter*/, const QRectF& /*frame*/) const {}

}  // namespace tonquil
