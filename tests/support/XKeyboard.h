// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/RampReader.h"

namespace tonquil {

/// Keyboard input on a private X server, and another program that may grab its keys.
///
/// Keys are given by their evdev codes (linux/input-event-codes.h). Every call returns once the
/// server has handled it.
class XKeyboard {
 public:
    explicit XKeyboard(const std::string& display) : _x(RampReader::connect(display).value()) {}

    void press(int evdevCode) const { fake(XCB_KEY_PRESS, evdevCode + firstKeyCode, 0, 0); }
    void release(int evdevCode) const { fake(XCB_KEY_RELEASE, evdevCode + firstKeyCode, 0, 0); }
    /// Presses and releases it.
    void type(int evdevCode) const {
        press(evdevCode);
        release(evdevCode);
    }
    void movePointer(std::int16_t x, std::int16_t y) const { fake(XCB_MOTION_NOTIFY, 0, x, y); }

    /// Grabs a key with exactly these modifiers (XCB_MOD_MASK_…); returns whether that succeeded.
    [[nodiscard]] bool grab(int evdevCode, int modifiers) const;
    void ungrab(int evdevCode, int modifiers) const;

 private:
    static constexpr int firstKeyCode = 8;
    void fake(std::uint8_t type, int detail, std::int16_t x, std::int16_t y) const;

    RampReader _x;
};

}  // namespace tonquil
