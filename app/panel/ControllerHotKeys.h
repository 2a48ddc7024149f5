// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/preferences/PreferencesStore.h"
#include "app/preferences/StoredHotKey.h"
#include "hotkeys/DDHotKeyCenter.h"

namespace tonquil {

/// Keeps the hot keys from the preferences registered.
class ControllerHotKeys {
 public:
    /// Callbacks of the hot keys. All must be set.
    struct Actions {
        std::function<void()> toggleApplyCorrection;
        /// Called with the timestamp of the key event.
        std::function<void(std::chrono::milliseconds time)> showPanelAndCenterMouse;
        std::function<void(std::chrono::milliseconds time)> showPanelAndCenterMouseRelease;
        /// Reports why the hot key of a role does not work; an empty sentence means that it works.
        std::function<void(HotKeyRole, const std::string& sentence)> showProblem;
    };

    ControllerHotKeys(DDHotKeyCenter& center, const PreferencesStore& preferences, Actions actions)
        : _center(center), _preferences(preferences), _actions(std::move(actions)) {}

    /// Re-registers both hot keys, unless nothing about them changed: a key that is held must not
    /// miss its release.
    void updateHotKey();
    /// Unregisters all while a combination is being recorded, then registers them again.
    void setSuspended(bool isSuspended);

 private:
    /// The hot key of one role, as in the preferences.
    struct Wanted {
        HotKeyRole role;
        std::uint16_t keyCode;
        ModifierFlags modifierFlags;

        bool operator==(const Wanted&) const = default;
    };

    void want(std::vector<Wanted>& wanted, HotKeyRole role) const;
    [[nodiscard]] bool registerHotKey(const Wanted& wanted);
    [[nodiscard]] HotKeyReceiver receiverFor(HotKeyRole role) const;

    DDHotKeyCenter& _center;
    const PreferencesStore& _preferences;
    Actions _actions;
    bool _isSuspended = false;
    /// The hot keys when all are registered; nothing before the first time and after a refusal.
    std::optional<std::vector<Wanted>> _registered;
};

}  // namespace tonquil
