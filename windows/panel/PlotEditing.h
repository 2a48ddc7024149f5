// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/panel/PanelValues.h"
#include "ui/EditablePlot.h"

namespace tonquil {

class PanelActions;
class PanelControls;
class PanelSliders;

/// Makes the plot's points stand for the sliders of the selected tab: dragging one moves its
/// slider, and all else follows from that.
class PlotEditing {
 public:
    /// Both must outlive this.
    PlotEditing(EditablePlot& plot, const PanelSliders& sliders);

    /// Set before the plot is shown. `held` is called with the slider whose point is grabbed or let
    /// go, and all must outlive the plot's use.
    void setActions(PanelActions& actions, const PanelControls& controls,
                    std::function<void(PanelSlider, bool isHeld)> held);
    void showTab(int tab);
    void setEnabled(bool enabled);

 private:
    void drag(const EditablePlot::Grip& grip, double level) const;
    void updatePlot();

    EditablePlot& _plot;
    const PanelSliders& _sliders;
    PanelActions* _actions = nullptr;
    const PanelControls* _controls = nullptr;
    int _tab = 1;
    bool _isEnabled = true;
};

}  // namespace tonquil
