// SPDX-License-Identifier: MIT
#include "app/curves/CurveStorage.h"

#include <algorithm>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "values/PropertyValue.h"

namespace tonquil {

CurveStorage::CurveStorage(ScreenRegistry& registry, PreferencesStore& preferences,
                           CurveRecovery& recovery, RunLoop& runLoop)
    : _registry(registry),
      _preferences(preferences),
      _recovery(recovery),
      _runLoop(runLoop),
      _left(recovery.leftCurves()) {}

PropertyValue CurveStorage::storedCurves() const {
    PropertyValue curves = _preferences.dictionaryForKey(settingsKey::screens);
    curves.update(_left);
    curves.update(_kept);
    return curves;
}

void CurveStorage::_adoptDefaultCurves() {
    const PropertyValue curves = storedCurves();
    for (const auto& screen : _registry.screens()) {
        screen->retriveExtendedGammaCurve();
    }
    _registry.adoptGammaCurveDictionary(curves, nullptr);
}

void CurveStorage::_updateDefaultCurves() {
    _preferences.setValue(settingsKey::screens,
                          _registry.gammaCurveDictionaryExtendingDictionary(storedCurves()));
}

bool CurveStorage::hasRoomFor(const PropertyValue& curves) const {
    PropertyValue all = storedCurves();
    const std::size_t before = all.size();
    all.update(curves);
    return all.size() <= std::max(mostStored, before);
}

// What is kept beside has the last word after a crash, so that it must say the same.
void CurveStorage::storeCurves(const PropertyValue& curves) {
    PropertyValue all = storedCurves();
    all.update(curves);
    bool isKept = _timer != nullptr;
    for (const auto& [key, curve] : curves.items()) {
        if (_left.contains(key) || _kept.contains(key)) {
            _left.erase(key);
            _kept[key] = curve;
            isKept = true;
        }
    }
    if (isKept) {
        keepCurves();
    }
    _preferences.setValue(settingsKey::screens, std::move(all));
}

void CurveStorage::curvesWereEdited() {
    // Not put off by the edits of a long drag: the first one counts.
    if (!_timer) {
        _timer = _runLoop.callOnce(keepingDelay, [this] { keepCurves(); });
    }
}

void CurveStorage::keepPendingEdits() {
    if (_timer) {
        keepCurves();
    }
}

void CurveStorage::keepCurves() {
    _timer.reset();
    _kept = _registry.gammaCurveDictionaryExtendingDictionary(_kept);
    PropertyValue all = _left;
    all.update(_kept);
    _recovery.keep(std::move(all));
}

void CurveStorage::close() {
    keepPendingEdits();
    // Another program may have stored curves of other displays, unseen.
    static_cast<void>(_preferences.synchronize());
    _updateDefaultCurves();
    // As long as the preferences cannot be saved, the other file is all there is.
    if (_preferences.synchronize()) {
        _recovery.forget();
    }
}

}  // namespace tonquil
