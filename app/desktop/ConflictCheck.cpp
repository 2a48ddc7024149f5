// SPDX-License-Identifier: MIT
#include "app/desktop/ConflictCheck.h"

#include <array>
#include <cstddef>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

ConflictCheck::ConflictCheck(PreferencesStore& preferences, const InstalledPrograms& programs,
                             Alerts& alerts, std::function<void()> terminate)
    : _preferences(preferences),
      _programs(programs),
      _alerts(alerts),
      _terminate(std::move(terminate)) {}

// Night light features built into desktops are settings, not programs: what is installed does not
// say whether they are in use.
std::span<const std::string_view> ConflictCheck::rivals() {
    static constexpr std::array<std::string_view, 5> ids = {
        "fluxgui.desktop", "redshift-gtk.desktop", "redshift.desktop",
        "gammastep-indicator.desktop", "gammastep.desktop"};
    return ids;
}

std::optional<InstalledProgram> ConflictCheck::rivalToWarnOf(const PreferencesStore& preferences,
                                                             const InstalledPrograms& programs) {
    if (preferences.boolForKey(settingsKey::conflictWarned)) {
        return std::nullopt;
    }
    return programs.firstInstalled(rivals());
}

ConflictCheck::Outcome ConflictCheck::run(const std::string& ownName) {
    const auto rival = rivalToWarnOf(_preferences, _programs);
    if (!rival) {
        return Outcome::NotShown;
    }
    constexpr std::size_t quitButton = 1;
    const std::size_t button = _alerts.runModal(
        {.style = Alert::Style::Critical,
         .icon = rival->icon,
         .table = "KVFluxCheck",
         .message = TONQUIL_TEXT("KVFluxCheck", "%@ is present on this computer."),
         .messageArguments = {rival->name},
         .informativeText = TONQUIL_TEXT("KVFluxCheck", "[%1$@ installed, might interfer %2$@.]"),
         .informativeArguments = {ownName, rival->name},
         .buttons = {TONQUIL_TEXT("KVFluxCheck", "Continue"),
                     TONQUIL_TEXT("KVFluxCheck", "Quit")}});
    if (button == quitButton) {
        _terminate();
        return Outcome::Ended;
    }
    _preferences.setValue(settingsKey::conflictWarned, true);
    (void)_preferences.synchronize();
    return Outcome::Continued;
}

}  // namespace tonquil
