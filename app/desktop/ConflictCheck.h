// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/desktop/Alerts.h"
#include "app/desktop/InstalledPrograms.h"
#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// Warns once, at startup, of an installed program that also sets gamma ramps.
class ConflictCheck {
 public:
    enum class Outcome : int {
        Continued = 0,  ///< Warned now, never again.
        NotShown = 1,
        Ended = 2,  ///< Warned, and `terminate` was called; the next start warns again.
    };

    /// All references must outlive the check. `terminate` may return, but the program must then
    /// quit without doing anything else.
    ConflictCheck(PreferencesStore& preferences, const InstalledPrograms& programs, Alerts& alerts,
                  std::function<void()> terminate);

    /// The desktop file IDs of known rival programs, most likely first.
    [[nodiscard]] static std::span<const std::string_view> rivals();

    /// The program that startup would warn of.
    [[nodiscard]] static std::optional<InstalledProgram> rivalToWarnOf(
        const PreferencesStore& preferences, const InstalledPrograms& programs);

    /// `ownName` is the display name of this program.
    Outcome run(const std::string& ownName);

 private:
    PreferencesStore& _preferences;
    const InstalledPrograms& _programs;
    Alerts& _alerts;
    std::function<void()> _terminate;
};

}  // namespace tonquil
