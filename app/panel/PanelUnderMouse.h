// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "app/panel/PanelWindow.h"
#include "app/panel/WindowSystem.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Shows the panel at the pointer while a hot key is held or, after a short tap, until it is
/// closed. The knob of the shown tab's master slider is then under the pointer. Where the pointer
/// cannot be located, the panel appears where it is, and the pointer stays where it is.
///
/// Everything is in pixels of top-down desktop space.
class PanelUnderMouse {
 public:
    /// If the key is held longer than this, its release restores everything.
    static constexpr std::chrono::milliseconds longestTap{400};

    struct Surroundings {
        DisplayService& service;
        PanelWindow& panel;
        WindowSystem& windowSystem;
        /// Shows the curve of the display at a position.
        std::function<void(const Point& pointer)> showCurveAt;
        /// Shows the panel at its current position.
        std::function<void()> showPanel;
    };
    explicit PanelUnderMouse(Surroundings surroundings) : _(std::move(surroundings)) {}

    /// Key press: shows the panel, or hides it if it was shown.
    ///
    /// `time` is the keyboard's own event time, not the time of this call: showing the panel can
    /// take longer than a tap on a busy machine.
    void showPanelAndCenterMouse(std::chrono::milliseconds time);
    /// Key release.
    void showPanelAndCenterMouseRelease(std::chrono::milliseconds time);

    /// The centre of a slider's knob: the end of its filled part, in the coordinates of
    /// `slider.frame`.
    [[nodiscard]] static Point knobCentre(const PanelSliderGeometry& slider);

 private:
    /// The state found at a key press, and where the pointer was moved.
    struct Press {
        std::chrono::milliseconds initialTimeForPanelHotKey;
        std::optional<Point> initialMouseLocationForPanelHotKey;
        std::optional<Point> modifiedMouseLocationForPanelHotKey;
        Rectangle initialControlWindowRect;
        bool initialControlWindowVisibility = false;
    };

    [[nodiscard]] Rectangle constrained(const Rectangle& frame, const Point& pointer) const;
    void showAt(const Point& pointer);
    void putBack(const Press& press);

    Surroundings _;
    /// Set while the key is down.
    std::optional<Press> _press;
};

}  // namespace tonquil
