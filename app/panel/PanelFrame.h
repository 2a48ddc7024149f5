// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/panel/PanelWindow.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Moves `frame` inside `screen`; if it does not fit, the upper left corner stays visible.
[[nodiscard]] Rectangle keptInside(Rectangle frame, const Rectangle& screen);

/// Remembers the panel's position, and keeps it within reach; does nothing where the desktop places
/// the panel.
class PanelFrame {
 public:
    PanelFrame(DisplayService& service, PreferencesStore& preferences, PanelWindow& panel)
        : _service(service), _preferences(preferences), _panel(panel) {}

    /// Moves the panel to its saved position or, if its upper edge would be on no display or
    /// nothing was saved, to the upper right of the main display.
    void restore();
    /// Moves the whole panel onto its display: its size depends on its form and the desktop, and
    /// may differ from when its position was saved.
    void keepWhole();
    /// Moves the panel to the same place on another display, or as near as it fits.
    void moveTo(DisplayID display);
    /// Whether the middle of the panel's upper edge, the grip for moving it, is on a display.
    [[nodiscard]] bool isWithinReach() const;
    /// Restores a panel that is out of reach or was never placed, and moves all of it onto its
    /// display.
    void bringBack();
    /// Does nothing before the panel has been placed.
    void save();

 private:
    [[nodiscard]] std::optional<DisplayID> displayWithGrip(const Rectangle& frame) const;

    DisplayService& _service;
    PreferencesStore& _preferences;
    PanelWindow& _panel;
    /// The display the panel was placed on; nothing until there was a display.
    std::optional<DisplayID> _display;
};

}  // namespace tonquil
