// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/curves/CurrentCurve.h"
#include "app/curves/CurrentScreens.h"
#include "app/curves/EditHistory.h"
#include "app/panel/PanelActions.h"
#include "app/panel/PanelControls.h"

namespace tonquil {

/// Updates what the panel shows: which displays it edits, their curve, and whether the controls are
/// enabled.
class PanelView {
 public:
    struct Surroundings {
        DisplayService& service;
        ScreenRegistry& registry;
        PanelControls& controls;
        CurrentScreens& currentScreens;
        CurrentCurve& currentCurve;
        EditHistory& history;
    };

    explicit PanelView(const Surroundings& surroundings) : _with(surroundings) {}

    /// Shows the curve of the first current display.
    void _updateCurveInPanel();
    /// Shows the curve of the display at a desktop position, if there is one.
    void showCurveAt(const Point& point);
    /// Follows the panel to another display; does nothing while it stays on the same one.
    void panelMoved();
    /// Call it when the panel edits other displays, or the same ones changed.
    void _changeScreen();
    /// Enables the controls, unless no display can be edited.
    void _setControlsEnabled(bool enabled);
    /// Call it once the panel's window is in place.
    void rememberDisplay() { _displayUnderPanel = _with.currentScreens.displayUnderPanel(); }
    /// Whether the panel shows that it edits all displays.
    [[nodiscard]] bool showsAllScreens() const { return _showsAllScreens; }
    /// The curves for the plot; nothing if there is no display to show.
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() const;

 private:
    Surroundings _with;
    std::optional<DisplayID> _displayUnderPanel;
    bool _showsAllScreens = false;
    bool _areControlsEnabled = false;
};

}  // namespace tonquil
