// SPDX-License-Identifier: MIT
#include "app/curves/CurveStorage.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

// A file with one curve for all twins applies to all of them, so their stored curves are removed.
// Returns how many.
std::size_t eraseReplaced(PropertyValue& stored, const PropertyValue& curves) {
    const std::size_t before = stored.size();
    for (auto each = stored.begin(); each != stored.end();) {
        const std::string& key = each.key();
        const bool isReplaced =
            curves.contains(key) || curves.contains(key.substr(0, key.rfind('@')));
        each = isReplaced ? stored.erase(each) : std::next(each);
    }
    return before - stored.size();
}

}  // namespace

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

// The opened file must win over curves that are not yet saved. After a crash the recovery file
// overrides the preferences, so it must hold the same curves.
void CurveStorage::storeCurves(const PropertyValue& curves) {
    PropertyValue all = storedCurves();
    std::size_t replaced = 0;
    for (PropertyValue* stored : {&_left, &_kept}) {
        replaced += eraseReplaced(*stored, curves);
    }
    eraseReplaced(all, curves);
    all.update(curves);
    _preferences.setValue(settingsKey::screens, std::move(all));
    if (_timer || replaced > 0) {
        _kept.update(curves);
        keepCurves();
    }
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
    _recovery.keep(std::move(all));
}

void CurveStorage::close() {
    keepPendingEdits();
    // Another program may have stored curves of other displays since.
    static_cast<void>(_preferences.synchronize());
    _updateDefaultCurves();
    // If the preferences cannot be saved, the recovery file is the only copy.
    if (_preferences.synchronize()) {
        _recovery.forget();
    }
}

}  // namespace tonquil
