// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screens/DisplayService.h"

namespace tonquil {

/// A screen as windows see it: its position in bottom-up desktop space, with the origin in the
/// lower left corner of the main display, and its name for users.
///
/// It asks the display service on each call, so it stays correct when the display moves; once the
/// display is gone its frame is empty.
class PlatformScreen {
 public:
    PlatformScreen(DisplayService& service, DisplayID screenNumber)
        : _service(&service), _screenNumber(screenNumber) {}

    [[nodiscard]] DisplayID screenNumber() const { return _screenNumber; }
    [[nodiscard]] Rectangle frame() const;
    /// The connector, followed by the monitor's name if it has one.
    [[nodiscard]] std::string localizedName() const;

 private:
    DisplayService* _service;
    DisplayID _screenNumber;
};

/// The screens that can show windows, in the display service's order.
[[nodiscard]] std::vector<std::shared_ptr<const PlatformScreen>> platformScreens(
    DisplayService& service);

/// Converts a rectangle from top-down to bottom-up desktop space, and back.
[[nodiscard]] Rectangle flipped(DisplayService& service, const Rectangle& rectangle);
[[nodiscard]] Point flipped(DisplayService& service, const Point& point);

}  // namespace tonquil
