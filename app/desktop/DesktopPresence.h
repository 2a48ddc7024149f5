// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// How the desktop shows that the program runs: a tray icon, or task-bar entries for its windows.
class DesktopPresence {
 public:
    virtual ~DesktopPresence() = default;

    /// Adds the status item with its menu to the tray, or removes it. Without a tray it waits for
    /// one to appear, and until then the windows have task-bar entries.
    virtual void showStatusItem(bool isShown) = 0;
    /// Shows in the icon and menu whether the correction is on.
    virtual void setStatusItemActive(bool isActive) = 0;
    /// Shows or hides the windows' task-bar entries.
    virtual void setInTaskBar(bool isInTaskBar) = 0;
    /// Shows in the menu that companions on the network may change the displays.
    virtual void showRemoteConfiguration(bool isOn) = 0;
};

}  // namespace tonquil
