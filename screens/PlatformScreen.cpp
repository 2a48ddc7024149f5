// SPDX-License-Identifier: MIT
#include "screens/PlatformScreen.h"

#include <limits>

namespace tonquil {

namespace {

double mainDisplayHeight(DisplayService& service) {
    return service.bounds(0).height;
}

}  // namespace

Rectangle PlatformScreen::frame() const {
    const Rectangle bounds = _service->bounds(_screenNumber);
    return bounds.isEmpty() ? Rectangle{} : flipped(*_service, bounds);
}

std::string PlatformScreen::localizedName() const {
    const DisplayDescription description = _service->description(_screenNumber);
    return description.productName.empty() ? description.connector
                                           : description.connector + ", " + description.productName;
}

std::vector<std::shared_ptr<const PlatformScreen>> platformScreens(DisplayService& service) {
    std::vector<std::shared_ptr<const PlatformScreen>> screens;
    for (const DisplayID display :
         service.onlineDisplays(std::numeric_limits<std::size_t>::max())) {
        screens.push_back(std::make_shared<const PlatformScreen>(service, display));
    }
    return screens;
}

Rectangle flipped(DisplayService& service, const Rectangle& rectangle) {
    Rectangle result = rectangle;
    result.y = mainDisplayHeight(service) - rectangle.y - rectangle.height;
    return result;
}

Point flipped(DisplayService& service, const Point& point) {
    return {point.x, mainDisplayHeight(service) - point.y};
}

}  // namespace tonquil
