// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "hotkeys/ModifierFlags.h"

class QKeyEvent;

namespace tonquil {

/// The virtual key code of a key event, from its scan code: the physical key, independent of the
/// layout. Nothing for keys without one, and for synthetic events.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCode(const QKeyEvent& event);

/// The modifier flags of a key event. Command is Super, option is Alt. Caps lock is left out.
[[nodiscard]] ModifierFlags modifierFlags(const QKeyEvent& event);

/// Whether the event is for a modifier, a lock or a layout switch.
[[nodiscard]] bool isModifierEvent(const QKeyEvent& event);

}  // namespace tonquil
