// SPDX-License-Identifier: MIT
#include "windows/targets/AspectKeeper.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace tonquil {

AspectKeeper::AspectKeeper(QWidget& window, WindowSystem& windowSystem)
    : _window(window), _windowSystem(windowSystem), _proportions(window.size()) {
    // Only a window that exists in the window system has a handle.
    static_cast<void>(_window.winId());
    _window.windowHandle()->installEventFilter(this);
}

// The toolkit knows no proportions, and overwrites them when it shows or moves the window. Once
// there is something to draw, the window system has what the toolkit wrote.
bool AspectKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && _window.windowHandle()->isExposed()) {
        _windowSystem.keepProportions(_window.winId(),
                                      static_cast<std::uint32_t>(_proportions.width()),
                                      static_cast<std::uint32_t>(_proportions.height()));
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tonquil
