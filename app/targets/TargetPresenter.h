// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/PreferencesStore.h"
#include "app/TargetWindows.h"
#include "screens/DisplayService.h"
#include "targets/TQTargetWindowController.h"
#include "targets/TargetWindowList.h"

namespace tonquil {

/// Shows the calibration targets on the displays of a display service, and keeps the floating
/// window's place and kind in the preferences.
class TargetPresenter final : public TargetWindows {
 public:
    TargetPresenter(DisplayService& service, PreferencesStore& preferences)
        : _service(service), _preferences(preferences) {}

    void openTargetWindow() override;
    void openTargetWindow(TargetKind kind) override;
    void coverDisplay(DisplayID display, TargetKind kind) override;
    void displaysChanged() override;
    void saveFrame() override;

    /// The covers, one for each display that has one.
    [[nodiscard]] TargetWindowList& covers() { return _covers; }

 private:
    [[nodiscard]] TargetScreen screenOf(DisplayID display);
    void makeFloatingWindow();

    DisplayService& _service;
    PreferencesStore& _preferences;
    TargetWindowList _covers;
    /// Made when it is first shown.
    std::unique_ptr<TQTargetWindowController> _targetWindowController;
};

}  // namespace tonquil
