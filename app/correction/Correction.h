// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "app/preferences/PreferencesStore.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Switches the correction on and off for all displays.
class Correction {
 public:
    Correction(DisplayService& service, ScreenRegistry& registry, PreferencesStore& preferences)
        : _service(service), _registry(registry), _preferences(preferences) {}

    [[nodiscard]] bool applyCorrection() const;
    /// On: every display gets its curve, now and whenever one is assigned. Off: the system
    /// calibration is restored immediately. Stores the state in the preferences.
    void setApplyCorrection(bool isOn);
    /// The same without storing, for when the preferences already have the state.
    void switchTo(bool isOn);
    /// While compared, the displays show the system calibration although the correction is on.
    /// Nothing of it is stored, so a program that is killed meanwhile corrects at its next start.
    void setCompared(bool isCompared);
    /// Applies every display's curve, whatever is on the hardware now; does nothing while off or
    /// compared.
    void _applyCurvesToScreen();
    /// Reads the current system calibration of every display as its base; returns whether one
    /// changed. Does not re-apply the curves.
    bool readBases();
    /// Restores the system calibration of all displays, whether on or off.
    void restoreAllGammaCurves();

    /// The last state set by this program.
    [[nodiscard]] bool isActive() const { return _isActive; }
    /// Applies the on/off state to every listed display, including new ones.
    void activateScreens();

    /// Called with the new state on every switch, before it is stored.
    std::function<void(bool)> show;

 private:
    [[nodiscard]] bool isOnDisplays() const { return _isActive && !_isCompared; }
    /// Brings the displays in line with the state.
    void update();

    DisplayService& _service;
    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    bool _isActive = false;
    bool _isCompared = false;
    bool _wasSwitchedOff = false;
};

}  // namespace tonquil
