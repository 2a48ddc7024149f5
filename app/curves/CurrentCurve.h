// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/panel/PanelControls.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

/// Converts between the panel's controls and a curve.
class CurrentCurve {
 public:
    explicit CurrentCurve(PanelControls& controls) : _controls(controls) {}

    /// Builds a new curve from the controls. Remembers the colour sliders' values for linked
    /// editing.
    [[nodiscard]] std::shared_ptr<TQExtendedGammaCurve> _currentGammaCurve();
    /// Shows a curve in the controls.
    void _setCurrentGammaCurve(const KVGammaCurve& curve);
    /// The control values that represent a curve.
    [[nodiscard]] static PanelValues valuesOf(const KVGammaCurve& curve);
    /// Moves the other two colour sliders of the sender's point by as much as the sender moved,
    /// each relative to its remembered value. Master sliders are never linked.
    void moveLinkedSliders(PanelSlider sender);

 private:
    /// The colour sliders' values from when the last curve was built.
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
