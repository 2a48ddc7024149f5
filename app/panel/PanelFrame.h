// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/panel/PanelWindow.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// `frame` moved into `screen`; the upper left corner counts where it does not fit.
[[nodiscard]] Rectangle keptInside(Rectangle frame, const Rectangle& screen);

/// Remembers where the panel was, and keeps it where it can be reached.
class PanelFrame {
 public:
    PanelFrame(DisplayService& service, PreferencesStore& preferences, PanelWindow& panel)
        : _service(service), _preferences(preferences), _panel(panel) {}

    /// Puts the panel where it was saved, or, where its upper edge would be on no display or
    /// nothing was saved, into the upper right of the main display.
    void restore();
    /// Moves all of the panel onto the display that it was put on: its size is its form's and the
    /// desktop's, not what it was when its place was saved.
    void keepWhole();
    /// Whether the middle of the panel's upper edge, where it is moved, is on a display.
    [[nodiscard]] bool isWithinReach() const;
    /// Restores a panel that is out of reach or was never placed, and keeps it whole.
    void bringBack();
    /// Does nothing before the panel has been put anywhere.
    void save();

 private:
    [[nodiscard]] std::optional<DisplayID> displayWithGrip(const Rectangle& frame) const;

    DisplayService& _service;
    PreferencesStore& _preferences;
    PanelWindow& _panel;
    /// Where the panel was put; nothing until there was a display.
    std::optional<DisplayID> _display;
};

}  // namespace tonquil
