// SPDX-License-Identifier: MIT
#include "app/panel/ControllerHotKeys.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tonquil {

void ControllerHotKeys::want(std::vector<Wanted>& wanted, HotKeyRole role) const {
    if (!_preferences.boolForKey(hotKeySettings(role).isUsed)) {
        return;
    }
    const auto hotKey = storedHotKey(_preferences, role);
    const bool isFree = hotKey && std::ranges::none_of(wanted, [&](const Wanted& each) {
                            return each.keyCode == hotKey->keyCode() &&
                                   each.modifierFlags == hotKey->modifierFlags();
                        });
    if (_center.areKeysChosenByDesktop() && !isFree) {
        // No keyboard has such keys: nothing is proposed to the desktop.
        constexpr std::uint16_t beyondAllKeys = 0xFFF0;
        wanted.push_back(
            {role, static_cast<std::uint16_t>(beyondAllKeys + static_cast<std::uint16_t>(role)),
             0});
    } else if (hotKey) {
        wanted.push_back({role, hotKey->keyCode(), hotKey->modifierFlags()});
    }
}

void ControllerHotKeys::updateHotKey() {
    std::vector<Wanted> wanted;
    if (!_isSuspended) {
        want(wanted, HotKeyRole::ToggleCorrection);
        want(wanted, HotKeyRole::ShowPanel);
    }
    if (wanted == _registered) {
        return;
    }
    _center.unregisterAllHotKeys();
    if (!_isSuspended) {
        _actions.showProblem(HotKeyRole::ToggleCorrection, {});
        _actions.showProblem(HotKeyRole::ShowPanel, {});
    }
    bool areAllRegistered = true;
    for (const Wanted& each : wanted) {
        areAllRegistered = registerHotKey(each) && areAllRegistered;
    }
    _registered.reset();
    if (areAllRegistered) {
        _registered = std::move(wanted);
    }
}

bool ControllerHotKeys::registerHotKey(const Wanted& wanted) {
    const bool isRegistered = _center.registerHotKeyWithKeyCode(
        wanted.keyCode, wanted.modifierFlags, receiverFor(wanted.role));
    if (!isRegistered) {
        const auto& refusal = _center.lastRefusal();
        _actions.showProblem(wanted.role, refusal ? refusal->sentence : std::string());
    }
    return isRegistered;
}

HotKeyReceiver ControllerHotKeys::receiverFor(HotKeyRole role) const {
    if (role == HotKeyRole::ToggleCorrection) {
        return {.target = this,
                .action = {.name = hotKeyAction(role),
                           .call = [toggle = _actions.toggleApplyCorrection](
                                       const HotKeyEvent&, const std::any&) { toggle(); }}};
    }
    const auto action = [](std::string name,
                           const std::function<void(std::chrono::milliseconds)>& call) {
        return HotKeyAction{
            .name = std::move(name),
            .call = [call](const HotKeyEvent& event, const std::any&) { call(event.timestamp); }};
    };
    return {.target = this,
            .action = action(hotKeyAction(role), _actions.showPanelAndCenterMouseRelease),
            .pressedAction = action("showPanelAndCenterMouse", _actions.showPanelAndCenterMouse)};
}

void ControllerHotKeys::setSuspended(bool isSuspended) {
    _isSuspended = isSuspended;
    updateHotKey();
}

}  // namespace tonquil
