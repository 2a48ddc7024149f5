// SPDX-License-Identifier: MIT
#pragma once

#include "app/desktop/DesktopPresence.h"
#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// Shows either the status item or the task-bar entries, as the preferences say: always exactly one
/// of the two.
class StatusItem {
 public:
    StatusItem(DesktopPresence& presence, const PreferencesStore& preferences)
        : _presence(presence), _preferences(preferences) {}

    /// Makes updates take effect. Until the first one the program has no task-bar entry.
    void setReady() { _isStatusItemReady = true; }
    void updateStatusItem(bool isCorrectionOn);
    /// Updates the icon to show whether the correction is on, if there is an item.
    void updateStatusItemImage(bool isCorrectionOn);

 private:
    DesktopPresence& _presence;
    const PreferencesStore& _preferences;
    bool _isStatusItemReady = false;
    bool _hasFinishedStatusItemSetup = false;
    bool _hasStatusItem = false;
};

}  // namespace tonquil
