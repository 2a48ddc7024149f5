// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Where the desktop shows that the program runs: an item in the tray, or its windows' entries in
/// the task bar.
class DesktopPresence {
 public:
    virtual ~DesktopPresence() = default;

    /// Puts the status item, with its menu, into the tray, or takes it out. On a desktop without a
    /// tray the item waits for one, and the windows have their entries meanwhile.
    virtual void showStatusItem(bool isShown) = 0;
    /// The item's picture and its menu say whether the correction is on.
    virtual void setStatusItemActive(bool isActive) = 0;
    /// Lets the program's windows have entries in the task bar, or none.
    virtual void setInTaskBar(bool isInTaskBar) = 0;
    /// The menu says that companions on the network may change the displays.
    virtual void showRemoteConfiguration(bool isOn) = 0;
};

}  // namespace tonquil
