// SPDX-License-Identifier: MIT
#include "app/remote/PacedOrders.h"

#include <utility>

namespace tonquil {

void PacedOrders::add(const std::string& referenceID, RemoteOrder order) {
    const auto display = _displays.find(referenceID);
    if (display == _displays.end()) {
        startInterval(referenceID);
        _carryOut(referenceID, order);
        return;
    }
    auto& waiting = display->second.waiting;
    if (!waiting) {
        waiting = std::move(order);
        return;
    }
    if (order.curve) {
        waiting->curve = std::move(order.curve);
    }
    if (order.content) {
        waiting->content = std::move(order.content);
    }
}

void PacedOrders::startInterval(const std::string& referenceID) {
    _displays[referenceID].endOfInterval =
        _runLoop.callOnce(interval, [this, referenceID] { intervalEnded(referenceID); });
}

// By value: the timer callback that owns the ID is destroyed here.
void PacedOrders::intervalEnded(const std::string referenceID) {  // NOLINT(*-value-param)
    const auto display = _displays.find(referenceID);
    if (display == _displays.end()) {
        return;
    }
    const auto order = std::exchange(display->second.waiting, std::nullopt);
    if (!order) {
        _displays.erase(display);
        return;
    }
    startInterval(referenceID);
    _carryOut(referenceID, *order);
}

}  // namespace tonquil
