// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "app/preferences/PreferencesStore.h"
#include "foundation/RunLoop.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Re-applies the curves on a timer, because other programs and the system replace ramps without
/// notice.
class PeriodicUpdate {
 public:
    PeriodicUpdate(RunLoop& runLoop, const PreferencesStore& preferences,
                   const DisplayService& service, std::function<void()> update)
        : _runLoop(runLoop),
          _preferences(preferences),
          _service(service),
          _update(std::move(update)) {}

    /// Does nothing while the timer runs, so that a changed interval counts from the next start,
    /// and nothing where continuous application is switched off or no table can be disturbed.
    void _startPeriodicUpdate();
    void _stopPeriodicUpdate() { _periodicTimer.reset(); }
    [[nodiscard]] bool isRunning() const { return _periodicTimer != nullptr; }

 private:
    RunLoop& _runLoop;
    const PreferencesStore& _preferences;
    const DisplayService& _service;
    std::function<void()> _update;
    std::unique_ptr<RunLoop::Handle> _periodicTimer;
};

}  // namespace tonquil
