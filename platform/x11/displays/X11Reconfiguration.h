// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// Watches the server for changes of its displays and calls once each time it has become quiet.
///
/// One plug or mode change comes as 33 to 200 events within a moment, and what they say one by one
/// is half of the truth: the caller reads everything anew.
class X11Reconfiguration {
 public:
    /// How long the server must have been silent.
    static constexpr std::chrono::milliseconds quietTime{150};

    X11Reconfiguration(const X11Connection& connection, RunLoop& runLoop, Log log,
                       std::function<void()> becameQuiet);

    /// Takes note of events that came along with replies: these never make the descriptor readable.
    /// To be called after each exchange with the server.
    void takeQueuedEvents();
    /// Calls after the quiet time, as after an event.
    void waitForQuiet();

 private:
    void takeEvents();
    void take(const xcb_generic_event_t& event);

    const X11Connection& _connection;
    RunLoop& _runLoop;
    Log _log;
    std::function<void()> _becameQuiet;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
