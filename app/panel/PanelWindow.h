// SPDX-License-Identifier: MIT
#pragma once

#include "screens/Geometry.h"

namespace tonquil {

/// Where a slider of the panel is, and where it stands.
struct PanelSliderGeometry {
    /// In pixels from the panel's upper left corner.
    Rectangle frame;
    double value = 0;
    double minimum = 0;
    double maximum = 1;
    /// Pixels of a point.
    double scale = 1;
};

/// The panel as a window, as the controller sees it. All coordinates are pixels of the top-down
/// desktop space, whatever the desktop's scale.
class PanelWindow {
 public:
    virtual ~PanelWindow() = default;

    [[nodiscard]] virtual Rectangle frame() const = 0;
    /// Moves the panel; its size follows from its form.
    virtual void setFrameOrigin(const Point& origin) = 0;
    /// Shows the panel, in front and with the keyboard.
    virtual void makeKeyAndOrderFront() = 0;
    /// Hides the panel.
    virtual void orderOut() = 0;
    [[nodiscard]] virtual bool isOrderedIn() const = 0;
    /// Whether the panel is shown on the workspace that the person is at.
    [[nodiscard]] virtual bool isOnActiveWorkspace() const = 0;
    [[nodiscard]] virtual PanelSliderGeometry masterSliderOfSelectedTab() const = 0;
    /// The form with all sliders, or the compact one; the upper edge stays where it is.
    virtual void _setAdvancedPanel(bool advanced) = 0;
    virtual void _setDarkTheme(bool dark) = 0;
    virtual void showChannelStrip(bool isShown) = 0;
    /// Shows a tab, 0 to 2, everywhere that tabs are shown. The choice is not told back.
    virtual void showTab(int index) = 0;
    /// Says that companions on the network may change the displays.
    virtual void showRemoteConfiguration(bool isOn) = 0;
    /// Puts the focus on the number field of the shown tab's master slider.
    virtual void focusMasterOfSelectedTab() = 0;
    /// Tells the controller from now on of every change of the focused control.
    virtual void observeFirstResponder() = 0;
};

}  // namespace tonquil
