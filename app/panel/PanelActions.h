// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "app/panel/PanelValues.h"
#include "model/GammaTable.h"

namespace tonquil {

/// The transfer curves that the panel draws.
struct PlottedCurves {
    /// What the current curve makes.
    GammaTable result;
    /// The display's own calibration.
    GammaTable base;
    /// How many slots of each channel count, in both.
    std::uint32_t sampleCount = 0;
};

/// What a person does in the panel.
class PanelActions {
 public:
    virtual ~PanelActions() = default;

    /// A slider was moved, by any means. `isLinked` while Shift is held: the other colours of the
    /// same point follow.
    virtual void applyGamma(PanelSlider sender, bool isLinked) = 0;
    /// A drag or a run of steps has ended: the next edit is one of its own to undo.
    virtual void endEdit() = 0;
    virtual void changeBlendingMode() = 0;
    virtual void changeApplyCorrection(bool isOn) = 0;
    virtual void resetGamma() = 0;
    /// The person chose a tab, 0 to 2.
    virtual void setSelectedTab(int index) = 0;
    virtual void setAffectsAllScreens(bool affectsAll) = 0;
    virtual void setAdvancedPanel(bool advanced) = 0;
    virtual void setDarkTheme(bool dark) = 0;
    virtual void setChannelStrip(bool isShown) = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// The panel has moved or was resized.
    virtual void panelMoved() = 0;
    /// Nothing where there is no display to show.
    [[nodiscard]] virtual std::optional<PlottedCurves> plottedCurves() = 0;
    virtual void openTargetWindow() = 0;
    virtual void openPreferences() = 0;
    virtual void openAboutBox() = 0;
    virtual void openWebSite() = 0;
    virtual void gammaBoardInfo() = 0;
    virtual void loadGamma() = 0;
    virtual void saveGamma() = 0;
    virtual void openFile(const std::filesystem::path& file) = 0;
    /// The settings files to offer, newest first.
    [[nodiscard]] virtual std::vector<std::filesystem::path> recentFiles() const = 0;
    virtual void quit() = 0;
};

}  // namespace tonquil
