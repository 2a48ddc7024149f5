// SPDX-License-Identifier: MIT
#include "app/desktop/RestorableWindows.h"

#include <string>

namespace tonquil {

namespace {

constexpr std::string_view targetWindow = "Target";
constexpr std::string_view preferencesWindow = "Preferences";
constexpr std::string_view kindKey = "kind";

}  // namespace

void RestorableWindows::openTargetWindow(std::optional<TargetKind> kind) {
    // Decided when the window is created: only if the preferences window existed by then.
    if (!_isTargetWindowRestorable) {
        _isTargetWindowRestorable = _windows.isPreferencesWindowLoaded();
    }
    if (kind) {
        _targets.openTargetWindow(*kind);
    } else {
        _targets.openTargetWindow();
    }
}

PropertyValue RestorableWindows::restorableWindows() const {
    PropertyValue windows = PropertyValue::object();
    if (_windows.isPreferencesWindowShown()) {
        windows[std::string(preferencesWindow)] = PropertyValue::object();
    }
    const auto target = _targets.floatingTarget();
    if (target && _isTargetWindowRestorable.value_or(false)) {
        windows[std::string(targetWindow)] = {
            {std::string(kindKey), static_cast<std::int32_t>(*target)}};
    }
    return windows;
}

bool RestorableWindows::restoreWindowWithIdentifier(std::string_view identifier,
                                                    const PropertyValue& state) {
    if (identifier == preferencesWindow) {
        _windows.openPreferences();
    } else if (identifier == targetWindow) {
        const PropertyValue* kind = entry(state, kindKey);
        const bool isGrayscale = kind != nullptr && integerValue(*kind) == 1;
        openTargetWindow(isGrayscale ? TargetKind::Grayscale : TargetKind::Color);
    } else {
        return false;
    }
    return true;
}

}  // namespace tonquil
