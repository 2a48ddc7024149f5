// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Requests.h"
#include "app/TQController.h"
#include "platform/dbus/BusSessionEvents.h"
#include "platform/dbus/DesktopAppearance.h"
#include "platform/portal/PortalHotKeyService.h"
#include "platform/qt/ScreenEventLimit.h"
#include "platform/x11/desktop/X11DesktopEvents.h"
#include "platform/xdg/AutostartLoginItem.h"
#include "platform/xdg/PropertyListFile.h"
#include "program/Groundwork.h"
#include "windows/alerts/ModalAlerts.h"
#include "windows/desktop/OtherWindows.h"
#include "windows/desktop/SessionRestoration.h"
#include "windows/desktop/TrayPresence.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/PanelFileDialogs.h"
#include "windows/targets/TargetPresenter.h"

namespace tonquil {

/// All parts of the program besides its groundwork, each declared before those that need it.
class Program {
 public:
    /// The groundwork must outlive it.
    Program(Groundwork& groundwork, BusSessionEvents::Addresses buses);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    /// Starts the program, carries out the requests, runs the event loop; returns the exit status.
    int run(const std::vector<Request>& requests);
    /// Carries out the requests that another start of the program sent as text; returns what could
    /// not be done, a sentence, or nothing.
    [[nodiscard]] std::string answer(const std::string& text);

 private:
    void displaysLost();
    void openWindowSystem();
    void openKeyboard();
    [[nodiscard]] std::unique_ptr<HotKeyService> makePortalHotKeys();
    void showHotKeyAssignment();
    void makeWindows();
    void makeController();
    void end();
    [[nodiscard]] Result<std::unique_ptr<TQPlayerServer>> openServer(Log log);
    [[nodiscard]] SessionRestoration::Storage sessionStorage();

    RunLoop& _runLoop;
    ScreenEventLimit _screenEventLimit;
    PropertyListPreferences& _preferences;
    CurveRecoveryFile& _recovery;
    SaveProblems& _saveProblems;
    DisplayService& _displays;
    ScreenRegistry& _registry;
    DesktopEntries& _installedPrograms;
    std::filesystem::path _presetFolder;
    std::string _whyNoDisplays;
    std::string _sessionBus;
    BusSessionEvents _busEvents;
    DesktopAppearance _desktopAppearance;
    AutostartLoginItem _loginItem;
    PropertyListFile _sessionWindows;
    MachineGuid _guid;
    ModalAlerts _alerts{[this] { return _panel ? effectiveAppearance(*_panel) : Appearance{}; }};
    std::unique_ptr<WindowSystem> _windowSystem;
    std::unique_ptr<HotKeyService> _hotKeyService;
    /// The same, where the desktop gives the keys; else null.
    PortalHotKeyService* _portalHotKeys = nullptr;
    std::unique_ptr<KeyboardLayout> _keyboardLayout;
    std::unique_ptr<X11DesktopEvents> _desktopEvents;
    ReconfigurationCounter _reconfigurations;
    std::unique_ptr<ControlPanel> _panel;
    std::unique_ptr<PanelFileDialogs> _dialogs;
    std::unique_ptr<TrayPresence> _presence;
    std::unique_ptr<TargetPresenter> _targets;
    std::unique_ptr<OtherWindows> _windows;
    std::unique_ptr<DDHotKeyCenter> _hotKeys;
    std::unique_ptr<TQController> _controller;
    bool _isLaunched = false;
    /// The program was told to quit before that.
    bool _isToEnd = false;
    /// Requests that arrived before that, in order.
    std::vector<Request> _requestsBeforeLaunch;
};

}  // namespace tonquil
