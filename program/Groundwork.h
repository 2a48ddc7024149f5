// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "foundation/RunLoop.h"
#include "platform/folders/XdgFolders.h"
#include "platform/posix/DiskThread.h"
#include "platform/xdg/CurveRecoveryFile.h"
#include "platform/xdg/DesktopEntries.h"
#include "platform/xdg/PropertyListPreferences.h"
#include "program/SaveProblems.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// What the correction needs, and nothing that a bus or a window could delay: the preferences, the
/// curves left by a crash, and the displays. Created before the toolkit's application.
class Groundwork {
 public:
    /// The run loop must outlive it.
    Groundwork(XdgFolders folders, RunLoop& runLoop);

    /// Puts the stored curves on the displays.
    void applyStoredCurves();

    [[nodiscard]] const XdgFolders& folders() const { return _folders; }
    [[nodiscard]] RunLoop& runLoop() { return _runLoop; }
    [[nodiscard]] PropertyListPreferences& preferences() { return _preferences; }
    [[nodiscard]] CurveRecoveryFile& recovery() { return _recovery; }
    [[nodiscard]] SaveProblems& saveProblems() { return _saveProblems; }
    [[nodiscard]] DesktopEntries& installedPrograms() { return _installedPrograms; }
    [[nodiscard]] DisplayService& displays() { return *_displays; }
    [[nodiscard]] ScreenRegistry& registry() { return *_registry; }
    /// Called when the connection to the displays is lost for good.
    void setWhenDisplaysLost(std::function<void()> lost) { _displaysLost = std::move(lost); }
    /// Why there will never be any displays; empty if there may be.
    [[nodiscard]] const std::string& whyNoDisplays() const { return _whyNoDisplays; }

 private:
    XdgFolders _folders;
    RunLoop& _runLoop;
    DiskThread _disk;
    SaveProblems _saveProblems;
    PropertyListPreferences _preferences;
    CurveRecoveryFile _recovery;
    DesktopEntries _installedPrograms{DesktopEntries::fromEnvironment()};
    std::function<void()> _displaysLost;
    std::unique_ptr<DisplayService> _displays;
    std::string _whyNoDisplays;
    std::unique_ptr<ScreenRegistry> _registry;
};

}  // namespace tonquil
