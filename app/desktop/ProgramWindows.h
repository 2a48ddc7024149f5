// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "app/preferences/StoredHotKey.h"

namespace tonquil {

/// The windows of the program beside its panel and its targets.
class ProgramWindows {
 public:
    virtual ~ProgramWindows() = default;

    /// Levels of 0 to 1.
    virtual void setAboutBackground(double red, double green, double blue) = 0;
    /// Shows the preferences window in front of all others; the first call makes it.
    virtual void openPreferences() = 0;
    [[nodiscard]] virtual bool isPreferencesWindowLoaded() const = 0;
    [[nodiscard]] virtual bool isPreferencesWindowShown() const = 0;
    virtual void openAboutBox() = 0;
    /// Opens the address that the translatable text `key` stands for in the person's browser.
    virtual void openAddress(std::string_view key) = 0;
    /// Says at the hot key's field why it does not work; an empty sentence says nothing any more.
    virtual void showHotKeyProblem(HotKeyRole role, const std::string& sentence) = 0;
    /// Says below the box for companions why they cannot reach this computer; an empty sentence
    /// says nothing any more. The sentence is a text of the table "Problem".
    virtual void showRemoteProblem(const std::string& sentence) = 0;
    /// Remembers where the windows are for the next run.
    virtual void saveFrames() = 0;
};

}  // namespace tonquil
