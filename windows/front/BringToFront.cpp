// SPDX-License-Identifier: MIT
#include "windows/front/BringToFront.h"

#include <QWidget>

namespace tonquil {

void bringToFront(QWidget& window, WindowSystem& windowSystem, Workspaces workspaces) {
    if (workspaces == Workspaces::All) {
        // A window manager forgets this when the window is hidden. Asking for the number makes the
        // window, which must exist to be told anything.
        windowSystem.keepOnAllWorkspaces(window.winId());
    } else if (window.isVisible()) {
        windowSystem.bringToActiveWorkspace(window.winId());
    }
    if (window.isVisible()) {
        windowSystem.activate(window.winId());
    }
    // To the toolkit a minimised window is still visible, and showing it does nothing.
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace tonquil
