// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "foundation/RunLoop.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

/// What a companion wants of a display; what is empty stays as it is.
struct RemoteOrder {
    std::shared_ptr<TQExtendedGammaCurve> curve;
    /// As in a state update: the word for a target, any other text for none.
    std::optional<std::string> content;
};

/// Carries orders out at most 60 times a second for each display, however many come in.
///
/// The first is carried out at once. Those that come within `interval` after it become one, in
/// which the newest curve and the newest content win, and that one is carried out at the end of the
/// interval. So the last order always is.
class PacedOrders {
 public:
    using CarryOut = std::function<void(const std::string& referenceID, const RemoteOrder& order)>;

    static constexpr std::chrono::milliseconds interval{17};

    PacedOrders(RunLoop& runLoop, CarryOut carryOut)
        : _runLoop(runLoop), _carryOut(std::move(carryOut)) {}
    PacedOrders(const PacedOrders&) = delete;
    PacedOrders& operator=(const PacedOrders&) = delete;

    /// The caller sees to it that there are not too many different IDs.
    void add(const std::string& referenceID, RemoteOrder order);
    /// Drops what waits.
    void clear() { _displays.clear(); }

 private:
    struct Display {
        std::unique_ptr<RunLoop::Handle> endOfInterval;
        std::optional<RemoteOrder> waiting;
    };

    void startInterval(const std::string& referenceID);
    void intervalEnded(std::string referenceID);

    RunLoop& _runLoop;
    CarryOut _carryOut;
    /// Those in whose interval we are.
    std::map<std::string, Display> _displays;
};

}  // namespace tonquil
