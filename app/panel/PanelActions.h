// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/panel/PanelValues.h"
#include "model/GammaTable.h"
#include "screens/DisplayIdentity.h"

namespace tonquil {

/// The transfer curves that the panel draws.
struct PlottedCurves {
    /// The table from the current curve.
    GammaTable result;
    /// The display's own calibration.
    GammaTable base;
    /// How many slots of each channel are valid, in both.
    std::uint32_t sampleCount = 0;
};

/// A display that the panel could edit.
struct PanelDisplay {
    DisplayID display = 0;
    /// "DP-1 · Dell U2720Q".
    std::string title;
    bool isUnderPanel = false;
};

/// A preset in the menus.
struct PresetEntry {
    std::string name;
    /// Why it cannot be chosen; the fields of a `Problem` that are needed to translate it. Empty if
    /// it can.
    std::string problemKey;
    std::vector<std::string> problemArguments;
};

/// User actions in the panel and in the tray.
class PanelActions {
 public:
    virtual ~PanelActions() = default;

    /// A slider moved, by any means. `isLinked` while Shift is held: the other colours of the same
    /// point follow.
    virtual void applyGamma(PanelSlider sender, bool isLinked) = 0;
    /// A drag or a series of steps ended: the next edit is a new undo step.
    virtual void endEdit() = 0;
    virtual void changeBlendingMode() = 0;
    virtual void changeApplyCorrection(bool isOn) = 0;
    virtual void toggleApplyCorrection() = 0;
    /// While held, all displays show their own calibration; letting go brings the curves back.
    virtual void compare(bool isHeld) = 0;
    virtual void resetGamma() = 0;
    /// The user chose a tab, 0 to 2.
    virtual void setSelectedTab(int index) = 0;
    virtual void setAffectsAllScreens(bool affectsAll) = 0;
    /// In the display service's order.
    [[nodiscard]] virtual std::vector<PanelDisplay> displays() = 0;
    /// Moves the panel to a display, to edit that one alone.
    virtual void editDisplay(DisplayID display) = 0;
    /// Shows on each display for a moment which one it is.
    virtual void identifyDisplays() = 0;
    virtual void setAdvancedPanel(bool advanced) = 0;
    virtual void setDarkTheme(bool dark) = 0;
    virtual void setChannelStrip(bool isShown) = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Shows the panel, or hides it if it is in sight.
    virtual void togglePanel() = 0;
    /// The panel was moved or resized.
    virtual void panelMoved() = 0;
    /// Nothing if there is no display to show.
    [[nodiscard]] virtual std::optional<PlottedCurves> plottedCurves() = 0;
    virtual void openTargetWindow() = 0;
    virtual void openPreferences() = 0;
    virtual void openAboutBox() = 0;
    virtual void openWebSite() = 0;
    virtual void gammaBoardInfo() = 0;
    virtual void loadGamma() = 0;
    virtual void saveGamma() = 0;
    virtual void openFile(const std::filesystem::path& file) = 0;
    /// The settings files for the menu, newest first.
    [[nodiscard]] virtual std::vector<std::filesystem::path> recentFiles() const = 0;
    /// In order of name; reads their files.
    [[nodiscard]] virtual std::vector<PresetEntry> presets() const = 0;
    virtual void openPreset(const std::string& name) = 0;
    virtual void savePreset() = 0;
    /// Whether a display that the panel edits has a table, on which the sliders cannot work.
    [[nodiscard]] virtual bool canMakeEditable() = 0;
    /// Replaces such tables by the curves that come closest to them.
    virtual void makeEditable() = 0;
    virtual void quit() = 0;
};

}  // namespace tonquil
