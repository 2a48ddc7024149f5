// SPDX-License-Identifier: MIT
#include "ui/MeetingCurves.h"

#include <QPainter>
#include <QPen>
#include <algorithm>
#include <limits>
#include <span>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

void addDevicePixels(QImage& picture, QImage& addend) {
    const double scale = picture.devicePixelRatio();
    picture.setDevicePixelRatio(1);
    addend.setDevicePixelRatio(1);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.drawImage(QPoint(0, 0), addend);
    painter.end();
    picture.setDevicePixelRatio(scale);
}

QColor inverted(const QColor& colour) {
    return {255 - colour.red(), 255 - colour.green(), 255 - colour.blue()};
}

// Subtractive mixing: inks remove light, so what remains is the inverse.
void invertColours(QImage& picture) {
    auto* const pixels = static_cast<QRgb*>(static_cast<void*>(picture.bits()));
    for (QRgb& pixel : std::span(pixels, static_cast<std::size_t>(picture.sizeInBytes()) / 4)) {
        const auto opacity = static_cast<QRgb>(qAlpha(pixel));
        // Pixels are premultiplied: no channel exceeds the opacity, so the subtraction never
        // borrows.
        pixel = (opacity << 24U) | (opacity * 0x010101U - (pixel & 0xFFFFFFU));
    }
}

}  // namespace

QPolygonF withoutStraightParts(const QPolygonF& points) {
    constexpr double tolerance = 0.05;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QPolygonF kept;
    double least = -infinity;
    double most = infinity;
    for (qsizetype index = 0; index < points.size(); ++index) {
        const QPointF& point = points.at(index);
        if (!kept.isEmpty()) {
            QPointF way = point - kept.last();
            if (way.y() < least * way.x() || way.y() > most * way.x()) {
                kept.append(points.at(index - 1));
                way = point - kept.last();
                least = -infinity;
                most = infinity;
            }
            least = std::max(least, (way.y() - tolerance) / way.x());
            most = std::min(most, (way.y() + tolerance) / way.x());
        }
        if (index == 0 || index == points.size() - 1) {
            kept.append(point);
        }
    }
    return kept;
}

void drawMeetingCurves(QImage& picture, const CurveLines& lines, const QPen& kind,
                       const Appearance& appearance) {
    constexpr std::array channels = {Channel::Red, Channel::Green, Channel::Blue};
    const double scale = picture.devicePixelRatio();
    picture.fill(Qt::transparent);
    // Adding whole images is far cheaper than blending every small span of an outline.
    QImage stroke = picture;
    for (std::size_t channel = 0; channel < lines.size(); ++channel) {
        const QColor& colour = themeFor(appearance).channel(channels.at(channel));
        QPen pen = kind;
        pen.setColor(appearance.isDark ? colour : inverted(colour));
        stroke.setDevicePixelRatio(scale);
        stroke.fill(Qt::transparent);
        QPainter pencil(&stroke);
        pencil.setRenderHint(QPainter::Antialiasing);
        pencil.setPen(pen);
        pencil.drawPolyline(lines.at(channel));
        pencil.end();
        addDevicePixels(picture, stroke);
    }
    if (!appearance.isDark) {
        invertColours(picture);
    }
}

}  // namespace tonquil
