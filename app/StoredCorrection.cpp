// SPDX-License-Identifier: MIT
#include "app/StoredCorrection.h"

#include "app/desktop/ConflictCheck.h"
#include "app/preferences/SettingsKeys.h"

namespace tonquil {

void applyStoredCurves(ScreenRegistry& registry, DisplayService& service,
                       PreferencesStore& preferences, CurveRecovery& recovery,
                       const InstalledPrograms& programs) {
    preferences.registerDefaults(registeredDefaults());
    if (!preferences.boolForKey(settingsKey::rememberSettings) ||
        ConflictCheck::rivalToWarnOf(preferences, programs)) {
        return;
    }
    service.setNightLightKept(preferences.boolForKey(settingsKey::keepNightLight));
    PropertyValue curves = preferences.dictionaryForKey(settingsKey::screens);
    curves.update(recovery.leftCurves());
    const DisplayBatch batch(service);
    for (const auto& screen : registry.screens()) {
        screen->retriveExtendedGammaCurve();
        screen->adoptGammaCurveDictionary(curves, nullptr);
        screen->applyGammaCurve();
    }
}

}  // namespace tonquil
