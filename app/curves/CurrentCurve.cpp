// SPDX-License-Identifier: MIT
#include "app/curves/CurrentCurve.h"

#include <algorithm>

#include "model/KVTableGammaCurve.h"

namespace tonquil {

struct CurrentCurve::ColourSlider {
    PanelSlider slider;
    float RememberedValues::*remembered;
};

// In groups of three: the colours of one point are adjacent.
const std::array<CurrentCurve::ColourSlider, 9> CurrentCurve::colourSliders{{
    {PanelSlider::BlackRed, &RememberedValues::blackRedValue},
    {PanelSlider::BlackGreen, &RememberedValues::blackGreenValue},
    {PanelSlider::BlackBlue, &RememberedValues::blackBlueValue},
    {PanelSlider::MiddleRed, &RememberedValues::middleRedValue},
    {PanelSlider::MiddleGreen, &RememberedValues::middleGreenValue},
    {PanelSlider::MiddleBlue, &RememberedValues::middleBlueValue},
    {PanelSlider::WhiteRed, &RememberedValues::whiteRedValue},
    {PanelSlider::WhiteGreen, &RememberedValues::whiteGreenValue},
    {PanelSlider::WhiteBlue, &RememberedValues::whiteBlueValue},
}};

std::shared_ptr<TQExtendedGammaCurve> CurrentCurve::_currentGammaCurve() {
    const PanelValues values = _controls.values();
    for (const ColourSlider& colour : colourSliders) {
        _remembered.*colour.remembered = values[colour.slider];
    }
    const RememberedValues& r = _remembered;
    return TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        values[PanelSlider::MasterBlack], values[PanelSlider::MasterMiddle],
        values[PanelSlider::MasterWhite],
        KVGammaPoint::gammaPointWithRed(r.blackRedValue, r.blackGreenValue, r.blackBlueValue),
        KVGammaPoint::gammaPointWithRed(r.middleRedValue, r.middleGreenValue, r.middleBlueValue),
        KVGammaPoint::gammaPointWithRed(r.whiteRedValue, r.whiteGreenValue, r.whiteBlueValue),
        values.blendingMode);
}

PanelValues CurrentCurve::valuesOf(const KVGammaCurve& curve) {
    const KVGammaPoint& black = *curve.blackPoint();
    const KVGammaPoint& middle = *curve.middlePoint();
    const KVGammaPoint& white = *curve.whitePoint();
    PanelValues values;
    values.sliders = {
        curve.masterBlackCorrection(),
        curve.masterMiddleCorrection(),
        curve.masterWhiteCorrection(),
        black.redValue(),
        black.greenValue(),
        black.blueValue(),
        middle.redValue(),
        middle.greenValue(),
        middle.blueValue(),
        white.redValue(),
        white.greenValue(),
        white.blueValue(),
    };
    // A table takes the calibration's place, whatever its unused mode says.
    const bool isTable = dynamic_cast<const KVTableGammaCurve*>(&curve) != nullptr;
    values.blendingMode = isTable ? KVBlendingModeAbsolute : curve.blendingMode();
    return values;
}

void CurrentCurve::_setCurrentGammaCurve(const KVGammaCurve& curve) {
    _controls.setValues(valuesOf(curve));
    _controls.updateTouchBarSlider();
    // Called only to remember the values.
    static_cast<void>(_currentGammaCurve());
}

void CurrentCurve::moveLinkedSliders(PanelSlider sender) {
    const auto* const found =
        std::find_if(colourSliders.begin(), colourSliders.end(),
                     [=](const auto& colour) { return colour.slider == sender; });
    if (found == colourSliders.end()) {
        return;
    }
    const float delta = _controls.values()[sender] - _remembered.*found->remembered;
    const auto index = found - colourSliders.begin();
    const auto first = index - index % 3;
    for (auto other = first; other < first + 3; ++other) {
        if (other != index) {
            const ColourSlider& linked = colourSliders.at(static_cast<std::size_t>(other));
            _controls.setSlider(linked.slider, _remembered.*linked.remembered + delta);
        }
    }
}

}  // namespace tonquil
