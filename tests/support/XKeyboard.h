// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>

namespace tonquil {

/// A hand at the keyboard of a private X server, and another program that may grab its keys.
///
/// Keys are named by their evdev codes (linux/input-event-codes.h). Every call returns once the
/// server has dealt with it.
class XKeyboard {
 public:
    explicit XKeyboard(const std::string& display);
    ~XKeyboard();
    XKeyboard(const XKeyboard&) = delete;
    XKeyboard& operator=(const XKeyboard&) = delete;

    void press(std::uint32_t evdevCode) const;
    void release(std::uint32_t evdevCode) const;
    /// Presses and releases it.
    void type(std::uint32_t evdevCode) const;
    /// Switches to another of the layouts that are set, counted from 0.
    void switchToLayout(std::uint8_t number) const;
    void movePointer(std::int16_t x, std::int16_t y) const;

    /// Grabs a key with exactly these modifiers (XCB_MOD_MASK_…); whether that succeeds.
    [[nodiscard]] bool grab(std::uint32_t evdevCode, std::uint16_t modifiers) const;
    void ungrab(std::uint32_t evdevCode, std::uint16_t modifiers) const;

 private:
    void fake(std::uint8_t type, std::uint8_t detail, std::int16_t x, std::int16_t y) const;
    void finish() const;

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    std::unique_ptr<xcb_connection_t, Disconnect> _connection;
    xcb_window_t _root = XCB_NONE;
};

}  // namespace tonquil
