// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "app/preferences/StoredHotKey.h"

namespace tonquil {

/// The program's windows other than the panel and the targets.
class ProgramWindows {
 public:
    virtual ~ProgramWindows() = default;

    /// Levels from 0 to 1.
    virtual void setAboutBackground(double red, double green, double blue) = 0;
    /// Shows the preferences window in front of all others; created on the first call.
    virtual void openPreferences() = 0;
    [[nodiscard]] virtual bool isPreferencesWindowLoaded() const = 0;
    [[nodiscard]] virtual bool isPreferencesWindowShown() const = 0;
    virtual void openAboutBox() = 0;
    /// Opens the URL given by the translatable text `key` in the user's browser.
    virtual void openAddress(std::string_view key) = 0;
    /// Shows next to the hot key's field why it does not work; an empty sentence clears the
    /// message.
    virtual void showHotKeyProblem(HotKeyRole role, const std::string& sentence) = 0;
    /// Shows below the companions checkbox why they cannot reach this computer; an empty sentence
    /// clears the message. The sentence is a text of the table "Problem".
    virtual void showRemoteProblem(const std::string& sentence) = 0;
    /// Saves the window positions for the next run.
    virtual void saveFrames() = 0;
};

}  // namespace tonquil
