// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QString>
#include <Qt>

class QWidget;

namespace tonquil {

/// Shows a window and gives it the focus.
void present(QWidget& window);

void press(QWidget& widget, QPointF position, Qt::MouseButton button = Qt::LeftButton);
void move(QWidget& widget, QPointF position, Qt::MouseButtons held);
void release(QWidget& widget, QPointF position, Qt::MouseButton button = Qt::LeftButton);
/// The whole of it: both clicks.
void doubleClick(QWidget& widget, QPointF position);

void pressKey(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              const QString& text = {});
/// Types over all that is in a field.
void typeOver(QWidget& field, const QString& text);

/// Draws the widget, and what lies behind it, anew.
[[nodiscard]] QImage drawn(QWidget& widget);

/// Whether no component of the colours differs by more than `tolerance` of 255.
[[nodiscard]] bool isNear(const QColor& colour, const QColor& expected, int tolerance = 2);

}  // namespace tonquil
