// SPDX-License-Identifier: MIT
#include "app/preferences/SettingsKeys.h"

#include <string>

namespace tonquil {

PropertyValue registeredDefaults() {
    PropertyValue defaults = PropertyValue::object();
    const auto set = [&defaults](std::string_view key, PropertyValue value) {
        defaults[std::string(key)] = std::move(value);
    };
    for (const std::string_view key :
         {settingsKey::advancedPanel, settingsKey::darkTheme, settingsKey::continuouslyApply,
          settingsKey::showAtLaunch, settingsKey::rememberSettings, settingsKey::applyCorrection,
          settingsKey::keepNightLight, settingsKey::showsTargetHints}) {
        set(key, true);
    }
    set(settingsKey::affectAllScreens, false);
    set(settingsKey::selectedTab, 1);
    set(settingsKey::screens, PropertyValue::object());
    set(settingsKey::continuouslyApplyInterval, singlePrecision(3.0F));
    return defaults;
}

}  // namespace tonquil
