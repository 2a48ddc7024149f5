// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "foundation/RunLoop.h"

namespace tonquil {

/// Puts the curves back after an event that may have disturbed them: after the first one at once,
/// and after all those that follow within `pause` once more at its end. A storm of events therefore
/// costs no more than two of them.
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
