// SPDX-License-Identifier: MIT
#include "app/TQController.h"

#include <cstdint>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

TQController::TQController(const ControllerSurroundings& surroundings)
    : _service(surroundings.service),
      _registry(surroundings.registry),
      _preferences(surroundings.preferences),
      _runLoop(surroundings.runLoop),
      _controls(surroundings.controls),
      _panel(surroundings.panel),
      _dialogs(surroundings.dialogs),
      _targets(surroundings.targets),
      _windows(surroundings.windows),
      _alerts(surroundings.alerts),
      _presence(surroundings.presence),
      _programs(surroundings.programs),
      _log(surroundings.log),
      _sessionEvents(surroundings.sessionEvents),
      _endProgram(surroundings.endProgram),
      _openServer(surroundings.openServer),
      _currentScreens(_service, _registry, _preferences, _panel, surroundings.whyNoDisplays),
      _currentCurve(_controls),
      _correction(_service, _registry, _preferences),
      _storage(_registry, _preferences, surroundings.recovery, _runLoop, surroundings.log),
      _panelFrame(_service, _preferences, _panel),
      _recentFiles(_preferences),
      _periodicUpdate(_runLoop, _preferences, [this] { _applyCurvesToScreen(); }),
      _reconfigurations(surroundings.reconfigurations, surroundings.log,
                        [this] { updateScreens(); }),
      _statusItem(surroundings.presence, _preferences),
      _hotKeys(surroundings.hotKeys, _preferences, hotKeyActions()),
      _panelUnderMouse(panelUnderMouseSurroundings(surroundings)),
      _remoteDisplays(_registry, _targets, surroundings.log, remoteReactions()) {
    _correction.show = [this](bool isOn) { showCorrection(isOn); };
}

// The curves come before anything that can be seen; what observes the surroundings comes last, so
// that nothing is told of while it is being set up.
void TQController::applicationDidFinishLaunching() {
    _windows.setAboutBackground(248.0 / 255, 234.0 / 255, 198.0 / 255);
    if (!checkForConflict()) {
        _hasTerminated = true;
        return;
    }
    _initDefaults();
    _adoptDefaultCurves();
    if (_preferences.boolForKey(settingsKey::continuouslyApply)) {
        _periodicUpdate._startPeriodicUpdate();
    }
    _panelFrame.restore();
    _panel._setAdvancedPanel(_preferences.boolForKey(settingsKey::advancedPanel));
    _panel._setDarkTheme(_preferences.boolForKey(settingsKey::darkTheme));
    _panel.showChannelStrip(_preferences.boolForKey(settingsKey::channelStrip));
    _targets.setHintsShown(_preferences.boolForKey(settingsKey::showsTargetHints));
    setApplyCorrection(_preferences.boolForKey(settingsKey::rememberSettings));
    _statusItem.setReady();
    updateStatusItem();
    updateHotKey();
    _setControlsEnabled(false);
    if (_preferences.boolForKey(settingsKey::showAtLaunch)) {
        showPanel();
    }
    _panel.showTab(storedTab());
    _runLoop.post([this] { finishPanelSetUp(); });
    _panel.observeFirstResponder();
    _preferencesSubscription = _preferences.subscribe([this] { _changedDefaults(); });
    observeSession();
    _reconfigurationSubscription =
        _service.registerReconfigurationCallback([this](DisplayID, ReconfigurationFlags flags) {
            _reconfigurations.displayReconfigured(flags);
        });
    _applyDefaultsToServer();
}

void TQController::applicationWillTerminate() {
    if (std::exchange(_hasTerminated, true)) {
        return;
    }
    _reconfigurationSubscription.reset();
    _periodicUpdate._stopPeriodicUpdate();
    _panelFrame.save();
    _targets.saveFrame();
    _windows.saveFrames();
    _storage.close();
}

void TQController::applicationShouldHandleReopen() {
    if (_preferences.boolForKey(settingsKey::toggleApply)) {
        toggleApplyCorrection();
    } else if (applyCorrection()) {
        showPanel();
        _applyCurvesToScreen();
    }
}

void TQController::showPanel() {
    bringPanelBack();
    _panel.makeKeyAndOrderFront();
}

void TQController::showTarget(std::optional<TargetKind> kind, const std::string& referenceID) {
    if (!referenceID.empty()) {
        const auto screen = _registry.screenWithReferenceID(referenceID);
        if (screen) {
            _targets.coverDisplay(screen->directDisplayID(), kind.value_or(TargetKind::Color));
        } else {
            _dialogs.alert(TONQUIL_TEXT("Problem", "No such display"),
                           TONQUIL_TEXT("Problem",
                                        "No display with the reference ID %@ is attached. "
                                        "tonquilctl displays lists them."),
                           {referenceID});
        }
    } else if (kind) {
        makeTargetWindowRestorable();
        _targets.openTargetWindow(*kind);
    } else {
        openTargetWindow();
    }
}

void TQController::bringPanelBack() {
    if (!_currentScreens.displayUnderPanel()) {
        _panelFrame.restore();
    }
}

void TQController::_initDefaults() {
    _preferences.registerDefaults(registeredDefaults());
}

void TQController::_adoptDefaultCurves() {
    {
        const DisplayBatch batch(_service);
        _storage._adoptDefaultCurves();
    }
    _updateCurveInPanel();
}

int TQController::storedTab() const {
    constexpr int middleTab = 1;
    const std::int64_t stored = _preferences.integerForKey(settingsKey::selectedTab);
    return stored >= 0 && stored <= 2 ? static_cast<int>(stored) : middleTab;
}

// The panel's place and the tab are only settled once the window is there.
void TQController::finishPanelSetUp() {
    _setControlsEnabled(true);
    _panel.showTab(storedTab());
    _panel.focusMasterOfSelectedTab();
    _displayUnderPanel = _currentScreens.displayUnderPanel();
    _updateCurveInPanel();
}

void TQController::observeSession() {
    for (SessionEvents* events : _sessionEvents) {
        events->start([this](SessionEvent) { _applyCurvesToScreen(); });
    }
}

void TQController::_changedDefaults() {
    _applyDefaultsToPanel();
    _applyDefaultsToServer();
    if (_shownAffectsAllScreens != _preferences.boolForKey(settingsKey::affectAllScreens)) {
        _changeScreen();
    }
}

// The switch of the correction is a preference like the others: whoever turns it means it.
void TQController::_applyDefaultsToPanel() {
    if (applyCorrection() != _correction.isActive()) {
        setApplyCorrection(applyCorrection());
    }
    _panel._setAdvancedPanel(_preferences.boolForKey(settingsKey::advancedPanel));
    _panel._setDarkTheme(_preferences.boolForKey(settingsKey::darkTheme));
    _panel.showChannelStrip(_preferences.boolForKey(settingsKey::channelStrip));
    _targets.setHintsShown(_preferences.boolForKey(settingsKey::showsTargetHints));
    if (_preferences.boolForKey(settingsKey::continuouslyApply) && applyCorrection()) {
        _periodicUpdate._startPeriodicUpdate();
    } else {
        _periodicUpdate._stopPeriodicUpdate();
    }
    updateStatusItem();
    updateHotKey();
}

// A display that is new gets the curve that is stored for it; the others keep theirs, which the
// system may have taken off them in the course of the change.
void TQController::updateScreens() {
    _storage.keepPendingEdits();
    {
        const DisplayBatch batch(_service);
        _registry.updateScreenList();
        for (const auto& screen : _registry.screens()) {
            if (!screen->gammaCurve()) {
                screen->retriveExtendedGammaCurve();
                screen->adoptGammaCurveDictionary(_storage.storedCurves(), nullptr);
            }
        }
        _correction.activateScreens();
    }
    if (!_panelFrame.isPlaced()) {
        _panelFrame.restore();
    }
    bringPanelBack();
    _changeScreen();
    _targets.displaysChanged();
}

}  // namespace tonquil
