// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "hotkeys/ModifierFlags.h"

namespace tonquil {

/// The key event passed to a hot key's actions: always a key-up event without a window.
struct HotKeyEvent {
    static constexpr int keyUp = 11;
    static constexpr int noWindow = -1;

    int type = keyUp;
    /// Pointer position, in pixels from the upper left corner of all displays.
    double x = 0;
    double y = 0;
    ModifierFlags modifierFlags = 0;
    /// Relative to a start time of the hot-key service.
    std::chrono::milliseconds timestamp{0};
    int windowNumber = noWindow;
    std::string characters{};
    std::string charactersIgnoringModifiers{};
    bool isARepeat = false;
    /// The hot key's virtual key code.
    std::uint16_t keyCode = 0;
};

}  // namespace tonquil
