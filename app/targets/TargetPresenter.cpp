// SPDX-License-Identifier: MIT
#include "app/targets/TargetPresenter.h"

#include <QWidget>
#include <vector>

#include "app/SettingsKeys.h"
#include "app/WindowFrame.h"
#include "app/panel/DevicePixels.h"
#include "app/panel/PanelIcons.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

TargetScreen TargetPresenter::screenOf(DisplayID display) {
    return {.displayID = display, .frame = pointsFrom(_service.bounds(display))};
}

void TargetPresenter::makeFloatingWindow() {
    if (_targetWindowController) {
        return;
    }
    _targetWindowController = std::make_unique<TQTargetWindowController>();
    TQTargetWindowController& controller = *_targetWindowController;
    controller.window().setWindowIcon(programIcon());
    const auto frame = windowFrameFrom(_preferences.stringForKey(settingsKey::targetsFrame));
    if (frame && !_service.displaysWithPoint(frame->centre(), 1).empty()) {
        controller.setFrame(pointsFrom(*frame));
    }
    controller.setKind(
        static_cast<std::int32_t>(_preferences.integerForKey(settingsKey::targetKind)));
    controller.setKindChanged([this](std::int32_t kind) {
        if (kind != _preferences.integerForKey(settingsKey::targetKind)) {
            _preferences.setValue(settingsKey::targetKind, kind);
        }
    });
    controller.setClosed([this] { saveFrame(); });
}

void TargetPresenter::openTargetWindow() {
    makeFloatingWindow();
    _targetWindowController->showWindow();
}

void TargetPresenter::openTargetWindow(TargetKind kind) {
    makeFloatingWindow();
    _targetWindowController->setKind(static_cast<std::int32_t>(kind));
    _targetWindowController->showWindow();
}

void TargetPresenter::coverDisplay(DisplayID display, TargetKind kind) {
    TQTargetWindowController& cover = _covers.targetWindowControllerForScreen(screenOf(display));
    cover.setKind(static_cast<std::int32_t>(kind));
    cover.showWindow();
}

void TargetPresenter::displaysChanged() {
    std::vector<TargetScreen> screens;
    for (const DisplayID display : _service.onlineDisplays(ScreenRegistry::mostScreens)) {
        screens.push_back(screenOf(display));
    }
    _covers.screensChanged(screens);
}

void TargetPresenter::saveFrame() {
    if (_targetWindowController) {
        _preferences.setValue(
            settingsKey::targetsFrame,
            textFromWindowFrame(devicePixelsFrom(_targetWindowController->frame())));
    }
}

}  // namespace tonquil
