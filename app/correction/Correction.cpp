// SPDX-License-Identifier: MIT
#include "app/correction/Correction.h"

#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "model/KVGammaCurve.h"

namespace tonquil {

bool Correction::applyCorrection() const {
    return _preferences.boolForKey(settingsKey::applyCorrection);
}

void Correction::setApplyCorrection(bool isOn) {
    switchTo(isOn);
    _preferences.setValue(settingsKey::applyCorrection, isOn);
}

void Correction::switchTo(bool isOn) {
    _isActive = isOn;
    update();
    if (show) {
        show(isOn);
    }
}

void Correction::setCompared(bool isCompared) {
    if (isCompared != std::exchange(_isCompared, isCompared) && _isActive) {
        update();
    }
}

void Correction::update() {
    if (isOnDisplays() && std::exchange(_wasSwitchedOff, false)) {
        // A ramp set by others in the meantime belongs to the system.
        readBases();
    }
    _wasSwitchedOff = !isOnDisplays();
    activateScreens();
    if (!isOnDisplays()) {
        restoreAllGammaCurves();
    }
}

void Correction::activateScreens() {
    const DisplayBatch batch(_service);
    for (const auto& screen : _registry.screens()) {
        screen->setAutoApplyGamma(isOnDisplays());
    }
}

bool Correction::readBases() {
    const DisplayBatch batch(_service);
    bool hasChanged = false;
    for (const auto& screen : _registry.screens()) {
        const BaseGamma before = screen->baseGamma();
        screen->readBaseGamma();
        hasChanged = hasChanged || !haveSameBits(before.table, screen->baseGamma().table);
    }
    return hasChanged;
}

void Correction::_applyCurvesToScreen() {
    if (!applyCorrection() || _isCompared) {
        return;
    }
    const DisplayBatch batch(_service);
    for (const auto& screen : _registry.screens()) {
        screen->applyGammaCurve();
    }
}

void Correction::restoreAllGammaCurves() {
    KVGammaCurve::restoreAllGammaCurves(_service);
}

}  // namespace tonquil
