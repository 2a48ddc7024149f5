// SPDX-License-Identifier: MIT
#include "app/correction/PeriodicUpdate.h"

#include <cmath>

#include "app/preferences/SettingsKeys.h"

namespace tonquil {

namespace {

/// Clamps to 0.1 s, below which the program would do nothing else, up to one day. An invalid
/// interval becomes the default.
std::chrono::milliseconds intervalFrom(float seconds) {
    constexpr float shortest = 0.1F;
    constexpr float longest = 86'400;
    constexpr float usual = 3;
    constexpr float millisecondsPerSecond = 1000;
    const float wanted = seconds > 0 ? seconds : usual;
    const float held = std::fmin(std::fmax(wanted, shortest), longest);
    return std::chrono::milliseconds(std::lround(held * millisecondsPerSecond));
}

}  // namespace

void PeriodicUpdate::_startPeriodicUpdate() {
    if (isRunning() || !_service.canBeDisturbed() ||
        !_preferences.boolForKey(settingsKey::continuouslyApply)) {
        return;
    }
    _periodicTimer = _runLoop.callRepeatedly(
        intervalFrom(_preferences.floatForKey(settingsKey::continuouslyApplyInterval)), _update);
}

}  // namespace tonquil
