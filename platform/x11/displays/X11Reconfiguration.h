// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <compare>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// Watches the server for changes of its displays and calls once each time it has become quiet, or
/// while it does not: then in between, so that a display need not wait for the end of a storm.
///
/// One plug or mode change comes as 33 to 200 events within a moment, and what they say one by one
/// is half of the truth: the caller reads everything anew. Only what it cannot read from the result
/// is told: what the CRTCs went through since the last call. A display that was off for a moment is
/// as before, but may have lost its ramp.
class X11Reconfiguration {
 public:
    /// How long the server must have been silent.
    static constexpr std::chrono::milliseconds quietTime{150};
    /// How long after the first event it is called at the latest.
    static constexpr std::chrono::milliseconds longestWait{400};

    /// How a CRTC was set up at some moment; of no size while it was dark.
    struct CrtcState {
        xcb_randr_crtc_t crtc;
        std::int16_t x;
        std::int16_t y;
        std::uint16_t width;
        std::uint16_t height;

        auto operator<=>(const CrtcState&) const = default;
    };
    using CrtcStates = std::set<CrtcState>;

    X11Reconfiguration(const X11Connection& connection, RunLoop& runLoop, Log log,
                       std::function<void(const CrtcStates&)> becameQuiet);

    /// Takes note of events that came along with replies: these never make the descriptor readable.
    /// To be called after each exchange with the server.
    void takeQueuedEvents();
    /// Calls after the quiet time, as after an event.
    void waitForQuiet();

 private:
    void takeEvents();
    void take(const xcb_generic_event_t& event);
    void callWhenDue();

    const X11Connection& _connection;
    RunLoop& _runLoop;
    Log _log;
    std::function<void(const CrtcStates&)> _becameQuiet;
    CrtcStates _passed;
    RunLoop::Clock::time_point _firstEvent;
    RunLoop::Clock::time_point _lastEvent;
    std::unique_ptr<RunLoop::Handle> _watch;
    /// There is one from the first event on until the call.
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
