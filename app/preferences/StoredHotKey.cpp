// SPDX-License-Identifier: MIT
#include "app/preferences/StoredHotKey.h"

#include "app/preferences/SettingsKeys.h"

namespace tonquil {

HotKeySettings hotKeySettings(HotKeyRole role) {
    if (role == HotKeyRole::ToggleCorrection) {
        return {settingsKey::useHotKey, settingsKey::useHotKeyCode,
                settingsKey::useHotKeyModifiers};
    }
    return {settingsKey::panelHotKey, settingsKey::panelHotKeyCode,
            settingsKey::panelHotKeyModifiers};
}

std::string hotKeyAction(HotKeyRole role) {
    return role == HotKeyRole::ToggleCorrection ? "toggleApplyCorrection"
                                                : "showPanelAndCenterMouseRelease";
}

std::shared_ptr<DDHotKey> storedHotKey(const PreferencesStore& preferences, HotKeyRole role) {
    const HotKeySettings keys = hotKeySettings(role);
    const auto code = static_cast<std::uint16_t>(preferences.integerForKey(keys.code));
    const auto modifiers = static_cast<ModifierFlags>(preferences.integerForKey(keys.modifiers));
    return code == 0 && modifiers == 0 ? nullptr
                                       : DDHotKey::hotKeyWithKeyCode(code, modifiers, nullptr);
}

void storeHotKey(PreferencesStore& preferences, HotKeyRole role, const DDHotKey* hotKey) {
    const HotKeySettings keys = hotKeySettings(role);
    preferences.setValue(keys.code, hotKey == nullptr ? 0 : hotKey->keyCode());
    preferences.setValue(
        keys.modifiers, hotKey == nullptr ? 0 : static_cast<std::int64_t>(hotKey->modifierFlags()));
}

}  // namespace tonquil
