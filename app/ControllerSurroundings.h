// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/correction/ReconfigurationObserver.h"
#include "app/correction/SessionEvents.h"
#include "app/curves/CurveRecovery.h"
#include "app/desktop/Alerts.h"
#include "app/desktop/DesktopPresence.h"
#include "app/desktop/InstalledPrograms.h"
#include "app/desktop/ProgramWindows.h"
#include "app/desktop/TargetWindows.h"
#include "app/files/FileDialogs.h"
#include "app/panel/PanelControls.h"
#include "app/panel/PanelWindow.h"
#include "app/panel/WindowSystem.h"
#include "app/preferences/PreferencesStore.h"
#include "app/remote/RemoteConfiguration.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "hotkeys/DDHotKeyCenter.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// What the controller works with. All of it must outlive the controller.
struct ControllerSurroundings {
    DisplayService& service;
    ScreenRegistry& registry;
    ReconfigurationCounter& reconfigurations;
    PreferencesStore& preferences;
    CurveRecovery& recovery;
    RunLoop& runLoop;
    PanelControls& controls;
    PanelWindow& panel;
    FileDialogs& dialogs;
    TargetWindows& targets;
    ProgramWindows& windows;
    Alerts& alerts;
    DesktopPresence& presence;
    WindowSystem& windowSystem;
    const InstalledPrograms& programs;
    DDHotKeyCenter& hotKeys;
    RemoteConfiguration::ServerOpener openServer;
    /// Where session events come from; may be empty.
    std::vector<SessionEvents*> sessionEvents;
    /// Why there are no displays, where there never will be any; else empty.
    std::string whyNoDisplays;
    /// Ends the program's run loop, after which `applicationWillTerminate` is due.
    std::function<void()> endProgram;
    Log log;
};

}  // namespace tonquil
