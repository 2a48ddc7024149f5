// SPDX-License-Identifier: MIT
#include "app/panel/PanelFrame.h"

#include <cmath>

#include "app/preferences/SettingsKeys.h"
#include "app/preferences/WindowFrame.h"

namespace tonquil {

void PanelFrame::restore() {
    const auto saved = windowFrameFrom(_preferences.stringForKey(settingsKey::controlWindowFrame));
    // Its upper edge is where a window can be taken hold of.
    constexpr double grip = 14;
    if (saved &&
        !_service.displaysWithPoint({saved->x + saved->width / 2, saved->y + grip}, 1).empty()) {
        _isPlaced = true;
        _panel.setFrameOrigin({saved->x, saved->y});
        return;
    }
    const Rectangle display = _service.bounds(_service.mainDisplay());
    if (display.isEmpty()) {
        return;
    }
    _isPlaced = true;
    constexpr double marginX = 32;
    constexpr double marginY = 64;
    const double width = _panel.frame().width;
    _panel.setFrameOrigin(
        {std::fmax(display.x, display.x + display.width - width - marginX), display.y + marginY});
}

void PanelFrame::save() {
    if (!_isPlaced) {
        return;
    }
    _preferences.setValue(settingsKey::controlWindowFrame, textFromWindowFrame(_panel.frame()));
}

}  // namespace tonquil
