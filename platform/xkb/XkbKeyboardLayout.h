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
/// Every call queries the server, so that it always reflects the current configuration and the
/// selected layout. Once the connection is lost, no key has a character.
class XkbKeyboardLayout final : public KeyboardLayout {
 public:
    /// `display` as in DISPLAY; null takes it from the environment. Fails if there is no server, or
    /// its keyboard cannot be queried.
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
    /// The server's number for the keyboard.
    std::int32_t _keyboard;
};

}  // namespace tonquil
