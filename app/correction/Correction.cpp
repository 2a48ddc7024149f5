// SPDX-License-Identifier: MIT
#include "app/correction/Correction.h"

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
    activateScreens();
    if (!isOn) {
        restoreAllGammaCurves();
    }
    if (show) {
        show(isOn);
    }
}

void Correction::activateScreens() {
    const DisplayBatch batch(_service);
    for (const auto& screen : _registry.screens()) {
        screen->setAutoApplyGamma(_isActive);
    }
}

void Correction::_applyCurvesToScreen() {
    if (!applyCorrection()) {
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
