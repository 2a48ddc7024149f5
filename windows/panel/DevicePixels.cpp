// SPDX-License-Identifier: MIT
#include "windows/panel/DevicePixels.h"

#include <QGuiApplication>
#include <QScreen>

namespace tonquil {

namespace {

const QScreen& screenOf(const QRect& points) {
    if (const QScreen* screen = QGuiApplication::screenAt(points.center())) {
        return *screen;
    }
    const QScreen* screen = QGuiApplication::screenAt(points.topLeft());
    return screen != nullptr ? *screen : *QGuiApplication::primaryScreen();
}

double scaleOf(const QScreen& screen) {
    return areWindowsPlacedByDesktop() ? 1 : screen.devicePixelRatio();
}

Rectangle pixelsOf(const QScreen& screen) {
    const QRect points = screen.geometry();
    const double scale = scaleOf(screen);
    return {static_cast<double>(points.x()), static_cast<double>(points.y()),
            points.width() * scale, points.height() * scale};
}

const QScreen& screenAt(const Point& devicePixels) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (pixelsOf(*screen).contains(devicePixels)) {
            return *screen;
        }
    }
    return *QGuiApplication::primaryScreen();
}

}  // namespace

bool areWindowsPlacedByDesktop() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

Rectangle devicePixelsFrom(const QRect& points) {
    const QScreen& screen = screenOf(points);
    const QPoint origin = screen.geometry().topLeft();
    const double scale = scaleOf(screen);
    return {origin.x() + (points.x() - origin.x()) * scale,
            origin.y() + (points.y() - origin.y()) * scale, points.width() * scale,
            points.height() * scale};
}

QPoint pointsFrom(const Point& devicePixels) {
    const QScreen& screen = screenAt(devicePixels);
    const QPoint origin = screen.geometry().topLeft();
    const double scale = scaleOf(screen);
    return {qRound(origin.x() + (devicePixels.x - origin.x()) / scale),
            qRound(origin.y() + (devicePixels.y - origin.y()) / scale)};
}

QRect pointsFrom(const Rectangle& devicePixels) {
    const Point corner{devicePixels.x, devicePixels.y};
    const double scale = scaleOf(screenAt(corner));
    return {pointsFrom(corner),
            QSize(qRound(devicePixels.width / scale), qRound(devicePixels.height / scale))};
}

}  // namespace tonquil
