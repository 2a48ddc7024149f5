// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tonquil {

/// The current labels of the user's keyboard.
class KeyboardLayout {
 public:
    virtual ~KeyboardLayout() = default;

    /// The text of a virtual key code in the current layout without modifiers, in UTF-8. Empty for
    /// a dead key, for a key that gives no visible text or does not exist, and if there is no
    /// layout.
    [[nodiscard]] virtual std::string character(std::uint16_t keyCode) const = 0;
};

}  // namespace tonquil
