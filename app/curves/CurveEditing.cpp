// SPDX-License-Identifier: MIT
#include "app/curves/CurveEditing.h"

#include <algorithm>

#include "app/preferences/SettingsKeys.h"
#include "model/CurveFit.h"

namespace tonquil {

namespace {

constexpr std::chrono::milliseconds resetPause{500};
// Separates two slider drags of a companion, which does not report the end of a drag.
constexpr std::chrono::seconds pauseFromAfar{1};

/// The table that a screen has instead of a curve; null if it has a curve.
std::shared_ptr<KVTableGammaCurve> tableOn(const KVScreen& screen) {
    return std::dynamic_pointer_cast<KVTableGammaCurve>(screen.gammaCurve());
}

/// Whether each of the screens already has a curve with these values. A table has none, whatever
/// its unused points say.
bool haveCurve(const ScreenRegistry::Screens& screens, const KVGammaCurve& curve) {
    return std::ranges::all_of(screens, [&curve](const auto& screen) {
        return screen->gammaCurve() && !tableOn(*screen) &&
               CurrentCurve::valuesOf(*screen->gammaCurve()) == CurrentCurve::valuesOf(curve);
    });
}

}  // namespace

void CurveEditing::applyGamma(PanelSlider sender, bool isLinked) {
    // Edits go to the display that the panel names, even if its frame moved in between.
    _with.view.panelMoved();
    const DisplayBatch batch(_with.service);
    if (isLinked) {
        _with.currentCurve.moveLinkedSliders(sender);
    }
    _with.controls.updateTouchBarSlider();
    replaceCurves(static_cast<int>(sender));
    _with.view._updateCurveInPanel();
}

// With a slider, the hint of the first start goes only now: what is below it must not move under
// the pointer during a drag.
void CurveEditing::endEdit() {
    _with.history.endStep();
    if (_with.history.canUndo()) {
        rememberFirstEdit();
    }
}

void CurveEditing::rememberFirstEdit() {
    if (!_with.preferences.boolForKey(settingsKey::hasEdited)) {
        _with.preferences.setValue(settingsKey::hasEdited, true);
    }
}

void CurveEditing::changeBlendingMode() {
    const DisplayBatch batch(_with.service);
    _with.history.endStep();
    replaceCurves(editSubject::blendingMode);
    _with.history.endStep();
}

// Unchanged values are still sent, because the ramp may have been replaced; but turning the wheel
// at the end of a slider's range must not add an undo step.
void CurveEditing::replaceCurves(int subject) {
    const auto screens = _with.currentScreens._currentScreens();
    const auto curve = _with.currentCurve._currentGammaCurve();
    _with.controls.selectBlendingMode(curve->blendingMode());
    const bool isEdit = !haveCurve(screens, *curve);
    if (isEdit) {
        _with.history.willEdit(screens, subject);
    }
    for (const auto& screen : screens) {
        screen->setGammaCurve(curve);
    }
    if (isEdit) {
        curvesWereEdited();
    }
}

void CurveEditing::adoptCurve(const KVGammaCurve& curve) {
    const DisplayBatch batch(_with.service);
    _with.history.endStep();
    _with.currentCurve._setCurrentGammaCurve(curve);
    replaceCurves(editSubject::openedFile);
    _with.history.endStep();
    _with.view._updateCurveInPanel();
}

Result<void> CurveEditing::takeCurves(const HandedCurves& curves) {
    ScreenRegistry::Screens screens;
    for (const auto& [connector, curve] : curves) {
        const auto& attached = _with.registry.screens();
        const auto found = std::ranges::find_if(
            attached, [&name = connector](const auto& screen) { return screen->isNamed(name); });
        if (found == attached.end()) {
            return problem("Tonquil sees no display at " + connector + ".");
        }
        screens.push_back(*found);
    }
    willEdit(screens, editSubject::openedFile);
    auto screen = screens.begin();
    for (const auto& [connector, curve] : curves) {
        (*screen++)->setGammaCurve(curve);
    }
    curvesWereEdited();
    _with.view._updateCurveInPanel();
    return {};
}

// A table is put on the displays and then immediately replaced by the curve read back from them;
// what remains is the undo step.
void CurveEditing::adoptTable(const std::shared_ptr<KVGammaCurve>& table) {
    const DisplayBatch batch(_with.service);
    willEdit(_with.registry.screens(), editSubject::openedFile);
    for (const auto& screen : _with.currentScreens._currentScreens()) {
        screen->setGammaCurve(table);
    }
    _adoptCurrentCurves();
    curvesWereEdited();
}

void CurveEditing::keepTable(const std::shared_ptr<KVTableGammaCurve>& table) {
    const DisplayBatch batch(_with.service);
    const auto screens = _with.currentScreens._currentScreens();
    const bool isEdit = !std::ranges::all_of(screens, [&table](const auto& screen) {
        const auto present = tableOn(*screen);
        return present && haveSameBits(present->table(), table->table());
    });
    if (isEdit) {
        willEdit(screens, editSubject::openedFile);
    }
    for (const auto& screen : screens) {
        screen->setGammaCurve(table);
    }
    if (isEdit) {
        curvesWereEdited();
    }
    _with.view._updateCurveInPanel();
}

bool CurveEditing::hasTable() {
    return std::ranges::any_of(_with.currentScreens._currentScreens(),
                               [](const auto& screen) { return tableOn(*screen) != nullptr; });
}

std::optional<float> CurveEditing::makeEditable() {
    if (!hasTable()) {
        return std::nullopt;
    }
    const DisplayBatch batch(_with.service);
    const auto screens = _with.currentScreens._currentScreens();
    willEdit(screens, editSubject::madeEditable);
    float largest = 0;
    for (const auto& screen : screens) {
        if (const auto table = tableOn(*screen)) {
            const CurveFit fit = fitCurve(table->table());
            screen->setGammaCurve(fit.curve);
            largest = std::max(largest, fit.largestDifference);
        }
    }
    curvesWereEdited();
    _with.view._updateCurveInPanel();
    return largest;
}

// The pause gives the system time to restore its calibration before it is read as the new base.
void CurveEditing::resetGamma() {
    _with.view._setControlsEnabled(false);
    _with.correction.restoreAllGammaCurves();
    _resetTimer = _with.runLoop.callOnce(resetPause, [this] { _doneReset(); });
}

void CurveEditing::_doneReset() {
    _resetTimer.reset();
    const DisplayBatch batch(_with.service);
    willEdit(_with.registry.screens(), editSubject::reset);
    for (const auto& screen : _with.registry.screens()) {
        screen->readBaseGamma();
    }
    _with.view._setControlsEnabled(true);
    _adoptCurrentCurves();
    curvesWereEdited();
}

void CurveEditing::_adoptCurrentCurves() {
    for (const auto& screen : _with.registry.screens()) {
        screen->retriveExtendedGammaCurve();
    }
    _with.view._updateCurveInPanel();
}

void CurveEditing::undo() {
    const DisplayBatch batch(_with.service);
    if (_with.history.undo()) {
        _with.view._updateCurveInPanel();
        curvesWereEdited();
    }
}

void CurveEditing::redo() {
    const DisplayBatch batch(_with.service);
    if (_with.history.redo()) {
        _with.view._updateCurveInPanel();
        curvesWereEdited();
    }
}

void CurveEditing::willEdit(const ScreenRegistry::Screens& screens, int subject) {
    _with.history.endStep();
    _with.history.willEdit(screens, subject);
    _with.history.endStep();
}

// One step covers all displays, because one slider of a companion may move several, each with its
// own datagram.
void CurveEditing::willEditFromAfar() {
    const auto now = _with.runLoop.now();
    if (now - _lastFromAfar >= pauseFromAfar) {
        _with.history.endStep();
    }
    _lastFromAfar = now;
    _with.history.willEdit(_with.registry.screens(), editSubject::remote);
}

void CurveEditing::curvesWereEdited() {
    _with.storage.curvesWereEdited();
    if (_with.history.lastSubject() >= editSubject::blendingMode) {
        rememberFirstEdit();
    }
    _with.controls.updatePlot();
    _with.controls.showUndo(_with.history.canUndo(), _with.history.canRedo());
}

}  // namespace tonquil
