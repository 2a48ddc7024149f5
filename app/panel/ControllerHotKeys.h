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

/// Keeps the hot keys that the preferences want registered.
class ControllerHotKeys {
 public:
    /// What the hot keys do. All must be callable.
    struct Actions {
        std::function<void()> toggleApplyCorrection;
        /// Called with the time stamp of the key's event.
        std::function<void(std::chrono::milliseconds time)> showPanelAndCenterMouse;
        std::function<void(std::chrono::milliseconds time)> showPanelAndCenterMouseRelease;
        /// Says why the hot key of a role does not work; an empty sentence means that it works.
        std::function<void(HotKeyRole, const std::string& sentence)> showProblem;
    };

    ControllerHotKeys(DDHotKeyCenter& center, const PreferencesStore& preferences, Actions actions)
        : _center(center), _preferences(preferences), _actions(std::move(actions)) {}

    /// Registers the two anew, unless nothing about them has changed since they were registered:
    /// one that is held must not miss its release.
    void updateHotKey();
    /// Gives all up while a combination is being recorded, and takes them back.
    void setSuspended(bool isSuspended);

 private:
    /// One role, as the preferences have it.
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
    /// Registered, all of them; nothing before the first time and after a refusal.
    std::optional<std::vector<Wanted>> _registered;
};

}  // namespace tonquil
