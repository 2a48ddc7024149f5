// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
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

/// The controller's dependencies. All must outlive the controller.
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
    /// Sources of session events; may be empty.
    std::vector<SessionEvents*> sessionEvents;
    std::filesystem::path presetFolder;
    /// Why there will never be any displays; empty if there may be.
    std::string whyNoDisplays;
    /// Quits the event loop; call `applicationWillTerminate` after that.
    std::function<void()> endProgram;
    Log log;
};

}  // namespace tonquil
