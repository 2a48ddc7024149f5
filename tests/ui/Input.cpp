// SPDX-License-Identifier: MIT
#include "tests/ui/Input.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <cstdlib>

namespace tonquil {

namespace {

void send(QWidget& widget, QEvent::Type type, QPointF position, Qt::MouseButton button,
          Qt::MouseButtons held) {
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

}  // namespace

void present(QWidget& window) {
    window.show();
    window.activateWindow();
    QApplication::processEvents();
}

void press(QWidget& widget, QPointF position, Qt::MouseButton button) {
    send(widget, QEvent::MouseButtonPress, position, button, button);
}

void move(QWidget& widget, QPointF position, Qt::MouseButtons held) {
    send(widget, QEvent::MouseMove, position, Qt::NoButton, held);
}

void release(QWidget& widget, QPointF position, Qt::MouseButton button) {
    send(widget, QEvent::MouseButtonRelease, position, button, Qt::NoButton);
}

void doubleClick(QWidget& widget, QPointF position) {
    press(widget, position);
    release(widget, position);
    send(widget, QEvent::MouseButtonDblClick, position, Qt::LeftButton, Qt::LeftButton);
    move(widget, position + QPointF(3, 0), Qt::LeftButton);
    release(widget, position + QPointF(3, 0));
}

void pressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &event);
}

void typeOver(QWidget& field, const QString& text) {
    pressKey(field, Qt::Key_A, Qt::ControlModifier);
    pressKey(field, Qt::Key_Delete);
    for (const QChar character : text) {
        pressKey(field, 0, Qt::NoModifier, character);
    }
}

QImage drawn(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool isNear(const QColor& colour, const QColor& expected, int tolerance) {
    return std::abs(colour.red() - expected.red()) <= tolerance &&
           std::abs(colour.green() - expected.green()) <= tolerance &&
           std::abs(colour.blue() - expected.blue()) <= tolerance;
}

}  // namespace tonquil
