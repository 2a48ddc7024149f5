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
    observers.call(id, beginConfiguration);
    _histories.erase(id);
    const auto same = std::find_if(_displays.begin(), _displays.end(),
                                   [=](const auto& each) { return each.id == id; });
    if (same == _displays.end()) {
        _displays.push_back(std::move(display));
    } else {
        *same = std::move(display);
    }
    observers.call(id, endConfiguration);
}

void SimulatedDesk::unplug(DisplayID display) {
    observers.call(display, beginConfiguration);
    std::erase_if(_displays, [=](const auto& each) { return each.id == display; });
    observers.call(display, endConfiguration);
}

void SimulatedDesk::setForeignRamp(DisplayID display, HardwareRamp ramp) {
    if (SimulatedDisplay* found = find(display)) {
        found->ramp = std::move(ramp);
    }
}

}  // namespace tonquil
