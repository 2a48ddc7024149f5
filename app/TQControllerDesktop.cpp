// SPDX-License-Identifier: MIT
// What lies around the panel: the status item, hot keys, companions on the network, and programs
// that want the same displays.
#include <utility>

#include "app/TQController.h"
#include "app/desktop/ConflictCheck.h"
#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

constexpr int remoteSubject = 103;

constexpr std::string_view targetWindow = "Target";
constexpr std::string_view preferencesWindow = "Preferences";
constexpr std::string_view kindKey = "kind";

}  // namespace

bool TQController::checkForConflict() {
    ConflictCheck check(_preferences, _programs, _alerts, _endProgram);
    return check.run("Tonquil") != ConflictCheck::Outcome::Ended;
}

void TQController::showCorrection(bool isOn) {
    _controls.showCorrection(isOn);
    _statusItem.updateStatusItemImage(isOn);
}

ControllerHotKeys::Actions TQController::hotKeyActions() {
    return {
        .toggleApplyCorrection = [this] { toggleApplyCorrection(); },
        .showPanelAndCenterMouse = [this] { showPanelAndCenterMouse(); },
        .showPanelAndCenterMouseRelease = [this] { showPanelAndCenterMouseRelease(); },
        .showProblem = [this](HotKeyRole role,
                              const std::string& sentence) { showHotKeyProblem(role, sentence); }};
}

void TQController::showHotKeyProblem(HotKeyRole role, const std::string& sentence) {
    if (!sentence.empty()) {
        std::string line = role == HotKeyRole::ToggleCorrection
                               ? "The hot key for the correction does not work. "
                               : "The hot key for the panel does not work. ";
        _log(line.append(sentence));
    }
    _windows.showHotKeyProblem(role, sentence);
}

PanelUnderMouse::Surroundings TQController::panelUnderMouseSurroundings(
    const ControllerSurroundings& surroundings) {
    return {.service = _service,
            .panel = _panel,
            .windowSystem = surroundings.windowSystem,
            .runLoop = _runLoop,
            .showCurveAt = [this](const Point& point) { showCurveAt(point); },
            .showPanel = [this] { _panel.makeKeyAndOrderFront(); }};
}

void TQController::showCurveAt(const Point& point) {
    const auto displays = _service.displaysWithPoint(point, 1);
    if (displays.empty()) {
        return;
    }
    const auto screen = _registry.screenWithDirectDisplayID(displays.front());
    if (screen->gammaCurve()) {
        _currentCurve._setCurrentGammaCurve(*screen->gammaCurve());
    }
}

void TQController::openTargetWindow() {
    makeTargetWindowRestorable();
    _targets.openTargetWindow();
}

// It is settled when the window is made: only where the preferences window was there by then.
void TQController::makeTargetWindowRestorable() {
    if (!_isTargetWindowRestorable) {
        _isTargetWindowRestorable = _windows.isPreferencesWindowLoaded();
    }
}

PropertyValue TQController::restorableWindows() const {
    PropertyValue windows = PropertyValue::object();
    if (_windows.isPreferencesWindowShown()) {
        windows[std::string(preferencesWindow)] = PropertyValue::object();
    }
    const auto target = _targets.floatingTarget();
    if (target && _isTargetWindowRestorable.value_or(false)) {
        windows[std::string(targetWindow)] = {
            {std::string(kindKey), static_cast<std::int32_t>(*target)}};
    }
    return windows;
}

bool TQController::restoreWindowWithIdentifier(std::string_view identifier,
                                               const PropertyValue& state) {
    if (identifier == preferencesWindow) {
        openPreferences();
    } else if (identifier == targetWindow) {
        const PropertyValue* kind = entry(state, kindKey);
        const bool isGrayscale = kind != nullptr && integerValue(*kind) == 1;
        showTarget(isGrayscale ? TargetKind::Grayscale : TargetKind::Color, {});
    } else {
        return false;
    }
    return true;
}

void TQController::_applyDefaultsToServer() {
    const bool isAllowed = _preferences.boolForKey(settingsKey::allowRemote);
    if (isAllowed && !_playerServer) {
        _playerServer = _openServer();
        if (_playerServer) {
            _playerServer->setDataSource(&_remoteDisplays);
            _playerServer->broadcastAnnounce();
        }
    } else if (!isAllowed) {
        _playerServer.reset();
    }
    _panel.showRemoteConfiguration(_playerServer != nullptr);
    _presence.showRemoteConfiguration(_playerServer != nullptr);
}

// An order from the network is an edit like any other: it can be undone, and it outlives a crash.
RemoteDisplays::Reactions TQController::remoteReactions() {
    return {.willEdit =
                [this](const ScreenRegistry::Screens& screens) {
                    _history.endStep();
                    _history.willEdit(screens, remoteSubject);
                    _history.endStep();
                },
            .didEdit = [this] { curvesWereEdited(); },
            .refreshPanel = [this] { _updateCurveInPanel(); },
            .targetClosed = [this] { pushStateUpdate(); },
            .broadcastFailed = [this] { broadcastTestFailed(); }};
}

void TQController::pushStateUpdate() {
    _runLoop.post([this] {
        if (_playerServer) {
            _playerServer->sendStateToSubscribers();
        }
    });
}

void TQController::broadcastTestFailed() {
    _preferences.setValue(settingsKey::allowRemote, false);
    static_cast<void>(_alerts.runModal(
        {.message = TONQUIL_TEXT("", "Cannot enable remote configuration"),
         .informativeText =
             TONQUIL_TEXT("",
                          "Network broadcast does not appear to work. Please check that only one "
                          "instance of Tonquil is running on this computer and that UDP ports "
                          "44188 and 48184 are not blocked by a firewall."),
         .buttons = {TONQUIL_TEXT("", "OK")}}));
}

}  // namespace tonquil
