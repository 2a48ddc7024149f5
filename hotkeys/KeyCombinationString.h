// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "hotkeys/KeyboardLayout.h"
#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// The short display text of a key combination, in UTF-8: the glyphs of control, option, shift and
/// command, in this order, then the key's own glyph or its character in the layout.
///
/// Letters are as the layout has them; callers convert the text to upper case before showing it.
/// The four left modifier keys add no text to the glyphs of their flags. The layout is only queried
/// for keys without a glyph.
[[nodiscard]] std::string keyCombinationString(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                               const KeyboardLayout& layout);

}  // namespace tonquil
