// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tonquil {

/// What happens around the program that may have disturbed the displays' tables.
enum class SessionEvent : std::uint8_t {
    Woke,                   ///< The machine came back from sleep.
    SessionBecameActive,    ///< The person switched back to this session.
    ApplicationTerminated,  ///< Another program ended.
    ScreenSaverStopped,     ///< The screen saver, lock or power saving let the displays go.
    ColourSpaceChanged,     ///< A display was given another colour profile.
};

/// Watches the desktop for session events.
///
/// What a desktop does not offer is left out, with one line in the log. Several events within a
/// moment may be told once; one event may be told several times, seconds apart, where displays are
/// slow to follow.
class SessionEvents {
 public:
    using Handler = std::function<void(SessionEvent)>;

    virtual ~SessionEvents() = default;

    /// Begins to watch, and calls on the main thread until the object is destroyed. To be called
    /// once.
    virtual void start(Handler handler) = 0;
};

}  // namespace tonquil
