// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// A key combination as desktops write it, such as "CTRL+SHIFT+F5"; letters are those of the
/// machine's default layout. Empty if there is no such key.
[[nodiscard]] std::string preferredTrigger(std::uint16_t keyCode, HotKeyServiceMask modifiers);

}  // namespace tonquil
