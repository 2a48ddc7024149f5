// SPDX-License-Identifier: MIT
#include "app/desktop/StatusItem.h"

#include "app/preferences/SettingsKeys.h"

namespace tonquil {

void StatusItem::updateStatusItem(bool isCorrectionOn) {
    if (!_isStatusItemReady) {
        return;
    }
    const bool isWanted = _preferences.integerForKey(settingsKey::showStatusItem) == 1;
    if (isWanted && !_hasStatusItem) {
        _presence.setInTaskBar(false);
        _hasStatusItem = true;
        _presence.showStatusItem(true);
        updateStatusItemImage(isCorrectionOn);
    } else if (!isWanted && (_hasStatusItem || !_hasFinishedStatusItemSetup)) {
        _presence.setInTaskBar(true);
        _hasStatusItem = false;
        _presence.showStatusItem(false);
    }
    _hasFinishedStatusItemSetup = true;
}

void StatusItem::updateStatusItemImage(bool isCorrectionOn) {
    if (_hasStatusItem) {
        _presence.setStatusItemActive(isCorrectionOn);
    }
}

}  // namespace tonquil
