// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Requests.h"
#include "app/TQController.h"
#include "platform/dbus/BusSessionEvents.h"
#include "platform/dbus/DesktopAppearance.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/x11/desktop/X11DesktopEvents.h"
#include "platform/xdg/AutostartLoginItem.h"
#include "platform/xdg/CurveRecoveryFile.h"
#include "platform/xdg/DesktopEntries.h"
#include "platform/xdg/PropertyListFile.h"
#include "platform/xdg/PropertyListPreferences.h"
#include "platform/xdg/XdgFolders.h"
#include "windows/alerts/ModalAlerts.h"
#include "windows/desktop/OtherWindows.h"
#include "windows/desktop/SessionRestoration.h"
#include "windows/desktop/TrayPresence.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/PanelFileDialogs.h"
#include "windows/targets/TargetPresenter.h"

namespace tonquil {

/// Everything that the program is made of, each part before those that need it. Together with
/// main.cpp the only place that knows which platform is used.
class Program {
 public:
    explicit Program(const XdgFolders& folders);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    /// Starts it, carries out the requests and runs to its end; gives the exit status.
    int run(const std::vector<Request>& requests);
    /// Carries out what another start of the program asks for; gives a sentence where it cannot.
    [[nodiscard]] std::string answer(const std::string& text);

 private:
    void openDisplays();
    void displaysLost();
    void openWindowSystem();
    void openKeyboard();
    void makeWindows();
    void makeController();
    void end();
    [[nodiscard]] std::unique_ptr<TQPlayerServer> openServer();
    [[nodiscard]] SessionRestoration::Storage sessionStorage();

    QtRunLoop _runLoop;
    PropertyListPreferences _preferences;
    CurveRecoveryFile _recovery;
    BusSessionEvents _busEvents;
    DesktopAppearance _desktopAppearance;
    AutostartLoginItem _loginItem;
    PropertyListFile _sessionWindows;
    DesktopEntries _installedPrograms{DesktopEntries::fromEnvironment()};
    MachineGuid _guid;
    ModalAlerts _alerts{[this] { return _panel ? effectiveAppearance(*_panel) : Appearance{}; }};
    std::unique_ptr<DisplayService> _displays;
    std::string _whyNoDisplays;
    std::unique_ptr<WindowSystem> _windowSystem;
    std::unique_ptr<HotKeyService> _hotKeyService;
    std::unique_ptr<KeyboardLayout> _keyboardLayout;
    std::unique_ptr<X11DesktopEvents> _desktopEvents;
    std::unique_ptr<ScreenRegistry> _registry;
    ReconfigurationCounter _reconfigurations;
    std::unique_ptr<ControlPanel> _panel;
    std::unique_ptr<PanelFileDialogs> _dialogs;
    std::unique_ptr<TrayPresence> _presence;
    std::unique_ptr<TargetPresenter> _targets;
    std::unique_ptr<OtherWindows> _windows;
    std::unique_ptr<DDHotKeyCenter> _hotKeys;
    std::unique_ptr<TQController> _controller;
    bool _isLaunched = false;
    /// The end was asked for before that.
    bool _isToEnd = false;
    /// What was asked before that, in order.
    std::vector<Request> _requestsBeforeLaunch;
};

}  // namespace tonquil
