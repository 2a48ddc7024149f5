// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// The key event that a hot key's actions are given: always a key that goes up, of no window.
struct HotKeyEvent {
    static constexpr int keyUp = 11;
    static constexpr int noWindow = -1;

    int type = keyUp;
    /// The pointer, in pixels from the upper left corner of all displays.
    double x = 0;
    double y = 0;
    ModifierFlags modifierFlags = 0;
    /// Since a moment that is the hot-key service's own.
    std::chrono::milliseconds timestamp{0};
    int windowNumber = noWindow;
    std::string characters{};
    std::string charactersIgnoringModifiers{};
    bool isARepeat = false;
    /// The virtual key code of the hot key.
    std::uint16_t keyCode = 0;
};

}  // namespace tonquil
