// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "hotkeys/KeyboardLayout.h"
#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// The short text by which a key combination is shown, as UTF-8: the glyphs of control, option,
/// shift and command, in this order, and then the key's own glyph or its character in the layout.
///
/// Letters come as the layout has them; callers upper-case the text before they show it. The four
/// left modifier keys have no text beside their flags' glyphs. The layout is asked only for keys
/// without a glyph.
[[nodiscard]] std::string keyCombinationString(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                               const KeyboardLayout& layout);

}  // namespace tonquil
