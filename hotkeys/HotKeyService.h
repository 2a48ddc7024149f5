// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "foundation/Problem.h"
#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// A registration with the platform's hot-key service; never 0.
using HotKeyHandle = std::uint64_t;

/// A registered combination was pressed or released.
struct HotKeyServiceEvent {
    /// The ID it was registered with.
    std::uint32_t id = 0;
    /// Pointer position, in pixels from the upper left corner of all displays.
    double x = 0;
    double y = 0;
    /// The modifiers held at that moment, including caps lock.
    ModifierFlags modifierFlags = 0;
    /// Relative to a start time of the service.
    std::chrono::milliseconds timestamp{0};
};

/// Receives key combinations whatever program has the focus.
///
/// Everything happens on the main thread. A combination that is held is reported once: pressed when
/// it goes down, released when its key goes up, whether the modifiers go up before or after.
/// Handlers may register and unregister; after unregistering a held combination no further event is
/// reported for it.
class HotKeyService {
 public:
    using Handler = std::function<void(const HotKeyServiceEvent&)>;

    virtual ~HotKeyService() = default;

    /// Whether the user chooses the keys in the desktop, by action. A combination is then a
    /// proposal and may be one that no keyboard has.
    [[nodiscard]] virtual bool areKeysChosenByDesktop() const { return false; }
    /// Replaces the previous handlers; empty ones are not called.
    virtual void setHandlers(Handler pressed, Handler released) = 0;
    /// Registers a combination of a virtual key code and modifiers under the caller's ID. `action`
    /// names what it does, the same in every run. Fails, without side effects, if any program
    /// already holds the combination or the keyboard does not have the key.
    [[nodiscard]] virtual Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode,
                                                              HotKeyServiceMask modifiers,
                                                              std::uint32_t id,
                                                              const std::string& action) = 0;
    /// Releases a combination. Ignores unknown handles.
    virtual void unregisterHotKey(HotKeyHandle handle) = 0;
};

}  // namespace tonquil
