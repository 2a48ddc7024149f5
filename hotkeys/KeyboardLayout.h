// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tonquil {

/// What the keys of the person's keyboard are labelled with at the moment.
class KeyboardLayout {
 public:
    virtual ~KeyboardLayout() = default;

    /// The text that a virtual key code gives in the current layout with no modifiers held, as
    /// UTF-8. Empty for a dead key, for a key that gives no visible text or is not there, and where
    /// there is no layout to ask.
    [[nodiscard]] virtual std::string character(std::uint16_t keyCode) const = 0;
};

}  // namespace tonquil
