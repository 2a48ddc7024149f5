// SPDX-License-Identifier: MIT
#include "app/curves/PanelView.h"

#include "app/curves/TableCapture.h"

namespace tonquil {

void PanelView::_updateCurveInPanel() {
    const auto screens = _with.currentScreens._currentScreens();
    if (!screens.empty() && screens.front()->gammaCurve()) {
        _with.currentCurve._setCurrentGammaCurve(*screens.front()->gammaCurve());
    }
    _with.controls.updatePlot();
}

void PanelView::showCurveAt(const Point& point) {
    const auto displays = _with.service.displaysWithPoint(point, 1);
    if (displays.empty()) {
        return;
    }
    const auto screen = _with.registry.screenWithDirectDisplayID(displays.front());
    if (screen->gammaCurve()) {
        _with.currentCurve._setCurrentGammaCurve(*screen->gammaCurve());
    }
}

void PanelView::panelMoved() {
    if (_with.currentScreens.displayUnderPanel() != _displayUnderPanel) {
        _changeScreen();
    }
}

void PanelView::_changeScreen() {
    _with.history.endStep();
    // Uncommitted typing was meant for the previous display, and so was a drag.
    _with.controls.revertTyping();
    const auto before = _displayUnderPanel;
    rememberDisplay();
    if (_displayUnderPanel != before) {
        _with.controls.letGo();
    }
    _setControlsEnabled(_areControlsEnabled);
    _updateCurveInPanel();
}

void PanelView::_setControlsEnabled(bool enabled) {
    _areControlsEnabled = enabled;
    const PanelSubject subject = _with.currentScreens.subject();
    _showsAllScreens = subject.isAllDisplays;
    _with.controls.showSubject(subject);
    _with.controls._setControlsEnabled(enabled && subject.obstacle.empty());
}

std::optional<PlottedCurves> PanelView::plottedCurves() const {
    const auto screens = _with.currentScreens._currentScreens();
    if (screens.empty() || !screens.front()->gammaCurve()) {
        return std::nullopt;
    }
    const KVScreen& screen = *screens.front();
    TableCapture capture(screen.baseGamma());
    screen.gammaCurve()->applyToScreen(capture);
    return PlottedCurves{capture.table(), screen.baseGamma().table, screen.baseGamma().sampleCount};
}

}  // namespace tonquil
