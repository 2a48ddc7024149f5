// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>

#include "app/desktop/Alerts.h"
#include "app/desktop/LoginItem.h"
#include "app/panel/WindowSystem.h"
#include "app/preferences/PreferencesStore.h"
#include "foundation/Log.h"
#include "hotkeys/KeyboardLayout.h"

namespace tonquil {

/// What the preferences controller works with. Everything must outlive it.
struct PreferencesSurroundings {
    PreferencesStore& preferences;
    LoginItem& loginItem;
    Alerts& alerts;
    const KeyboardLayout& layout;
    WindowSystem& windowSystem;
    /// The absolute path of the running program, and the user's home folder.
    std::filesystem::path program;
    std::filesystem::path home;
    Log log;
    /// A toolkit below 1138 has no status items, one below 1343 no dark theme.
    int toolkitVersion = 1343;
    /// Whether a correction can be lost unnoticed, so that applying it again makes sense.
    bool canBeDisturbed = true;
    /// Whether corrections take the desktop's night light away.
    bool suspendsNightLight = false;
    /// Lets the user choose the keys of the hot keys, where the desktop gives them.
    std::function<void()> changeHotKeys = [] {};
};

}  // namespace tonquil
