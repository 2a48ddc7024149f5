// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "app/preferences/PreferencesStore.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Re-applies the curves on a timer, because other programs and the system replace ramps without
/// notice.
class PeriodicUpdate {
 public:
    PeriodicUpdate(RunLoop& runLoop, const PreferencesStore& preferences,
                   std::function<void()> update)
        : _runLoop(runLoop), _preferences(preferences), _update(std::move(update)) {}

    /// Does nothing while the timer runs, so a changed interval takes effect at the next start, or
    /// if continuous application is off.
    void _startPeriodicUpdate();
    void _stopPeriodicUpdate() { _periodicTimer.reset(); }
    [[nodiscard]] bool isRunning() const { return _periodicTimer != nullptr; }

 private:
    RunLoop& _runLoop;
    const PreferencesStore& _preferences;
    std::function<void()> _update;
    std::unique_ptr<RunLoop::Handle> _periodicTimer;
};

}  // namespace tonquil
