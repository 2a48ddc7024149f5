// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>

#include "foundation/Problem.h"
#include "hotkeys/KeyboardLayout.h"
#include "platform/xkb/XkbPointers.h"

namespace tonquil {

/// The layout of an X server's keyboard, by xkbcommon, on a connection of its own.
///
/// Every question asks the server, so that it is always the layout of the moment, and the one of
/// several that is switched to. Once the server has gone, no key has a character.
class XkbKeyboardLayout final : public KeyboardLayout {
 public:
    /// `display` as in the environment's DISPLAY; null takes it from there. A Problem when there is
    /// no server, or its keyboard cannot be asked.
    [[nodiscard]] static Result<std::unique_ptr<XkbKeyboardLayout>> open(const char* display);

    [[nodiscard]] std::string character(std::uint16_t keyCode) const override;

 private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    XkbKeyboardLayout(Connection connection, XkbContext context, std::int32_t keyboard);
    void forgetEvents() const;

    Connection _connection;
    XkbContext _context;
    /// The server's number for it.
    std::int32_t _keyboard;
};

}  // namespace tonquil
