// SPDX-License-Identifier: MIT
#include "windows/front/BringToFront.h"

#include <QWidget>

namespace tonquil {

void bringToFront(QWidget& window, WindowSystem& windowSystem, Workspaces workspaces) {
    if (workspaces == Workspaces::All) {
        // A window manager forgets this when the window is hidden. winId() creates the native
        // window, which must exist before it can get messages.
        windowSystem.keepOnAllWorkspaces(window.winId());
    } else if (window.isVisible()) {
        windowSystem.bringToActiveWorkspace(window.winId());
    }
    if (window.isVisible()) {
        windowSystem.activate(window.winId());
    }
    // Qt considers a minimised window visible, so showing it does nothing.
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace tonquil
