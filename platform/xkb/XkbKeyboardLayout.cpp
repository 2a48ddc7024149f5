// SPDX-License-Identifier: MIT
#include "platform/xkb/XkbKeyboardLayout.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <cstdlib>
#include <utility>

#include "platform/xkb/KeymapCharacter.h"

namespace tonquil {

Result<std::unique_ptr<XkbKeyboardLayout>> XkbKeyboardLayout::open(const char* display) {
    const std::string failure = "The X server's keyboard layout cannot be read.";
    Connection connection(xcb_connect(display, nullptr));
    if (const int error = xcb_connection_has_error(connection.get())) {
        return problem(failure, "xcb error " + std::to_string(error));
    }
    if (xkb_x11_setup_xkb_extension(
            connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr) == 0) {
        return problem(failure, "It has no XKB extension.");
    }
    const std::int32_t keyboard = xkb_x11_get_core_keyboard_device_id(connection.get());
    if (keyboard < 0) {
        return problem(failure, "It names no core keyboard.");
    }
    XkbContext context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    if (!context) {
        return problem(failure, "xkbcommon gives no context.");
    }
    // A lost connection is reported by the result, not on standard error.
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    return std::unique_ptr<XkbKeyboardLayout>(
        new XkbKeyboardLayout(std::move(connection), std::move(context), keyboard));
}

XkbKeyboardLayout::XkbKeyboardLayout(Connection connection, XkbContext context,
                                     std::int32_t keyboard)
    : _connection(std::move(connection)), _context(std::move(context)), _keyboard(keyboard) {}

std::string XkbKeyboardLayout::character(std::uint16_t keyCode) const {
    if (xcb_connection_has_error(_connection.get()) != 0) {
        return {};
    }
    const XkbKeymap keymap(xkb_x11_keymap_new_from_device(_context.get(), _connection.get(),
                                                          _keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) {
        return {};
    }
    const XkbState state(xkb_x11_state_new_from_device(keymap.get(), _connection.get(), _keyboard));
    if (!state) {
        return {};
    }
    forgetEvents();
    const auto layout = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    return keymapCharacter(*keymap, layout, keyCode);
}

// The server notifies every connection of a new keymap, wanted or not.
void XkbKeyboardLayout::forgetEvents() const {
    while (auto* const event = xcb_poll_for_event(_connection.get())) {
        std::free(event);
    }
}

}  // namespace tonquil
