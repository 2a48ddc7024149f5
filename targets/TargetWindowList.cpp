// SPDX-License-Identifier: MIT
#include "targets/TargetWindowList.h"

#include <algorithm>
#include <utility>

#include "targets/TQTargetWindowController.h"

namespace tonquil {

namespace {

/// The current entry for the display of `covered`; null if it is gone. The number takes precedence
/// over the position, because displays may swap positions; by its position only a display that was
/// not there before is recognised.
const TargetScreen* findPresent(const std::vector<TargetScreen>& screens,
                                const TargetScreen& covered,
                                const std::vector<std::uint32_t>& before) {
    auto found = std::ranges::find(screens, covered.displayID, &TargetScreen::displayID);
    if (found == screens.end()) {
        found = std::ranges::find_if(screens, [&](const TargetScreen& screen) {
            return screen.frame == covered.frame &&
                   std::ranges::count(before, screen.displayID) == 0;
        });
    }
    return found != screens.end() ? &*found : nullptr;
}

}  // namespace

TargetWindowList::TargetWindowList() {
    _cleaning.setSingleShot(true);
    QObject::connect(&_cleaning, &QTimer::timeout, &_cleaning, [this] { _released.clear(); });
}

TargetWindowList::~TargetWindowList() = default;

TQTargetWindowController* TargetWindowList::existingTargetWindowControllerForScreen(
    const TargetScreen& screen) const {
    for (const auto& controller : _controllers) {
        if (controller->screen().isSameAs(screen)) {
            return controller.get();
        }
    }
    return nullptr;
}

TQTargetWindowController& TargetWindowList::targetWindowControllerForScreen(
    const TargetScreen& screen) {
    if (TQTargetWindowController* existing = existingTargetWindowControllerForScreen(screen)) {
        return *existing;
    }
    auto& controller = _controllers.emplace_back(std::make_unique<TQTargetWindowController>());
    controller->_list = this;
    controller->prepareForFillingScreen(screen);
    return *controller;
}

// Dismissing changes the list and calls owners back, who may change it as well.
void TargetWindowList::screensChanged(const std::vector<TargetScreen>& screens) {
    std::vector<std::uint32_t> now;
    now.reserve(screens.size());
    for (const TargetScreen& screen : screens) {
        now.push_back(screen.displayID);
    }
    const std::vector<std::uint32_t> before = std::exchange(_displays, std::move(now));
    std::vector<TQTargetWindowController*> gone;
    for (const auto& controller : _controllers) {
        if (const TargetScreen* present = findPresent(screens, controller->screen(), before)) {
            controller->moveTo(*present);
        } else {
            gone.push_back(controller.get());
        }
    }
    for (TQTargetWindowController* controller : gone) {
        const bool isStillThere = std::ranges::any_of(
            _controllers, [&](const auto& each) { return each.get() == controller; });
        if (isStillThere) {
            controller->dismissTargetWindowControllerForScreen();
        }
    }
}

void TargetWindowList::release(TQTargetWindowController& controller) {
    const auto found = std::ranges::find_if(
        _controllers, [&](const auto& each) { return each.get() == &controller; });
    if (found == _controllers.end()) {
        return;
    }
    controller._list = nullptr;
    _released.push_back(std::move(*found));
    _controllers.erase(found);
    _cleaning.start(0);
}

}  // namespace tonquil
