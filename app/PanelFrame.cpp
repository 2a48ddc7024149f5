// SPDX-License-Identifier: MIT
#include "app/PanelFrame.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "app/SettingsKeys.h"

namespace tonquil {

namespace {

std::string textFrom(const Rectangle& frame) {
    std::string text;
    for (const double part : {frame.x, frame.y, frame.width, frame.height}) {
        text += text.empty() ? "" : " ";
        text += std::to_string(std::lround(part));
    }
    return text;
}

std::optional<Rectangle> frameFrom(const std::string& text) {
    std::array<int, 4> parts{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (int& part : parts) {
        while (at != end && *at == ' ') {
            ++at;
        }
        const auto [next, error] = std::from_chars(at, end, part);
        if (error != std::errc()) {
            return std::nullopt;
        }
        at = next;
    }
    return Rectangle{static_cast<double>(parts[0]), static_cast<double>(parts[1]),
                     static_cast<double>(parts[2]), static_cast<double>(parts[3])};
}

}  // namespace

void PanelFrame::restore() {
    const auto saved = frameFrom(_preferences.stringForKey(settingsKey::controlWindowFrame));
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
    _preferences.setValue(settingsKey::controlWindowFrame, textFrom(_panel.frame()));
}

}  // namespace tonquil
