// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "foundation/Log.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Number of displays with a reconfiguration in progress. One instance per program.
struct ReconfigurationCounter {
    std::int64_t depth = 0;
};

/// Counts the begin and end callbacks of a reconfiguration, and calls back once it is over.
class ReconfigurationObserver {
 public:
    ReconfigurationObserver(ReconfigurationCounter& counter, Log log,
                            std::function<void()> updateScreens)
        : _counter(counter), _log(std::move(log)), _updateScreens(std::move(updateScreens)) {}

    /// Only flags exactly equal to `beginConfiguration` begin one. An end without a begin counts as
    /// a complete reconfiguration.
    void displayReconfigured(ReconfigurationFlags flags);

 private:
    ReconfigurationCounter& _counter;
    Log _log;
    std::function<void()> _updateScreens;
};

}  // namespace tonquil
