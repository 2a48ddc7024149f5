// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedDisplayService.h"

#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

std::vector<DisplayID> SimulatedDisplayService::onlineDisplays(std::size_t most) {
    std::vector<DisplayID> online;
    for (const SimulatedDisplay& display : _desk.displays()) {
        if (online.size() < most) {
            online.push_back(display.id);
        }
    }
    return online;
}

DisplayID SimulatedDisplayService::mainDisplay() {
    const SimulatedDisplay* display = _desk.find(0);
    return display == nullptr ? 0 : display->id;
}

DisplayIdentity SimulatedDisplayService::identity(DisplayID display) {
    const SimulatedDisplay* found = _desk.find(display);
    return found == nullptr ? DisplayIdentity{} : found->identity;
}

DisplayDescription SimulatedDisplayService::description(DisplayID display) {
    const SimulatedDisplay* found = _desk.find(display);
    if (found == nullptr) {
        return {};
    }
    const bool hasGamma = found->ramp.size() >= 2;
    return {.connector = found->connector,
            .productName = found->productName,
            .rampSize = hasGamma ? found->ramp.size() : 0,
            .obstacle = hasGamma ? "" : TONQUIL_TEXT("Problem", "This display has no gamma ramp.")};
}

Rectangle SimulatedDisplayService::bounds(DisplayID display) {
    const SimulatedDisplay* found = _desk.find(display);
    return found == nullptr ? Rectangle{} : found->bounds;
}

SimulatedDisplay* SimulatedDisplayService::correctable(DisplayID display) {
    SimulatedDisplay* found = _desk.find(display);
    if (found != nullptr && found->ramp.size() >= 2) {
        _reported.erase(display);
        return found;
    }
    if (_reported.insert(display).second && _log) {
        _log("Display " + std::to_string(display) +
             (found == nullptr ? " is gone." : " has no gamma ramp."));
    }
    return nullptr;
}

void SimulatedDisplayService::setTransferTable(DisplayID display, const GammaTable& table) {
    const DisplayBatch batch(*this);
    SimulatedDisplay* found = correctable(display);
    if (found == nullptr) {
        _allReached = false;
        return;
    }
    RampHistory& history = _desk.history(found->id);
    if (!holds(found->id) && !history.isCorrection(found->ramp.fingerprint())) {
        history.setSystemRamp(found->ramp);
    }
    found->ramp.setTable(table);
    _held[found->id] = found->ramp.fingerprint();
    history.addCorrection({.fingerprint = _held[found->id], .holder = _holder});
    ++_desk.rampWrites;
}

bool SimulatedDisplayService::holds(DisplayID display) {
    const auto held = _held.find(display);
    return held != _held.end() &&
           _desk.history(display).has({.fingerprint = held->second, .holder = _holder});
}

HardwareRamp SimulatedDisplayService::systemCalibration(const SimulatedDisplay& display) {
    if (display.profileRamp) {
        return *display.profileRamp;
    }
    const RampHistory& history = _desk.history(display.id);
    return holds(display.id) ? history.underCorrection(display.ramp.size())
                             : history.uncorrected(display.ramp);
}

std::uint32_t SimulatedDisplayService::getTransferTable(DisplayID display, GammaTable& table) {
    const SimulatedDisplay* found = correctable(display);
    return found == nullptr ? 0 : systemCalibration(*found).getTable(table);
}

std::uint32_t SimulatedDisplayService::getHardwareTable(DisplayID display, GammaTable& table) {
    const SimulatedDisplay* found = correctable(display);
    return found == nullptr ? 0 : found->ramp.getTable(table);
}

void SimulatedDisplayService::restoreSystemCalibration(std::span<const DisplayID> displays) {
    const DisplayBatch batch(*this);
    for (const DisplayID display : displays) {
        SimulatedDisplay* found = correctable(display);
        if (found == nullptr) {
            _allReached = false;
            continue;
        }
        found->ramp = systemCalibration(*found);
        _desk.history(found->id).setSystemRamp(found->ramp);
        _held.erase(found->id);
        ++_desk.rampWrites;
    }
}

std::unique_ptr<DisplayService::Subscription>
SimulatedDisplayService::registerReconfigurationCallback(ReconfigurationCallback callback) {
    return _desk.observers.add(std::move(callback));
}

}  // namespace tonquil
