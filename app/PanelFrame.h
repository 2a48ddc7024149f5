// SPDX-License-Identifier: MIT
#pragma once

#include "app/PanelWindow.h"
#include "app/PreferencesStore.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Remembers where the panel was.
class PanelFrame {
 public:
    PanelFrame(DisplayService& service, PreferencesStore& preferences, PanelWindow& panel)
        : _service(service), _preferences(preferences), _panel(panel) {}

    /// Puts the panel where it was saved, or, where that is on no display any more or nothing was
    /// saved, into the upper right of the main display.
    void restore();
    void save();

 private:
    DisplayService& _service;
    PreferencesStore& _preferences;
    PanelWindow& _panel;
};

}  // namespace tonquil
