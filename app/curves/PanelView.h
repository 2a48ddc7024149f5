// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/curves/CurrentCurve.h"
#include "app/curves/CurrentScreens.h"
#include "app/curves/EditHistory.h"
#include "app/panel/PanelActions.h"
#include "app/panel/PanelControls.h"

namespace tonquil {

/// What the panel shows: the displays that it edits, their curve, and whether its controls can
/// change anything there.
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

    /// Shows the curve that the first of the current displays holds.
    void _updateCurveInPanel();
    /// Shows the curve of the display at a point of the desktop, if there is one.
    void showCurveAt(const Point& point);
    /// Follows the panel onto another display; does nothing while it stays on the same one.
    void panelMoved();
    /// The panel edits other displays now, or the same ones have changed.
    void _changeScreen();
    /// Enables the controls, except where there is nothing that they could change.
    void _setControlsEnabled(bool enabled);
    /// To be called once the panel's window is in place.
    void rememberDisplay() { _displayUnderPanel = _with.currentScreens.displayUnderPanel(); }
    /// Whether the panel says that it edits all displays.
    [[nodiscard]] bool showsAllScreens() const { return _showsAllScreens; }
    /// What the plot draws; nothing where there is no display to show.
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() const;

 private:
    Surroundings _with;
    std::optional<DisplayID> _displayUnderPanel;
    bool _showsAllScreens = false;
    bool _areControlsEnabled = false;
};

}  // namespace tonquil
