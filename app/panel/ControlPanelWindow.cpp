// SPDX-License-Identifier: MIT
// The panel as a window: where it stands, and when it takes the keyboard.
#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

#include "app/panel/ControlPanel.h"
#include "app/panel/DevicePixels.h"
#include "ui/TQNumericTextField.h"

namespace tonquil {

Rectangle ControlPanel::frame() const {
    return devicePixelsFrom(geometry());
}

void ControlPanel::setFrameOrigin(const Point& origin) {
    QPoint place = pointsFrom(origin);
    // The toolkit takes the very corner for "no place wanted".
    if (place.isNull()) {
        place.setX(1);
    }
    setGeometry(QRect(place, size()));
}

void ControlPanel::makeKeyAndOrderFront() {
    winId();  // The window must exist to be told what follows.
    _windowSystem.keepOnAllWorkspaces(winId());
    setAcceptsKeyboard(true);
    show();
    raise();
    takeKeyboard();
}

void ControlPanel::takeKeyboard() {
    setAcceptsKeyboard(true);
    activateWindow();
}

// A click on a window that does not accept the keyboard leaves it where it is.
void ControlPanel::setAcceptsKeyboard(bool accepts) {
    if (QWindow* handle = windowHandle()) {
        handle->setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
    }
}

bool ControlPanel::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) {
        setAcceptsKeyboard(false);
    }
    return QWidget::event(event);
}

bool ControlPanel::eventFilter(QObject* watched, QEvent* event) {
    auto* field = dynamic_cast<TQNumericTextField*>(watched);
    if (field != nullptr && event->type() == QEvent::MouseButtonPress) {
        takeKeyboard();
        firstResponderChanged(field);
    }
    // A field undoes its own typing; without any, the keys are the panel's.
    if (field != nullptr && event->type() == QEvent::ShortcutOverride && !field->isEditing()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Z && key->modifiers().testFlag(Qt::ControlModifier)) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ControlPanel::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (_actions != nullptr) {
        _actions->panelMoved();
    }
}

void ControlPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    updatePlot();
}

void ControlPanel::closeEvent(QCloseEvent* event) {
    if (_actions != nullptr) {
        _actions->endEdit();
    }
    QWidget::closeEvent(event);
}

}  // namespace tonquil
