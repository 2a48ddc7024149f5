// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "app/preferences/PreferencesStore.h"
#include "hotkeys/DDHotKey.h"

namespace tonquil {

/// The program's hot keys.
enum class HotKeyRole : std::uint8_t { ToggleCorrection, ShowPanel };

/// The preferences keys of a hot key.
struct HotKeySettings {
    std::string_view isUsed;
    std::string_view code;
    std::string_view modifiers;
};
[[nodiscard]] HotKeySettings hotKeySettings(HotKeyRole role);
/// The name of a hot key's action. Desktops that give out keys remember them by it.
[[nodiscard]] std::string hotKeyAction(HotKeyRole role);

/// The stored hot key of a role, without a task; null for none. It stays stored while switched off.
[[nodiscard]] std::shared_ptr<DDHotKey> storedHotKey(const PreferencesStore& preferences,
                                                     HotKeyRole role);
/// Stores a hot key for a role; null removes it.
void storeHotKey(PreferencesStore& preferences, HotKeyRole role, const DDHotKey* hotKey);

}  // namespace tonquil
