// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "app/preferences/PreferencesStore.h"
#include "foundation/RunLoop.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Whether the displays are corrected, and what that means for all of them.
class Correction {
 public:
    Correction(DisplayService& service, ScreenRegistry& registry, PreferencesStore& preferences)
        : _service(service), _registry(registry), _preferences(preferences) {}

    [[nodiscard]] bool applyCorrection() const;
    /// On: every display takes its curve, now and whenever it is given one. Off: the displays are
    /// given back to the system's calibration at once.
    void setApplyCorrection(bool isOn);
    /// Puts every display's curve on it, whatever is there now; does nothing while off.
    void _applyCurvesToScreen();
    /// Takes the system's present calibration of every display for its base; tells whether one has
    /// changed. The curves are not applied again by this.
    bool readBases();
    /// Gives the displays back to the system's calibration, on or off.
    void restoreAllGammaCurves();

    /// Whether it was switched on last, by this program.
    [[nodiscard]] bool isActive() const { return _isActive; }
    /// Lets every listed display take part in what was switched on or off, new ones too.
    void activateScreens();

    /// Called with the new state by each `setApplyCorrection`, before it is stored.
    std::function<void(bool)> show;

 private:
    DisplayService& _service;
    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    bool _isActive = false;
    bool _wasSwitchedOff = false;
};

}  // namespace tonquil
