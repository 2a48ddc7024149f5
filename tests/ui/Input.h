// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QMouseEvent>
#include <QWidget>
#include <cstdlib>

namespace tonquil {

/// Shows a window and gives it the focus.
inline void present(QWidget& window) {
    window.show();
    window.activateWindow();
    QApplication::processEvents();
}

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF position, Qt::MouseButton button,
                      Qt::MouseButtons held) {
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

inline void press(QWidget& widget, QPointF position, Qt::MouseButton button = Qt::LeftButton) {
    sendMouse(widget, QEvent::MouseButtonPress, position, button, button);
}

inline void move(QWidget& widget, QPointF position, Qt::MouseButtons held) {
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, held);
}

inline void release(QWidget& widget, QPointF position) {
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

inline void pressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     const QString& text = {}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &event);
}

/// Replaces a field's text by typing.
inline void typeOver(QWidget& field, const QString& text) {
    pressKey(field, Qt::Key_A, Qt::ControlModifier);
    pressKey(field, Qt::Key_Delete);
    for (const QChar character : text) {
        pressKey(field, 0, Qt::NoModifier, character);
    }
}

/// Renders the widget together with its background.
inline QImage drawn(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Whether every component of the colours is within `tolerance` of 255.
inline bool isNear(const QColor& colour, const QColor& expected, int tolerance = 2) {
    return std::abs(colour.red() - expected.red()) <= tolerance &&
           std::abs(colour.green() - expected.green()) <= tolerance &&
           std::abs(colour.blue() - expected.blue()) <= tolerance;
}

}  // namespace tonquil
