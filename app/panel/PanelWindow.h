// SPDX-License-Identifier: MIT
#pragma once

#include "screens/Geometry.h"

namespace tonquil {

/// Position and value of a panel slider.
struct PanelSliderGeometry {
    /// In pixels from the panel's upper left corner.
    Rectangle frame;
    double value = 0;
    double minimum = 0;
    double maximum = 1;
    /// Pixels per point.
    double scale = 1;
};

/// The panel's window. All coordinates are pixels of top-down desktop space, independent of the
/// desktop's scale.
class PanelWindow {
 public:
    virtual ~PanelWindow() = default;

    /// Whether the desktop alone decides where the panel is.
    [[nodiscard]] virtual bool isPlacedByDesktop() const { return false; }
    /// Where the desktop places the panel, only the display that it is on is right, and the size.
    [[nodiscard]] virtual Rectangle frame() const = 0;
    /// Moves the panel, unless the desktop places it; its size depends on its form.
    virtual void setFrameOrigin(const Point& origin) = 0;
    /// Shows the panel in front, with keyboard focus.
    virtual void makeKeyAndOrderFront() = 0;
    virtual void orderOut() = 0;
    [[nodiscard]] virtual bool isOrderedIn() const = 0;
    /// Whether the panel is shown on the current workspace.
    [[nodiscard]] virtual bool isOnActiveWorkspace() const = 0;
    [[nodiscard]] virtual PanelSliderGeometry masterSliderOfSelectedTab() const = 0;
    /// Switches between the form with all sliders and the compact one; the upper edge stays in
    /// place.
    virtual void _setAdvancedPanel(bool advanced) = 0;
    virtual void _setDarkTheme(bool dark) = 0;
    virtual void showChannelStrip(bool isShown) = 0;
    /// What the program does and what to do first, for people who have not edited yet.
    virtual void showFirstHint(bool isShown) = 0;
    /// Shows a tab, 0 to 2, everywhere that tabs are shown. Triggers no callback.
    virtual void showTab(int index) = 0;
    /// Shows that companions on the network may change the displays.
    virtual void showRemoteConfiguration(bool isOn) = 0;
    /// Focuses the number field of the shown tab's master slider.
    virtual void focusMasterOfSelectedTab() = 0;
    /// Starts reporting focus changes to the controller.
    virtual void observeFirstResponder() = 0;
};

}  // namespace tonquil
