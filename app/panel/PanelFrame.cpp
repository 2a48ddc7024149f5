// SPDX-License-Identifier: MIT
#include "app/panel/PanelFrame.h"

#include <algorithm>
#include <cmath>

#include "app/preferences/SettingsKeys.h"
#include "app/preferences/WindowFrame.h"

namespace tonquil {

Rectangle keptInside(Rectangle frame, const Rectangle& screen) {
    frame.x = std::min(frame.x, screen.x + screen.width - frame.width);
    frame.x = std::max(frame.x, screen.x);
    frame.y = std::min(frame.y, screen.y + screen.height - frame.height);
    frame.y = std::max(frame.y, screen.y);
    return frame;
}

// Users move the panel by its upper edge, so that part must be on a display.
std::optional<DisplayID> PanelFrame::displayWithGrip(const Rectangle& frame) const {
    constexpr double grip = 14;
    const auto displays =
        _service.displaysWithPoint({frame.x + frame.width / 2, frame.y + grip}, 1);
    return displays.empty() ? std::nullopt : std::optional(displays.front());
}

void PanelFrame::restore() {
    if (_panel.isPlacedByDesktop()) {
        return;
    }
    const auto saved = windowFrameFrom(_preferences.stringForKey(settingsKey::controlWindowFrame));
    const auto display = saved ? displayWithGrip(*saved) : std::nullopt;
    if (display) {
        _display = display;
        _panel.setFrameOrigin({saved->x, saved->y});
        return;
    }
    const DisplayID main = _service.mainDisplay();
    const Rectangle bounds = _service.bounds(main);
    if (bounds.isEmpty()) {
        return;
    }
    _display = main;
    constexpr double marginX = 32;
    constexpr double marginY = 64;
    const double width = _panel.frame().width;
    _panel.setFrameOrigin(
        {std::fmax(bounds.x, bounds.x + bounds.width - width - marginX), bounds.y + marginY});
}

void PanelFrame::keepWhole() {
    const Rectangle bounds = _display ? _service.bounds(*_display) : Rectangle{};
    const Rectangle frame = _panel.frame();
    const Rectangle whole = bounds.isEmpty() ? frame : keptInside(frame, bounds);
    if (whole != frame) {
        _panel.setFrameOrigin({whole.x, whole.y});
    }
}

void PanelFrame::moveTo(DisplayID display) {
    const Rectangle bounds = _service.bounds(display);
    if (bounds.isEmpty() || _panel.isPlacedByDesktop()) {
        return;
    }
    Rectangle frame = _panel.frame();
    const auto from = displayWithGrip(frame);
    const Rectangle before = from ? _service.bounds(*from) : bounds;
    frame.x += bounds.x - before.x;
    frame.y += bounds.y - before.y;
    frame = keptInside(frame, bounds);
    _display = display;
    _panel.setFrameOrigin({frame.x, frame.y});
}

bool PanelFrame::isWithinReach() const {
    return _panel.isPlacedByDesktop() || displayWithGrip(_panel.frame()).has_value();
}

void PanelFrame::bringBack() {
    const auto display = displayWithGrip(_panel.frame());
    if (_display && display) {
        _display = display;
    } else {
        restore();
    }
    keepWhole();
}

void PanelFrame::save() {
    if (!_display) {
        return;
    }
    _preferences.setValue(settingsKey::controlWindowFrame, textFromWindowFrame(_panel.frame()));
}

}  // namespace tonquil
