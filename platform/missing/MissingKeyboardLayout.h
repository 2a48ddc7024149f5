// SPDX-License-Identifier: MIT
#pragma once

#include "hotkeys/KeyboardLayout.h"

namespace tonquil {

/// Used where there is no keyboard to query: keys have no characters.
class MissingKeyboardLayout final : public KeyboardLayout {
 public:
    [[nodiscard]] std::string character(std::uint16_t /*keyCode*/) const override { return {}; }
};

}  // namespace tonquil
