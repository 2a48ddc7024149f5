// SPDX-License-Identifier: MIT
#include "windows/about/KVAboutBoxBackground.h"

#include <QEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

/// The shared colour; light grey until the program sets its own.
QColor& sharedColor() {
    static QColor color = QColor::fromRgbF(0.9F, 0.9F, 0.9F);
    return color;
}

}  // namespace

KVAboutBoxBackground::KVAboutBoxBackground(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QColor KVAboutBoxBackground::backgroundColor() {
    return sharedColor();
}

void KVAboutBoxBackground::setBackgroundColor(const QColor& color) {
    sharedColor() = color;
}

void KVAboutBoxBackground::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (!isActiveWindow()) {
        painter.fillRect(event->rect(), blendedWithWhite(backgroundColor(), 0.5));
        return;
    }
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, backgroundColor());
    painter.fillRect(rect(), gradient);
}

// A view that has moved to another window gets a show event there before it becomes visible.
void KVAboutBoxBackground::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    viewWillMoveToWindow(window());
}

void KVAboutBoxBackground::viewWillMoveToWindow(QWidget* newWindow) {
    if (_observedWindow) {
        _observedWindow->removeEventFilter(this);
    }
    _observedWindow = newWindow;
    newWindow->installEventFilter(this);
}

bool KVAboutBoxBackground::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate) {
        needsRedraw();
    }
    return QWidget::eventFilter(watched, event);
}

void KVAboutBoxBackground::mousePressEvent(QMouseEvent* event) {
    QWindow* const handle = window()->windowHandle();
    if (event->button() == Qt::LeftButton && mouseDownCanMoveWindow() && handle != nullptr) {
        handle->startSystemMove();
    }
}

}  // namespace tonquil
