// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/panel/PanelControls.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

/// The curve that the panel's controls stand for.
class CurrentCurve {
 public:
    explicit CurrentCurve(PanelControls& controls) : _controls(controls) {}

    /// A new curve from the controls. Remembers the colour sliders' values for linked editing.
    [[nodiscard]] std::shared_ptr<TQExtendedGammaCurve> _currentGammaCurve();
    /// Shows a curve in the controls.
    void _setCurrentGammaCurve(const KVGammaCurve& curve);
    /// What the controls stand at when they show a curve.
    [[nodiscard]] static PanelValues valuesOf(const KVGammaCurve& curve);
    /// Moves the other two colour sliders of the sender's point as far from their remembered
    /// values as the sender has come from its own. Master sliders are never linked.
    void moveLinkedSliders(PanelSlider sender);

 private:
    /// The colour sliders' values when the last curve was built.
    struct RememberedValues {
        float blackRedValue = 0;
        float blackGreenValue = 0;
        float blackBlueValue = 0;
        float middleRedValue = 0;
        float middleGreenValue = 0;
        float middleBlueValue = 0;
        float whiteRedValue = 0;
        float whiteGreenValue = 0;
        float whiteBlueValue = 0;
    };
    struct ColourSlider;
    static const std::array<ColourSlider, 9> colourSliders;

    PanelControls& _controls;
    RememberedValues _remembered;
};

}  // namespace tonquil
