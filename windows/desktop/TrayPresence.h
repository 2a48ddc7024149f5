// SPDX-License-Identifier: MIT
#pragma once

#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>
#include <vector>

#include "app/desktop/DesktopPresence.h"
#include "app/panel/PanelActions.h"
#include "app/panel/WindowSystem.h"
#include "foundation/Log.h"
#include "windows/desktop/StatusIcons.h"
#include "windows/desktop/StatusMenu.h"

namespace tonquil {

/// The status icon in the desktop's tray, and the task-bar entries of the program's windows.
class TrayPresence final : public QObject, public DesktopPresence {
 public:
    /// The window system must outlive this.
    TrayPresence(WindowSystem& windowSystem, Log log);

    /// Connects the status icon and its menu: a click shows and hides the panel, one with the
    /// middle button switches the correction.
    void setActions(PanelActions& actions, std::function<void()> showPanel);
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _menu.showWebSites(hasSite, hasBoardSite);
    }
    /// Manages a window's task-bar entry, every time the window is shown.
    void watch(QWidget& window);

    void showStatusItem(bool isShown) override;
    void setStatusItemActive(bool isActive) override;
    void setInTaskBar(bool isInTaskBar) override;
    void showRemoteConfiguration(bool isOn) override { _menu.showRemoteConfiguration(isOn); }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void look();
    void updateTaskBar();
    void updateTaskBar(QWidget& window);

    WindowSystem& _windowSystem;
    Log _log;
    StatusMenu _menu;
    QIcon _restingIcon = statusIcon(false);
    QIcon _activeIcon = statusIcon(true);
    QSystemTrayIcon _item;
    std::vector<QWidget*> _windows;
    /// Polls for a tray while there is none.
    QTimer _lookTimer;
    bool _wantsTaskBar = false;
    bool _lacksTray = false;
};

}  // namespace tonquil
