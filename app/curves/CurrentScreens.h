// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/panel/PanelActions.h"
#include "app/panel/PanelControls.h"
#include "app/panel/PanelWindow.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Determines which displays the panel edits.
class CurrentScreens {
 public:
    CurrentScreens(DisplayService& service, ScreenRegistry& registry,
                   const PreferencesStore& preferences, const PanelWindow& panel,
                   std::string whyNoDisplays)
        : _service(service),
          _registry(registry),
          _preferences(preferences),
          _panel(panel),
          _whyNoDisplays(std::move(whyNoDisplays)) {}

    /// All displays, or those with exactly the bounds of the display under the panel: several only
    /// if they mirror each other. Empty while the panel is on no display.
    [[nodiscard]] ScreenRegistry::Screens _currentScreens();
    /// The display that shows most of the panel; nothing if it is on none.
    [[nodiscard]] std::optional<DisplayID> displayUnderPanel();
    /// All that the panel could edit, in the display service's order.
    [[nodiscard]] std::vector<PanelDisplay> displays();
    /// What the panel says about these displays.
    [[nodiscard]] PanelSubject subject();

 private:
    DisplayService& _service;
    ScreenRegistry& _registry;
    const PreferencesStore& _preferences;
    const PanelWindow& _panel;
    std::string _whyNoDisplays;
};

}  // namespace tonquil
