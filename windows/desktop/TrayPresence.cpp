// SPDX-License-Identifier: MIT
#include "windows/desktop/TrayPresence.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace tonquil {

namespace {

constexpr int lookMilliseconds = 5000;

}  // namespace

TrayPresence::TrayPresence(WindowSystem& windowSystem, Log log)
    : _windowSystem(windowSystem), _log(std::move(log)) {
    _item.setContextMenu(&_menu);
    setStatusItemActive(false);
    _lookTimer.setInterval(lookMilliseconds);
    QObject::connect(&_lookTimer, &QTimer::timeout, this, [this] { look(); });
}

void TrayPresence::setActions(PanelActions& actions, std::function<void()> showPanel) {
    _menu.setActions(actions, std::move(showPanel));
    QObject::connect(&_item, &QSystemTrayIcon::activated, this,
                     [&actions](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger) {
                             actions.togglePanel();
                         } else if (reason == QSystemTrayIcon::MiddleClick) {
                             actions.toggleApplyCorrection();
                         }
                     });
}

void TrayPresence::showStatusItem(bool isShown) {
    _item.setVisible(isShown);
    look();
}

// Qt adds the icon to a tray that appears later, but notifies nobody.
void TrayPresence::look() {
    const bool lacksTray = _item.isVisible() && !QSystemTrayIcon::isSystemTrayAvailable();
    if (lacksTray && !_lacksTray) {
        _log(
            "This desktop has no tray for the status item; the windows are in the task bar "
            "meanwhile. Some trays that come later show the item only after a new start.");
    }
    _lacksTray = lacksTray;
    if (lacksTray) {
        _lookTimer.start();
    } else {
        _lookTimer.stop();
    }
    updateTaskBar();
}

void TrayPresence::setStatusItemActive(bool isActive) {
    _item.setIcon(isActive ? _activeIcon : _restingIcon);
    _item.setToolTip(isActive ? QCoreApplication::translate("Panel", "Tonquil: correction on")
                              : QCoreApplication::translate("Panel", "Tonquil: correction off"));
    _menu.showCorrection(isActive);
}

void TrayPresence::setInTaskBar(bool isInTaskBar) {
    _wantsTaskBar = isInTaskBar;
    updateTaskBar();
}

void TrayPresence::watch(QWidget& window) {
    _windows.push_back(&window);
    window.installEventFilter(this);
    QObject::connect(&window, &QObject::destroyed, this,
                     [this](QObject* gone) { std::erase(_windows, gone); });
}

void TrayPresence::updateTaskBar() {
    for (QWidget* window : _windows) {
        if (window->isVisible()) {
            updateTaskBar(*window);
        }
    }
}

void TrayPresence::updateTaskBar(QWidget& window) {
    _windowSystem.skipTaskbar(window.winId(), !_wantsTaskBar && !_lacksTray);
}

// The event arrives before the window is mapped, and so before it has a task-bar entry.
bool TrayPresence::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        updateTaskBar(*static_cast<QWidget*>(watched));
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tonquil
