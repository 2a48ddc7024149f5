// SPDX-License-Identifier: MIT
// What people do in the panel.
#include <algorithm>

#include "app/TQController.h"
#include "app/curves/TableCapture.h"
#include "app/preferences/SettingsKeys.h"

namespace tonquil {

namespace {

// Each slider is a subject of its own to the edit history, and so are these.
constexpr int blendingModeSubject = 100;
constexpr int resetSubject = 101;

constexpr std::chrono::milliseconds resetPause{500};

}  // namespace

void TQController::applyGamma(PanelSlider sender, bool isLinked) {
    // What is edited is what the panel names, whatever has happened to its frame since.
    panelMoved();
    const DisplayBatch batch(_service);
    if (isLinked) {
        _currentCurve.moveLinkedSliders(sender);
    }
    _controls.updateTouchBarSlider();
    replaceCurves(static_cast<int>(sender));
    _updateCurveInPanel();
}

void TQController::changeBlendingMode() {
    const DisplayBatch batch(_service);
    _history.endStep();
    replaceCurves(blendingModeSubject);
    _history.endStep();
}

void TQController::replaceCurves(int subject) {
    const auto screens = _currentScreens._currentScreens();
    const auto curve = _currentCurve._currentGammaCurve();
    _controls.selectBlendingMode(curve->blendingMode());
    // A wheel that turns on at the end of a slider edits nothing.
    if (haveCurve(screens, *curve)) {
        return;
    }
    _history.willEdit(screens, subject);
    for (const auto& screen : screens) {
        screen->setGammaCurve(curve);
    }
    curvesWereEdited();
}

bool TQController::haveCurve(const ScreenRegistry::Screens& screens, const KVGammaCurve& curve) {
    return std::all_of(screens.begin(), screens.end(), [&curve](const auto& screen) {
        return screen->gammaCurve() &&
               CurrentCurve::valuesOf(*screen->gammaCurve()) == CurrentCurve::valuesOf(curve);
    });
}

// The pause gives the system time to put its calibration back before it is read as the new base.
void TQController::resetGamma() {
    _setControlsEnabled(false);
    _correction.restoreAllGammaCurves();
    _resetTimer = _runLoop.callOnce(resetPause, [this] { _doneReset(); });
}

void TQController::_doneReset() {
    _resetTimer.reset();
    const DisplayBatch batch(_service);
    _history.willEdit(_registry.screens(), resetSubject);
    _history.endStep();
    for (const auto& screen : _registry.screens()) {
        screen->readBaseGamma();
    }
    _setControlsEnabled(true);
    _adoptCurrentCurves();
    curvesWereEdited();
}

void TQController::_adoptCurrentCurves() {
    for (const auto& screen : _registry.screens()) {
        screen->retriveExtendedGammaCurve();
    }
    _updateCurveInPanel();
}

void TQController::undo() {
    const DisplayBatch batch(_service);
    if (_history.undo()) {
        _updateCurveInPanel();
        curvesWereEdited();
    }
}

void TQController::redo() {
    const DisplayBatch batch(_service);
    if (_history.redo()) {
        _updateCurveInPanel();
        curvesWereEdited();
    }
}

void TQController::setSelectedTab(int index) {
    _history.endStep();
    _panel.showTab(index);
    _preferences.setValue(settingsKey::selectedTab, index);
}

void TQController::setAffectsAllScreens(bool affectsAll) {
    _preferences.setValue(settingsKey::affectAllScreens, affectsAll);
    _changeScreen();
}

void TQController::setAdvancedPanel(bool advanced) {
    _preferences.setValue(settingsKey::advancedPanel, advanced);
}

void TQController::setDarkTheme(bool dark) {
    _preferences.setValue(settingsKey::darkTheme, dark);
}

void TQController::setChannelStrip(bool isShown) {
    _preferences.setValue(settingsKey::channelStrip, isShown);
}

void TQController::panelMoved() {
    if (_currentScreens.displayUnderPanel() != _displayUnderPanel) {
        _changeScreen();
    }
}

void TQController::_changeScreen() {
    _history.endStep();
    // What somebody began to type was meant for the display before.
    _controls.revertTyping();
    _displayUnderPanel = _currentScreens.displayUnderPanel();
    _setControlsEnabled(_areControlsEnabled);
    _updateCurveInPanel();
}

void TQController::_setControlsEnabled(bool enabled) {
    _areControlsEnabled = enabled;
    const PanelSubject subject = _currentScreens.subject();
    _shownAffectsAllScreens = subject.isAllDisplays;
    _controls.showSubject(subject);
    _controls._setControlsEnabled(enabled && subject.obstacle.empty());
}

void TQController::_updateCurveInPanel() {
    const auto screens = _currentScreens._currentScreens();
    if (!screens.empty() && screens.front()->gammaCurve()) {
        _currentCurve._setCurrentGammaCurve(*screens.front()->gammaCurve());
    }
    _controls.updatePlot();
}

void TQController::curvesWereEdited() {
    _storage.curvesWereEdited();
    _controls.updatePlot();
    _controls.showUndo(_history.canUndo(), _history.canRedo());
}

std::optional<PlottedCurves> TQController::plottedCurves() {
    const auto screens = _currentScreens._currentScreens();
    if (screens.empty() || !screens.front()->gammaCurve()) {
        return std::nullopt;
    }
    const KVScreen& screen = *screens.front();
    TableCapture capture(screen.baseGamma());
    screen.gammaCurve()->applyToScreen(capture);
    return PlottedCurves{capture.table(), screen.baseGamma().table, screen.baseGamma().sampleCount};
}

}  // namespace tonquil
