// SPDX-License-Identifier: MIT
#include "app/TQController.h"

#include <cstdint>
#include <utility>

#include "app/desktop/ConflictCheck.h"
#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

TQController::TQController(ControllerSurroundings surroundings)
    : _with(std::move(surroundings)),
      _currentScreens(_with.service, _with.registry, _with.preferences, _with.panel,
                      _with.whyNoDisplays),
      _currentCurve(_with.controls),
      _correction(_with.service, _with.registry, _with.preferences),
      _storage(_with.registry, _with.preferences, _with.recovery, _with.runLoop),
      _view({.service = _with.service,
             .registry = _with.registry,
             .controls = _with.controls,
             .currentScreens = _currentScreens,
             .currentCurve = _currentCurve,
             .history = _history}),
      _editing({.service = _with.service,
                .registry = _with.registry,
                .runLoop = _with.runLoop,
                .controls = _with.controls,
                .currentScreens = _currentScreens,
                .currentCurve = _currentCurve,
                .history = _history,
                .view = _view,
                .correction = _correction,
                .storage = _storage,
                .preferences = _with.preferences}),
      _files({.service = _with.service,
              .registry = _with.registry,
              .preferences = _with.preferences,
              .runLoop = _with.runLoop,
              .dialogs = _with.dialogs,
              .currentScreens = _currentScreens,
              .editing = _editing,
              .storage = _storage,
              .view = _view,
              .log = _with.log}),
      _presets({.folder = PresetFolder(_with.presetFolder),
                .preferences = _with.preferences,
                .dialogs = _with.dialogs,
                .files = _files,
                .log = _with.log}),
      _panelFrame(_with.service, _with.preferences, _with.panel),
      _periodicUpdate(_with.runLoop, _with.preferences, _with.service,
                      [this] { _applyCurvesToScreen(); }),
      _reapplication(_with.runLoop, [this] { reapply(); }),
      _reconfigurations(_with.reconfigurations, _with.log, [this] { updateScreens(); }),
      _statusItem(_with.presence, _with.preferences),
      _restorableWindows(_with.windows, _with.targets),
      _hotKeys(_with.hotKeys, _with.preferences, hotKeyActions()),
      _panelUnderMouse({.service = _with.service,
                        .panel = _with.panel,
                        .windowSystem = _with.windowSystem,
                        .showCurveAt = [this](const Point& point) { _view.showCurveAt(point); },
                        .showPanel = [this] { _with.panel.makeKeyAndOrderFront(); }}),
      _remote({.registry = _with.registry,
               .preferences = _with.preferences,
               .runLoop = _with.runLoop,
               .targets = _with.targets,
               .alerts = _with.alerts,
               .editing = _editing,
               .view = _view,
               .openServer = _with.openServer,
               .showRunning =
                   [this](bool isRunning) {
                       _with.panel.showRemoteConfiguration(isRunning);
                       _with.presence.showRemoteConfiguration(isRunning);
                   },
               .showProblem =
                   [this](const std::string& text) { _with.windows.showRemoteProblem(text); },
               .log = _with.log}) {
    _correction.show = [this](bool isOn) { showCorrection(isOn); };
}

// The curves come before anything visible; observers come last, so that nothing is reported while
// it is still being set up.
void TQController::applicationDidFinishLaunching() {
    _with.windows.setAboutBackground(248.0 / 255, 234.0 / 255, 198.0 / 255);
    if (!checkForConflict()) {
        _hasTerminated = true;
        return;
    }
    _initDefaults();
    _adoptDefaultCurves();
    if (_with.preferences.boolForKey(settingsKey::continuouslyApply)) {
        _periodicUpdate._startPeriodicUpdate();
    }
    _panelFrame.restore();
    applyAppearance();
    _panelFrame.keepWhole();
    setApplyCorrection(_with.preferences.boolForKey(settingsKey::rememberSettings));
    _statusItem.setReady();
    updateStatusItem();
    updateHotKey();
    _view._setControlsEnabled(false);
    if (_with.preferences.boolForKey(settingsKey::showAtLaunch)) {
        showPanel();
    }
    _with.panel.showTab(storedTab());
    _with.runLoop.post([this] { finishPanelSetUp(); });
    observeSurroundings();
    _remote._applyDefaultsToServer();
}

void TQController::applicationWillTerminate() {
    if (std::exchange(_hasTerminated, true)) {
        return;
    }
    _reconfigurationSubscription.reset();
    compare(false);
    _periodicUpdate._stopPeriodicUpdate();
    _panelFrame.save();
    _with.targets.saveFrame();
    _with.windows.saveFrames();
    _storage.close();
}

void TQController::applicationShouldHandleReopen() {
    if (_with.preferences.boolForKey(settingsKey::toggleApply)) {
        toggleApplyCorrection();
    } else if (applyCorrection()) {
        showPanel();
        _applyCurvesToScreen();
    }
}

bool TQController::checkForConflict() {
    ConflictCheck check(_with.preferences, _with.programs, _with.alerts, _with.endProgram);
    return check.run("Tonquil") != ConflictCheck::Outcome::Ended;
}

void TQController::_initDefaults() {
    _with.preferences.registerDefaults(registeredDefaults());
    _with.service.setNightLightKept(_with.preferences.boolForKey(settingsKey::keepNightLight));
}

void TQController::_adoptDefaultCurves() {
    {
        const DisplayBatch batch(_with.service);
        _storage._adoptDefaultCurves();
    }
    _view._updateCurveInPanel();
}

// The panel's position and tab are only final once its window exists.
void TQController::finishPanelSetUp() {
    _view._setControlsEnabled(true);
    _with.panel.showTab(storedTab());
    _with.panel.focusMasterOfSelectedTab();
    _view.rememberDisplay();
    _view._updateCurveInPanel();
}

void TQController::observeSurroundings() {
    _with.panel.observeFirstResponder();
    _preferencesSubscription = _with.preferences.subscribe([this] { _changedDefaults(); });
    for (SessionEvents* events : _with.sessionEvents) {
        events->start([this](SessionEvent event) { sessionEvent(event); });
    }
    // A profile may have been loaded after the curves were applied but before the observers
    // started.
    _with.runLoop.post([this] {
        if (adoptCalibration()) {
            _applyCurvesToScreen();
        }
    });
    _reconfigurationSubscription = _with.service.registerReconfigurationCallback(
        [this](DisplayID, ReconfigurationFlags flags) {
            _mayCalibrationHaveChanged =
                _mayCalibrationHaveChanged || (flags & calibrationChanged) != 0;
            if (flags == calibrationChanged) {
                _reapplication.request();
            } else {
                _reconfigurations.displayReconfigured(flags);
            }
        });
}

void TQController::sessionEvent(SessionEvent event) {
    if (event == SessionEvent::ColourSpaceChanged) {
        _mayCalibrationHaveChanged = true;
    }
    _reapplication.request();
}

void TQController::reapply() {
    if (std::exchange(_mayCalibrationHaveChanged, false)) {
        adoptCalibration();
    }
    _applyCurvesToScreen();
}

bool TQController::adoptCalibration() {
    const bool hasChanged = _correction.readBases();
    if (hasChanged) {
        _with.controls.updatePlot();
    }
    return hasChanged;
}

void TQController::_changedDefaults() {
    _applyDefaultsToPanel();
    _remote._applyDefaultsToServer();
    if (_view.showsAllScreens() != _with.preferences.boolForKey(settingsKey::affectAllScreens)) {
        _view._changeScreen();
    }
}

// The correction switch is a preference like the others, and a change to it is always deliberate.
// It is only followed, never written back: that would undo a change that another program made
// since.
void TQController::_applyDefaultsToPanel() {
    _with.service.setNightLightKept(_with.preferences.boolForKey(settingsKey::keepNightLight));
    if (applyCorrection() != _correction.isActive()) {
        _correction.switchTo(applyCorrection());
    }
    applyAppearance();
    if (_with.preferences.boolForKey(settingsKey::continuouslyApply) && applyCorrection()) {
        _periodicUpdate._startPeriodicUpdate();
    } else {
        _periodicUpdate._stopPeriodicUpdate();
    }
    updateStatusItem();
    updateHotKey();
}

void TQController::applyAppearance() {
    const PreferencesStore& preferences = _with.preferences;
    _with.panel._setAdvancedPanel(preferences.boolForKey(settingsKey::advancedPanel));
    _with.panel._setDarkTheme(preferences.boolForKey(settingsKey::darkTheme));
    _with.panel.showChannelStrip(preferences.boolForKey(settingsKey::channelStrip));
    _with.panel.showFirstHint(!preferences.boolForKey(settingsKey::hasEdited));
    _with.targets.setHintsShown(preferences.boolForKey(settingsKey::showsTargetHints));
}

// A new display gets its stored curve; the others keep theirs, which the system may have removed
// from the hardware during the change.
void TQController::updateScreens() {
    _storage.keepPendingEdits();
    {
        const DisplayBatch batch(_with.service);
        _with.registry.updateScreenList();
        for (const auto& screen : _with.registry.screens()) {
            if (!screen->gammaCurve()) {
                screen->retriveExtendedGammaCurve();
                screen->adoptGammaCurveDictionary(_storage.storedCurves(), nullptr);
            }
        }
        if (std::exchange(_mayCalibrationHaveChanged, false)) {
            adoptCalibration();
        }
        _correction.activateScreens();
    }
    _panelFrame.bringBack();
    _view._changeScreen();
    _with.targets.displaysChanged();
}

void TQController::showPanel() {
    if (!_panelFrame.isWithinReach()) {
        _panelFrame.bringBack();
    }
    _with.panel.makeKeyAndOrderFront();
}

void TQController::togglePanel() {
    if (_with.panel.isOrderedIn() && _with.panel.isOnActiveWorkspace()) {
        _editing.endEdit();
        _with.panel.orderOut();
    } else {
        showPanel();
    }
}

// A neutral curve shows what a display shows while the correction is off, so it needs no switch.
Result<void> TQController::takeCurves(const HandedCurves& curves) {
    {
        const DisplayBatch batch(_with.service);
        auto taken = _editing.takeCurves(curves);
        if (!taken) {
            return taken;
        }
        if (!areNeutral(curves) && !applyCorrection()) {
            setApplyCorrection(true);
        }
    }
    for (const DisplayID display : _with.service.onlineDisplays(ScreenRegistry::mostScreens)) {
        const auto description = _with.service.description(display);
        if (curves.contains(description.connector) && !description.obstacle.empty()) {
            return problem(description.connector + ": " + description.obstacle);
        }
    }
    return {};
}

void TQController::showTarget(std::optional<TargetKind> kind, const std::string& referenceID) {
    if (referenceID.empty()) {
        _restorableWindows.openTargetWindow(kind);
        return;
    }
    if (const auto screen = _with.registry.screenWithReferenceID(referenceID)) {
        _with.targets.coverDisplay(screen->directDisplayID(), kind.value_or(TargetKind::Color));
        return;
    }
    _with.dialogs.alert(TONQUIL_TEXT("Problem", "No such display"),
                        TONQUIL_TEXT("Problem",
                                     "No display with the reference ID %@ is attached. "
                                     "tonquilctl displays lists them."),
                        {referenceID});
}

int TQController::storedTab() const {
    constexpr int middleTab = 1;
    const std::int64_t stored = _with.preferences.integerForKey(settingsKey::selectedTab);
    return stored >= 0 && stored <= 2 ? static_cast<int>(stored) : middleTab;
}

void TQController::setSelectedTab(int index) {
    _history.endStep();
    _with.panel.showTab(index);
    _with.preferences.setValue(settingsKey::selectedTab, index);
}

void TQController::setAffectsAllScreens(bool affectsAll) {
    _with.preferences.setValue(settingsKey::affectAllScreens, affectsAll);
    _view._changeScreen();
}

void TQController::editDisplay(DisplayID display) {
    _panelFrame.moveTo(display);
    setAffectsAllScreens(false);
}

void TQController::identifyDisplays() {
    std::vector<NamedDisplay> named;
    for (const PanelDisplay& display : displays()) {
        named.push_back({.display = display.display, .name = display.title});
    }
    _with.targets.identify(named);
}

void TQController::setAdvancedPanel(bool advanced) {
    _with.preferences.setValue(settingsKey::advancedPanel, advanced);
}

void TQController::setDarkTheme(bool dark) {
    _with.preferences.setValue(settingsKey::darkTheme, dark);
}

void TQController::setChannelStrip(bool isShown) {
    _with.preferences.setValue(settingsKey::channelStrip, isShown);
}

void TQController::showCorrection(bool isOn) {
    _with.controls.showCorrection(isOn);
    _statusItem.updateStatusItemImage(isOn);
}

ControllerHotKeys::Actions TQController::hotKeyActions() {
    return {
        .toggleApplyCorrection = [this] { toggleApplyCorrection(); },
        .showPanelAndCenterMouse =
            [this](std::chrono::milliseconds time) {
                _panelUnderMouse.showPanelAndCenterMouse(time);
            },
        .showPanelAndCenterMouseRelease =
            [this](std::chrono::milliseconds time) {
                _panelUnderMouse.showPanelAndCenterMouseRelease(time);
            },
        .showProblem = [this](HotKeyRole role,
                              const std::string& sentence) { showHotKeyProblem(role, sentence); }};
}

void TQController::showHotKeyProblem(HotKeyRole role, const std::string& sentence) {
    if (!sentence.empty()) {
        std::string line = role == HotKeyRole::ToggleCorrection
                               ? "The hot key for the correction does not work. "
                               : "The hot key for the panel does not work. ";
        _with.log(line.append(sentence));
    }
    _with.windows.showHotKeyProblem(role, sentence);
}

}  // namespace tonquil
