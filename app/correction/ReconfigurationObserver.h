// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "foundation/Log.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// How many displays a reconfiguration has begun for and not ended. There is one in a program.
struct ReconfigurationCounter {
    std::int64_t depth = 0;
};

/// Counts the beginnings and ends of a reconfiguration, and calls once it is over.
class ReconfigurationObserver {
 public:
    ReconfigurationObserver(ReconfigurationCounter& counter, Log log,
                            std::function<void()> updateScreens)
        : _counter(counter), _log(std::move(log)), _updateScreens(std::move(updateScreens)) {}

    /// Only flags that are exactly `beginConfiguration` begin one. An end without a beginning
    /// counts as a whole reconfiguration.
    void displayReconfigured(ReconfigurationFlags flags);

 private:
    ReconfigurationCounter& _counter;
    Log _log;
    std::function<void()> _updateScreens;
};

}  // namespace tonquil
