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

/// Warns once, at a start, of an installed program that fights for the same tables.
class ConflictCheck {
 public:
    enum class Outcome : int {
        Continued = 0,  ///< Warned now, and never again.
        NotShown = 1,
        Ended = 2,  ///< Warned, and `terminate` was called; the next start warns again.
    };

    /// Everything must outlive the check. `terminate` may return, as long as the program ends
    /// without doing anything more.
    ConflictCheck(PreferencesStore& preferences, const InstalledPrograms& programs, Alerts& alerts,
                  std::function<void()> terminate);

    /// The desktop file IDs of the programs that are looked for, the likeliest first.
    [[nodiscard]] static std::span<const std::string_view> rivals();

    /// The program that a start would warn of.
    [[nodiscard]] static std::optional<InstalledProgram> rivalToWarnOf(
        const PreferencesStore& preferences, const InstalledPrograms& programs);

    /// `ownName` is the name that this program shows.
    Outcome run(const std::string& ownName);

 private:
    PreferencesStore& _preferences;
    const InstalledPrograms& _programs;
    Alerts& _alerts;
    std::function<void()> _terminate;
};

}  // namespace tonquil
