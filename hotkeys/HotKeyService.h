// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "foundation/Problem.h"
#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// A registration with the platform's hot-key service; never 0.
using HotKeyHandle = std::uint64_t;

/// What the service tells of a registered combination that went down or up.
struct HotKeyServiceEvent {
    /// The number that the combination was registered with.
    std::uint32_t id = 0;
    /// The pointer, in pixels from the upper left corner of all displays.
    double x = 0;
    double y = 0;
    /// What is held at that moment, caps lock included.
    ModifierFlags modifierFlags = 0;
    /// Since a moment that is the service's own.
    std::chrono::milliseconds timestamp{0};
};

/// Hears of key combinations whichever program is in front.
///
/// Everything happens on the main thread. A combination that is held is told once: pressed when it
/// goes down, released when its key goes up, whether the modifiers go up before or after. Handlers
/// may register and unregister; a combination unregistered while it is held is told of no more.
class HotKeyService {
 public:
    using Handler = std::function<void(const HotKeyServiceEvent&)>;

    virtual ~HotKeyService() = default;

    /// Takes the place of the handlers before; empty ones hear nothing.
    virtual void setHandlers(Handler pressed, Handler released) = 0;
    /// Asks for a combination of a virtual key code and modifiers, under the caller's number.
    /// Refused, with nothing kept, where anyone holds the combination or the keyboard lacks it.
    [[nodiscard]] virtual Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode,
                                                              HotKeyServiceMask modifiers,
                                                              std::uint32_t id) = 0;
    /// Gives a combination up. Unknown handles are ignored.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;
};

}  // namespace tonquil
