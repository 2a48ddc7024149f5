// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/DesktopPresence.h"
#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// Keeps the status item and the task-bar entries as the preferences want them: exactly one of the
/// two.
class StatusItem {
 public:
    StatusItem(DesktopPresence& presence, const PreferencesStore& preferences)
        : _presence(presence), _preferences(preferences) {}

    /// From now on updates have an effect. Until the first one the program is in no task bar.
    void setReady() { _isStatusItemReady = true; }
    void updateStatusItem(bool isCorrectionOn);
    /// Shows whether the correction is on, where there is an item.
    void updateStatusItemImage(bool isCorrectionOn);

 private:
    DesktopPresence& _presence;
    const PreferencesStore& _preferences;
    bool _isStatusItemReady = false;
    bool _hasFinishedStatusItemSetup = false;
    bool _hasStatusItem = false;
};

}  // namespace tonquil
