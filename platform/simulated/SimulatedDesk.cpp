// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedDesk.h"

#include <algorithm>
#include <utility>

namespace tonquil {

SimulatedDisplay* SimulatedDesk::find(DisplayID display) {
    const auto found = std::find_if(_displays.begin(), _displays.end(), [=](const auto& each) {
        return display == 0 || each.id == display;
    });
    return found == _displays.end() ? nullptr : &*found;
}

void SimulatedDesk::plug(SimulatedDisplay display) {
    const DisplayID id = display.id;
    tell(id, beginConfiguration);
    _histories.erase(id);
    const auto same = std::find_if(_displays.begin(), _displays.end(),
                                   [=](const auto& each) { return each.id == id; });
    if (same == _displays.end()) {
        _displays.push_back(std::move(display));
    } else {
        *same = std::move(display);
    }
    tell(id, endConfiguration);
}

void SimulatedDesk::unplug(DisplayID display) {
    tell(display, beginConfiguration);
    std::erase_if(_displays, [=](const auto& each) { return each.id == display; });
    tell(display, endConfiguration);
}

void SimulatedDesk::setForeignRamp(DisplayID display, HardwareRamp ramp) {
    if (SimulatedDisplay* found = find(display)) {
        found->ramp = std::move(ramp);
    }
}

std::list<SimulatedDesk::Observer>::iterator SimulatedDesk::addObserver(Observer observer) {
    return _observers.insert(_observers.end(), std::move(observer));
}

void SimulatedDesk::tell(DisplayID display, ReconfigurationFlags flags) {
    for (const Observer& observer : _observers) {
        observer(display, flags);
    }
}

}  // namespace tonquil
