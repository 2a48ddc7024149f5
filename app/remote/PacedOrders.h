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

/// A companion's request for a display; empty members are left unchanged.
struct RemoteOrder {
    std::shared_ptr<TQExtendedGammaCurve> curve;
    /// As in a state update: the word for a target, any other text for none.
    std::optional<std::string> content;
};

/// Limits orders to 60 a second per display, however many arrive.
///
/// The first is carried out immediately. Those that arrive within `interval` after it are merged,
/// with the newest curve and the newest content, and carried out at the end of the interval. So the
/// last order is always carried out.
class PacedOrders {
 public:
    using CarryOut = std::function<void(const std::string& referenceID, const RemoteOrder& order)>;

    static constexpr std::chrono::milliseconds interval{17};

    PacedOrders(RunLoop& runLoop, CarryOut carryOut)
        : _runLoop(runLoop), _carryOut(std::move(carryOut)) {}
    PacedOrders(const PacedOrders&) = delete;
    PacedOrders& operator=(const PacedOrders&) = delete;

    /// The caller must limit the number of different IDs.
    void add(const std::string& referenceID, RemoteOrder order);
    /// Drops waiting orders.
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
    /// Displays whose interval is still running.
    std::map<std::string, Display> _displays;
};

}  // namespace tonquil
