// SPDX-License-Identifier: MIT
#include "app/panel/PanelUnderMouse.h"

#include <cmath>
#include <utility>

#include "app/panel/PanelFrame.h"

namespace tonquil {

using std::chrono::milliseconds;

namespace {

// Slider geometry: the distance of the bar's ends from the slider's sides, in points, and the
// height of the knob's centre above the lower edge, as a fraction of the slider's height.
constexpr double barMargin = 7;
constexpr double knobHeight = 0.3;

Point rounded(const Point& point) {
    return {std::round(point.x), std::round(point.y)};
}

}  // namespace

Point PanelUnderMouse::knobCentre(const PanelSliderGeometry& slider) {
    const Rectangle& frame = slider.frame;
    const double margin = barMargin * slider.scale;
    const double fraction = (slider.value - slider.minimum) / (slider.maximum - slider.minimum);
    return {frame.x + margin + fraction * (frame.width - 2 * margin),
            frame.y + (1 - knobHeight) * frame.height};
}

Rectangle PanelUnderMouse::constrained(const Rectangle& frame, const Point& pointer) const {
    const auto displays = _.service.displaysWithPoint(pointer, 1);
    return displays.empty() ? frame : keptInside(frame, _.service.bounds(displays.front()));
}

void PanelUnderMouse::showPanelAndCenterMouse(milliseconds time) {
    if (_.panel.isOrderedIn() && _.panel.isOnActiveWorkspace()) {
        _.panel.orderOut();
        return;
    }
    const auto pointer = _.windowSystem.pointerLocation();
    if (pointer) {
        _.showCurveAt(*pointer);
    }
    _press = Press{.initialTimeForPanelHotKey = time,
                   .initialMouseLocationForPanelHotKey = pointer,
                   .modifiedMouseLocationForPanelHotKey = {},
                   .initialControlWindowRect = _.panel.frame(),
                   .initialControlWindowVisibility = _.panel.isOrderedIn()};
    if (pointer) {
        showAt(*pointer);
    } else {
        _.showPanel();
    }
}

void PanelUnderMouse::showAt(const Point& pointer) {
    const Point knob = knobCentre(_.panel.masterSliderOfSelectedTab());
    Rectangle frame = _.panel.frame();
    const Point origin = rounded({pointer.x - knob.x, pointer.y - knob.y});
    frame.x = origin.x;
    frame.y = origin.y;
    frame = constrained(frame, pointer);
    _.panel.setFrameOrigin({frame.x, frame.y});
    _.showPanel();
    // The window manager may have moved the panel; the pointer goes to the knob's actual position.
    const Rectangle placed = _.panel.frame();
    _.service.warpPointer(rounded({placed.x + knob.x, placed.y + knob.y}));
    _press->modifiedMouseLocationForPanelHotKey = _.windowSystem.pointerLocation();
}

void PanelUnderMouse::showPanelAndCenterMouseRelease(milliseconds time) {
    const auto press = std::exchange(_press, std::nullopt);
    if (!press) {
        return;
    }
    if (time - press->initialTimeForPanelHotKey > longestTap) {
        putBack(*press);
    }
}

void PanelUnderMouse::putBack(const Press& press) {
    // If the user has moved the pointer, leave it there.
    const auto& pointer = press.initialMouseLocationForPanelHotKey;
    if (pointer && _.windowSystem.pointerLocation() == press.modifiedMouseLocationForPanelHotKey) {
        _.service.warpPointer(*pointer);
    }
    if (!press.initialControlWindowVisibility) {
        _.panel.orderOut();
    }
    if (pointer) {
        _.panel.setFrameOrigin(
            {press.initialControlWindowRect.x, press.initialControlWindowRect.y});
    }
}

}  // namespace tonquil
