// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "hotkeys/ModifierFlags.h"

class QKeyEvent;

namespace tonquil {

/// The virtual key code of a key event, from its scan code: the key's place, whatever the layout
/// makes of it. Nothing for keys that have none, and for events that no keyboard made.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyCode(const QKeyEvent& event);

/// The modifier flags of a key event. Command is Super, option is Alt. The caps lock is left out.
[[nodiscard]] ModifierFlags modifierFlags(const QKeyEvent& event);

/// Whether the event is of a modifier, of a lock or of a switch between layouts.
[[nodiscard]] bool isModifierEvent(const QKeyEvent& event);

}  // namespace tonquil
