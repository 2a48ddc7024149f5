// SPDX-License-Identifier: MIT
#pragma once

#include "app/panel/PanelWindow.h"
#include "app/preferences/PreferencesStore.h"
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
    /// Does nothing before the panel has been put anywhere.
    void save();
    /// False until there was a display to put the panel on.
    [[nodiscard]] bool isPlaced() const { return _isPlaced; }

 private:
    DisplayService& _service;
    PreferencesStore& _preferences;
    PanelWindow& _panel;
    bool _isPlaced = false;
};

}  // namespace tonquil
