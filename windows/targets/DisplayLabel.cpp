// SPDX-License-Identifier: MIT
#include "windows/targets/DisplayLabel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int labelMargin = 24;
constexpr int leastWidth = 180;
constexpr int numberPixels = 88;
constexpr int namePixels = 20;
constexpr double plateRadius = 14;

}  // namespace

// A window manager would put it where there is room, and only on the current workspace.
DisplayLabel::DisplayLabel(QString number, QString name, bool isBlended)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::X11BypassWindowManagerHint | Qt::NoDropShadowWindowHint |
                           Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      _number(std::move(number)),
      _name(std::move(name)),
      _radius(isBlended ? plateRadius : 0) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(_number + QStringLiteral(": ") + _name);
}

QFont DisplayLabel::numberFont() const {
    QFont large = font();
    large.setPixelSize(numberPixels);
    return large;
}

QFont DisplayLabel::nameFont() const {
    QFont small = font();
    small.setPixelSize(namePixels);
    return small;
}

QSize DisplayLabel::plateSize() const {
    const QFontMetrics number(numberFont());
    const QFontMetrics name(nameFont());
    const int width =
        std::max({leastWidth, number.horizontalAdvance(_number), name.horizontalAdvance(_name)});
    return {width + 2 * labelMargin, number.height() + name.height() + 2 * labelMargin};
}

// On Wayland only the compositor places windows; it fills a screen with one that asks for it.
void DisplayLabel::showOn(const QRect& frame) {
    if (QScreen* screen = QGuiApplication::screenAt(frame.center())) {
        setScreen(screen);
    }
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        showFullScreen();
        return;
    }
    QRect place(QPoint(), plateSize());
    place.moveCenter(frame.center());
    setGeometry(place);
    show();
}

void DisplayLabel::paintEvent(QPaintEvent* /*event*/) {
    const Theme& theme = themeOf(*this);
    QRect plate(QPoint(), plateSize());
    plate.moveCenter(rect().center());
    QPainter painter(this);
    fillRounded(painter, plate, _radius, theme.panel);
    drawRoundedFrame(painter, plate, _radius, 0, theme.hairline);
    plate.adjust(labelMargin, labelMargin, -labelMargin, -labelMargin);
    painter.setPen(theme.text);
    painter.setFont(numberFont());
    painter.drawText(plate, Qt::AlignHCenter | Qt::AlignTop, _number);
    painter.setPen(theme.secondaryText);
    painter.setFont(nameFont());
    painter.drawText(plate, Qt::AlignHCenter | Qt::AlignBottom, _name);
}

}  // namespace tonquil
