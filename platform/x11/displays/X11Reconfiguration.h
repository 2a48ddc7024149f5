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

/// Watches the server's displays for changes and calls once whenever it has become quiet; if it
/// does not become quiet, it calls in between, so that a display need not wait for the end of a
/// storm.
///
/// One plug or mode change causes 33 to 200 events in a moment, and each alone is only half the
/// truth: the callee reads everything again. It is only told what it cannot read from the result:
/// which states the CRTCs went through since the last call. A display that was off for a moment
/// looks the same as before, but may have lost its ramp.
class X11Reconfiguration {
 public:
    /// How long the server must have been silent.
    static constexpr std::chrono::milliseconds quietTime{150};
    /// The maximum time from the first event to the call.
    static constexpr std::chrono::milliseconds longestWait{400};

    /// A CRTC's configuration at some moment; of size 0 while it was off.
    struct CrtcState {
        xcb_randr_crtc_t crtc;
        std::int16_t x;
        std::int16_t y;
        std::uint16_t width;
        std::uint16_t height;

        // NOLINTNEXTLINE(modernize-use-nullptr): a known false alarm of the check.
        auto operator<=>(const CrtcState&) const = default;
    };
    using CrtcStates = std::set<CrtcState>;

    /// `lost` is called once, when the server has gone.
    X11Reconfiguration(const X11Connection& connection, RunLoop& runLoop, Log log,
                       std::function<void(const CrtcStates&)> becameQuiet,
                       std::function<void()> lost);

    /// Handles events that arrived along with replies: these never make the file descriptor
    /// readable. Call after each exchange with the server.
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
    std::function<void()> _lost;
    CrtcStates _passed;
    RunLoop::Clock::time_point _firstEvent;
    RunLoop::Clock::time_point _lastEvent;
    std::unique_ptr<RunLoop::Handle> _watch;
    /// Set from the first event until the call.
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
