// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tonquil {

/// Desktop events that may have changed the displays' gamma ramps.
enum class SessionEvent : std::uint8_t {
    Woke,                   ///< The machine resumed from sleep.
    SessionBecameActive,    ///< The user switched back to this session.
    ApplicationTerminated,  ///< Another program exited.
    ScreenSaverStopped,     ///< The screen saver, screen lock or power saving ended.
    ColourSpaceChanged,     ///< A display's colour profile changed.
};

/// Watches the desktop for session events.
///
/// An event that the desktop does not support is skipped, with one line in the log. Several events
/// in a short time may be reported once; one event may be reported several times, seconds apart, if
/// displays are slow to react.
class SessionEvents {
 public:
    using Handler = std::function<void(SessionEvent)>;

    virtual ~SessionEvents() = default;

    /// Starts watching; calls back on the main thread until destroyed. Call it only once.
    virtual void start(Handler handler) = 0;
};

}  // namespace tonquil
