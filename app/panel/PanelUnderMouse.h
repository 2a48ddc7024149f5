// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "app/panel/PanelWindow.h"
#include "app/panel/WindowSystem.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Brings the panel to the pointer for as long as a hot key is held, or until it is closed when the
/// key is only tapped. The knob of the shown tab's master slider is then right under the pointer.
///
/// Everything is in pixels of the top-down desktop space.
class PanelUnderMouse {
 public:
    /// A key held longer than this puts everything back when it goes up.
    static constexpr std::chrono::milliseconds longestTap{400};

    struct Surroundings {
        DisplayService& service;
        PanelWindow& panel;
        WindowSystem& windowSystem;
        /// Shows the curve of the display at a point.
        std::function<void(const Point& pointer)> showCurveAt;
        /// Shows the panel where it is.
        std::function<void()> showPanel;
    };
    explicit PanelUnderMouse(Surroundings surroundings) : _(std::move(surroundings)) {}

    /// The key has gone down: shows the panel, or hides it when it was shown.
    ///
    /// `time` is when it did, by the keyboard's own clock, and not when we come to hear of it:
    /// showing the panel may take a busy machine longer than a tap.
    void showPanelAndCenterMouse(std::chrono::milliseconds time);
    /// The key has gone up.
    void showPanelAndCenterMouseRelease(std::chrono::milliseconds time);

    /// Where the knob of a slider is: its fill's end, in the coordinates of `slider.frame`.
    [[nodiscard]] static Point knobCentre(const PanelSliderGeometry& slider);

 private:
    /// What a press has found, and where it has put the pointer.
    struct Press {
        std::chrono::milliseconds initialTimeForPanelHotKey;
        Point initialMouseLocationForPanelHotKey;
        std::optional<Point> modifiedMouseLocationForPanelHotKey;
        Rectangle initialControlWindowRect;
        bool initialControlWindowVisibility = false;
    };

    [[nodiscard]] Rectangle constrained(const Rectangle& frame, const Point& pointer) const;
    void putBack(const Press& press);

    Surroundings _;
    /// There while the key is down.
    std::optional<Press> _press;
};

}  // namespace tonquil
