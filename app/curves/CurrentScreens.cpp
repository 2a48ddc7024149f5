// SPDX-License-Identifier: MIT
#include "app/curves/CurrentScreens.h"

#include <algorithm>

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"
#include "screens/PlatformScreen.h"

namespace tonquil {

namespace {

double commonArea(const Rectangle& a, const Rectangle& b) {
    const double width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const double height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    return std::max(width, 0.0) * std::max(height, 0.0);
}

std::string titleOf(const DisplayDescription& display) {
    return display.productName.empty() ? display.connector
                                       : display.connector + " \u00B7 " + display.productName;
}

}  // namespace

std::optional<DisplayID> CurrentScreens::displayUnderPanel() {
    const Rectangle panel = _panel.frame();
    std::optional<DisplayID> best;
    double bestArea = 0;
    for (const DisplayID display : _service.onlineDisplays(ScreenRegistry::mostScreens)) {
        const double area = commonArea(panel, _service.bounds(display));
        if (area > bestArea) {
            bestArea = area;
            best = display;
        }
    }
    return best;
}

ScreenRegistry::Screens CurrentScreens::_currentScreens() {
    if (_preferences.boolForKey(settingsKey::affectAllScreens)) {
        return _registry.screens();
    }
    const auto display = displayUnderPanel();
    return _registry.screensWithRect(display ? PlatformScreen(_service, *display).frame()
                                             : Rectangle{});
}

std::vector<PanelDisplay> CurrentScreens::displays() {
    const auto underPanel = displayUnderPanel();
    std::vector<PanelDisplay> displays;
    for (const DisplayID display : _service.onlineDisplays(ScreenRegistry::mostScreens)) {
        displays.push_back({.display = display,
                            .title = titleOf(_service.description(display)),
                            .isUnderPanel = display == underPanel});
    }
    return displays;
}

PanelSubject CurrentScreens::subject() {
    PanelSubject subject;
    subject.isAllDisplays = _preferences.boolForKey(settingsKey::affectAllScreens);
    const auto screens = _currentScreens();
    if (screens.empty()) {
        subject.title = TONQUIL_TEXT("PanelSubject", "No display");
        if (!_registry.screens().empty()) {
            subject.obstacle =
                TONQUIL_TEXT("Problem", "The panel is on no display. Move it onto one.");
        } else if (!_whyNoDisplays.empty()) {
            subject.obstacle = _whyNoDisplays;
        } else {
            subject.obstacle =
                TONQUIL_TEXT("Problem", "There is no display that could be corrected.");
        }
        return subject;
    }
    // A screen shared by twins is named after the twin under the panel.
    const auto underPanel = subject.isAllDisplays ? std::nullopt : displayUnderPanel();
    const DisplayDescription first =
        _service.description(underPanel.value_or(screens.front()->directDisplayID()));
    if (subject.isAllDisplays) {
        subject.title = TONQUIL_TEXT("PanelSubject", "All displays");
    } else {
        subject.title = titleOf(first);
    }
    // Of several displays, one that can be corrected is enough.
    const bool areAllBarred = std::all_of(screens.begin(), screens.end(), [&](const auto& screen) {
        return !_service.description(screen->directDisplayID()).obstacle.empty();
    });
    if (areAllBarred) {
        subject.obstacle = first.obstacle;
        if (first.isTaken) {
            subject.remedy = TONQUIL_TEXT("Problem",
                                          "Switch off the desktop's night light, or end whatever "
                                          "else corrects this display. Tonquil then takes it over "
                                          "within seconds.");
        }
    }
    return subject;
}

}  // namespace tonquil
