// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "hotkeys/ModifierFlags.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// Which of an X server's eight modifiers are Alt, Super and the locks, in the current keyboard
/// configuration.
///
/// As masks of an event's state; 0 for what the keyboard does not have.
struct X11Modifiers {
    std::uint16_t option = 0;
    std::uint16_t command = 0;
    std::uint16_t numLock = 0;
    std::uint16_t scrollLock = 0;

    /// Queries the server and waits for the reply; all 0 once the connection is lost.
    [[nodiscard]] static X11Modifiers read(const X11Connection& connection);

    /// The state with these modifiers held; nothing if the keyboard lacks one of them.
    [[nodiscard]] std::optional<std::uint16_t> state(HotKeyServiceMask modifiers) const;
    [[nodiscard]] ModifierFlags flags(std::uint16_t state) const;
    /// The modifiers of `state` without the locks, the mouse buttons and the keyboard group.
    [[nodiscard]] std::uint16_t held(std::uint16_t state) const;
    /// Every state in which only locks are on: 2, 4 or 8 of them, starting with 0.
    [[nodiscard]] std::vector<std::uint16_t> lockStates() const;

    friend bool operator==(const X11Modifiers&, const X11Modifiers&) = default;

 private:
    [[nodiscard]] std::uint16_t locks() const;
};

}  // namespace tonquil
