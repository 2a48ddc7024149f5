// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/panel/PanelValues.h"

namespace tonquil {

/// What the panel says about the displays that it edits.
struct PanelSubject {
    /// "DP-1 · Dell U2720Q", or, as a key of the context "PanelSubject", "All displays".
    std::string title;
    bool isAllDisplays = false;
    /// Why nothing can be edited, as a sentence and key of the context "Problem"; empty if editing
    /// is possible.
    std::string obstacle;
    /// What the user can do about that, likewise; may be empty.
    std::string remedy = {};

    bool operator==(const PanelSubject&) const = default;
};

/// The controls of the panel. Setting one is not an edit and triggers no callback.
class PanelControls {
 public:
    virtual ~PanelControls() = default;

    [[nodiscard]] virtual PanelValues values() const = 0;
    /// Sets sliders, number fields and blending mode. A slider whose range is too small for its
    /// value is extended.
    virtual void setValues(const PanelValues& values) = 0;
    /// Discards uncommitted text in a number field.
    virtual void revertTyping() = 0;
    /// Ends a drag of a slider or of the plot although the pointer's button is down.
    virtual void letGo() = 0;
    /// Moves one slider, clamped to its range.
    virtual void setSlider(PanelSlider slider, float value) = 0;
    /// Shows no mode if the panel does not know `blendingMode`.
    virtual void selectBlendingMode(std::int32_t blendingMode) = 0;
    /// Updates the channel strip to match the slider that it represents.
    virtual void updateTouchBarSlider() = 0;
    virtual void _setControlsEnabled(bool enabled) = 0;
    virtual void showCorrection(bool isOn) = 0;
    virtual void showSubject(const PanelSubject& subject) = 0;
    /// The plotted curves changed; the plot asks for them when it is painted.
    virtual void updatePlot() = 0;
    virtual void showUndo(bool canUndo, bool canRedo) = 0;
};

}  // namespace tonquil
