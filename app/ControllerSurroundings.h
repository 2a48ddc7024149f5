// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/Alerts.h"
#include "app/CurveRecovery.h"
#include "app/DesktopPresence.h"
#include "app/FileDialogs.h"
#include "app/InstalledPrograms.h"
#include "app/PanelControls.h"
#include "app/PanelWindow.h"
#include "app/PreferencesStore.h"
#include "app/ProgramWindows.h"
#include "app/ReconfigurationObserver.h"
#include "app/SessionEvents.h"
#include "app/TargetWindows.h"
#include "app/WindowSystem.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "hotkeys/DDHotKeyCenter.h"
#include "remote/TQPlayerServer.h"
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
    /// Opens a server for companions; null, after a line in the log, where there can be none.
    std::function<std::unique_ptr<TQPlayerServer>()> openServer;
    /// Where session events come from; may be empty.
    std::vector<SessionEvents*> sessionEvents;
    /// Why there are no displays, where there never will be any; else empty.
    std::string whyNoDisplays;
    /// Ends the program's run loop, after which `applicationWillTerminate` is due.
    std::function<void()> endProgram;
    Log log;
};

}  // namespace tonquil
