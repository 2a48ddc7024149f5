// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <string>

namespace tonquil {

/// The text that a virtual key code gives in one layout of a keymap without modifiers, as UTF-8;
/// empty for a dead key and for keys without visible text. A layout that the key does not have is
/// resolved as the keymap says. The keypad gives its digits, as with Num Lock.
[[nodiscard]] std::string keymapCharacter(xkb_keymap& keymap, xkb_layout_index_t layout,
                                          std::uint16_t keyCode);

}  // namespace tonquil
