// SPDX-License-Identifier: MIT
#include "windows/panel/PlotEditing.h"

#include <array>
#include <utility>

#include "app/panel/PanelActions.h"
#include "app/panel/PanelControls.h"
#include "app/panel/PlottedPoint.h"
#include "ui/TQSlider.h"
#include "windows/panel/PanelSliders.h"

namespace tonquil {

PlotEditing::PlotEditing(EditablePlot& plot, const PanelSliders& sliders)
    : _plot(plot), _sliders(sliders) {
    updatePlot();
}

void PlotEditing::setActions(PanelActions& actions, const PanelControls& controls,
                             std::function<void(PanelSlider, bool)> held) {
    _actions = &actions;
    _controls = &controls;
    _plot.setGripChanged(
        [this, held = std::move(held)](const EditablePlot::Grip& grip, bool isHeld) {
            held(panelSliderAt(_tab, grip.channel), isHeld);
        });
    _plot.setDragged([this](const EditablePlot::Grip& grip, double level) { drag(grip, level); });
}

void PlotEditing::drag(const EditablePlot::Grip& grip, double level) const {
    const auto curves = _actions->plottedCurves();
    if (!curves) {
        return;
    }
    const PanelSlider which = panelSliderAt(_tab, grip.channel);
    if (const auto value = valueThrough(level, which, grip.curve, _controls->values(), *curves)) {
        TQSlider& slider = _sliders.slider(which);
        slider.setFloatValue(*value);
        slider.sendAction();
    }
}

void PlotEditing::showTab(int tab) {
    // End a running drag while its target is still the old tab's slider.
    if (tab != _tab) {
        _plot.setDraggablePoint(std::nullopt);
    }
    _tab = tab;
    updatePlot();
}

void PlotEditing::setEnabled(bool enabled) {
    _isEnabled = enabled;
    updatePlot();
}

void PlotEditing::updatePlot() {
    constexpr std::array points{CurvePlot::CurvePoint::Black, CurvePlot::CurvePoint::Middle,
                                CurvePlot::CurvePoint::White};
    _plot.setDraggablePoint(_isEnabled ? std::optional(points.at(static_cast<std::size_t>(_tab)))
                                       : std::nullopt);
}

}  // namespace tonquil
