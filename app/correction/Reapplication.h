// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "foundation/RunLoop.h"

namespace tonquil {

/// Re-applies the curves after an event that may have replaced them: once at the first event, and
/// once more at the end of `pause` if more follow within it. A burst of events therefore costs at
/// most two re-applications.
class Reapplication {
 public:
    static constexpr std::chrono::milliseconds pause{200};

    Reapplication(RunLoop& runLoop, std::function<void()> apply)
        : _runLoop(runLoop), _apply(std::move(apply)) {}

    void request() {
        if (_timer) {
            _isDue = true;
            return;
        }
        _isDue = false;
        _timer = _runLoop.callOnce(pause, [this] { end(); });
        _apply();
    }

 private:
    void end() {
        _timer.reset();
        if (_isDue) {
            request();
        }
    }

    RunLoop& _runLoop;
    std::function<void()> _apply;
    std::unique_ptr<RunLoop::Handle> _timer;
    bool _isDue = false;
};

}  // namespace tonquil
