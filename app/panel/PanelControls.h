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
    /// Why nothing can be edited, as a sentence and key of the context "Problem"; empty when it
    /// can.
    std::string obstacle;

    bool operator==(const PanelSubject&) const = default;
};

/// The controls of the panel, as the controller sees them. Setting one is not an edit: it calls
/// nothing back.
class PanelControls {
 public:
    virtual ~PanelControls() = default;

    [[nodiscard]] virtual PanelValues values() const = 0;
    /// Sets sliders, number fields and blending mode. A slider whose range ends before its value
    /// is given the room.
    virtual void setValues(const PanelValues& values) = 0;
    /// Takes back what was typed into a number field and not committed.
    virtual void revertTyping() = 0;
    /// Moves one slider, which stays within its range.
    virtual void setSlider(PanelSlider slider, float value) = 0;
    /// Shows no mode where the panel does not know `blendingMode`.
    virtual void selectBlendingMode(std::int32_t blendingMode) = 0;
    /// Brings the channel strip in line with the slider that it stands for.
    virtual void updateTouchBarSlider() = 0;
    virtual void _setControlsEnabled(bool enabled) = 0;
    virtual void showCorrection(bool isOn) = 0;
    virtual void showSubject(const PanelSubject& subject) = 0;
    /// The curves that the plot shows have changed; it asks for them when it is drawn.
    virtual void updatePlot() = 0;
    virtual void showUndo(bool canUndo, bool canRedo) = 0;
};

}  // namespace tonquil
