// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <string>

namespace tonquil {

/// The text that a virtual key code gives in one layout of a keymap with no modifiers held, as
/// UTF-8; empty for a dead key and for keys that give nothing visible. A layout that the key does
/// not have is taken as the keymap says. The numeric pad gives its digits, as with Num Lock.
[[nodiscard]] std::string keymapCharacter(xkb_keymap& keymap, xkb_layout_index_t layout,
                                          std::uint16_t keyCode);

}  // namespace tonquil
