// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "app/panel/PanelControls.h"
#include "app/panel/PanelWindow.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Which displays the panel edits.
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

    /// All of them, or those that lie exactly where the display under the panel does: more than
    /// one only for displays that show the same. Empty while the panel is on no display.
    [[nodiscard]] ScreenRegistry::Screens _currentScreens();
    /// The display that most of the panel is on; nothing if it is not on any.
    [[nodiscard]] std::optional<DisplayID> displayUnderPanel();
    /// What the panel says about them.
    [[nodiscard]] PanelSubject subject();

 private:
    DisplayService& _service;
    ScreenRegistry& _registry;
    const PreferencesStore& _preferences;
    const PanelWindow& _panel;
    std::string _whyNoDisplays;
};

}  // namespace tonquil
