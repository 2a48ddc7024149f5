// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screens/DisplayService.h"

namespace tonquil {

/// A screen as windows know it: where it lies in the bottom-up desktop space, whose origin is the
/// lower left corner of the main display, and what people call it.
///
/// It asks the display service each time, so it stays true when its display moves; once the display
/// is gone its frame is empty.
class PlatformScreen {
 public:
    PlatformScreen(DisplayService& service, DisplayID screenNumber)
        : _service(&service), _screenNumber(screenNumber) {}

    [[nodiscard]] DisplayID screenNumber() const { return _screenNumber; }
    [[nodiscard]] Rectangle frame() const;
    /// The connector, followed by the monitor's name where it has one.
    [[nodiscard]] std::string localizedName() const;

 private:
    DisplayService* _service;
    DisplayID _screenNumber;
};

/// The screens that windows can be on, in the display service's order.
[[nodiscard]] std::vector<std::shared_ptr<const PlatformScreen>> platformScreens(
    DisplayService& service);

/// Turns a rectangle of the top-down desktop space into the bottom-up one, and back.
[[nodiscard]] Rectangle flipped(DisplayService& service, const Rectangle& rectangle);
[[nodiscard]] Point flipped(DisplayService& service, const Point& point);

}  // namespace tonquil
