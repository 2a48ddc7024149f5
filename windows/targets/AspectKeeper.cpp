// SPDX-License-Identifier: MIT
#include "windows/targets/AspectKeeper.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace tonquil {

AspectKeeper::AspectKeeper(QWidget& window, WindowSystem& windowSystem)
    : _window(window), _windowSystem(windowSystem), _proportions(window.size()) {
    // Only a native window has a handle.
    static_cast<void>(_window.winId());
    _window.windowHandle()->installEventFilter(this);
}

// Qt does not know aspect ratios, and overwrites the hints when it shows or moves the window. By
// the time there is something to draw, Qt's hints have reached the window system.
bool AspectKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && _window.windowHandle()->isExposed()) {
        _windowSystem.keepProportions(_window.winId(),
                                      static_cast<std::uint32_t>(_proportions.width()),
                                      static_cast<std::uint32_t>(_proportions.height()));
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tonquil
