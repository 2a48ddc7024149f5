// SPDX-License-Identifier: MIT
#include "app/curves/CurveStorage.h"

#include <iterator>
#include <string>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

// A file that has only one curve for all twins means them all: their older curves go.
void eraseReplaced(PropertyValue& stored, const PropertyValue& curves) {
    for (auto each = stored.begin(); each != stored.end();) {
        const std::string& key = each.key();
        const bool isReplaced =
            curves.contains(key) || curves.contains(key.substr(0, key.rfind('@')));
        each = isReplaced ? stored.erase(each) : std::next(each);
    }
}

}  // namespace

CurveStorage::CurveStorage(ScreenRegistry& registry, PreferencesStore& preferences,
                           CurveRecovery& recovery, RunLoop& runLoop, Log log)
    : _registry(registry),
      _preferences(preferences),
      _recovery(recovery),
      _runLoop(runLoop),
      _log(std::move(log)),
      _left(recovery.leftCurves()) {}

PropertyValue CurveStorage::storedCurves() const {
    PropertyValue curves = _preferences.dictionaryForKey(settingsKey::screens);
    curves.update(_left);
    curves.update(_kept);
    return curves;
}

void CurveStorage::_adoptDefaultCurves() {
    saveLeftCurves();
    const PropertyValue curves = storedCurves();
    for (const auto& screen : _registry.screens()) {
        screen->retriveExtendedGammaCurve();
    }
    _registry.adoptGammaCurveDictionary(curves, nullptr);
}

// Once these are in the preferences, the recovery file of the crashed run is no longer needed.
void CurveStorage::saveLeftCurves() {
    if (_left.empty()) {
        return;
    }
    _preferences.setValue(settingsKey::screens, storedCurves());
    if (_preferences.synchronize()) {
        _recovery.forget();
        _left = PropertyValue::object();
    }
}

void CurveStorage::_updateDefaultCurves() {
    _preferences.setValue(settingsKey::screens,
                          _registry.gammaCurveDictionaryExtendingDictionary(storedCurves()));
}

// The opened file must win over curves that are still waiting to be saved.
void CurveStorage::storeCurves(const PropertyValue& curves) {
    PropertyValue all = storedCurves();
    for (PropertyValue* stored : {&all, &_left, &_kept}) {
        eraseReplaced(*stored, curves);
    }
    all.update(curves);
    _preferences.setValue(settingsKey::screens, std::move(all));
}

void CurveStorage::curvesWereEdited() {
    // Do not restart a running timer, or a long drag would never be saved.
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
    _kept.update(_registry.gammaCurveDictionaryOver(storedCurves()));
    PropertyValue all = _left;
    all.update(_kept);
    const Result<void> kept = _recovery.keep(all);
    if (!kept && !_hasFailed && _log) {
        _log(kept.error().sentence);
    }
    _hasFailed = !kept;
}

void CurveStorage::close() {
    keepPendingEdits();
    // Another program may have stored curves of other displays, unseen.
    static_cast<void>(_preferences.synchronize());
    _updateDefaultCurves();
    // If the preferences cannot be saved, the recovery file is the only copy.
    if (_preferences.synchronize()) {
        _recovery.forget();
    }
}

}  // namespace tonquil
