// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11KeyGrabs.h"

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::uint16_t both(std::uint16_t state, std::uint16_t lockState) {
    return static_cast<std::uint16_t>(state | lockState);
}

Problem refusal(std::uint8_t error) {
    const std::string detail = "X error " + std::to_string(error) + " for a key grab";
    switch (error) {
        case XCB_ACCESS:
            return {TONQUIL_TEXT("Problem", "Another program already uses this key combination."),
                    detail};
        case XCB_VALUE:
            return {TONQUIL_TEXT(
                        "Problem",
                        "The X server has no such key, so it cannot be part of a key combination."),
                    detail};
        default:
            return {TONQUIL_TEXT("Problem", "The X server refuses this key combination."), detail};
    }
}

}  // namespace

X11KeyGrabs::X11KeyGrabs(const X11Connection& connection) : _connection(connection) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screens.rem > 0; xcb_screen_next(&screens)) {
        _roots.push_back(screens.data->root);
    }
}

Result<void> X11KeyGrabs::grab(xcb_keycode_t key, std::uint16_t state,
                               std::span<const std::uint16_t> lockStates) const {
    // All in one round trip.
    std::vector<xcb_void_cookie_t> cookies;
    for (const xcb_window_t root : _roots) {
        for (const std::uint16_t lockState : lockStates) {
            cookies.push_back(xcb_grab_key_checked(_connection.get(), 0, root,
                                                   both(state, lockState), key, XCB_GRAB_MODE_ASYNC,
                                                   XCB_GRAB_MODE_ASYNC));
        }
    }
    std::uint8_t firstError = 0;
    for (const auto cookie : cookies) {
        const XcbPointer<xcb_generic_error_t> error(xcb_request_check(_connection.get(), cookie));
        if (error && firstError == 0) {
            firstError = error->error_code;
        }
    }
    if (_connection.isLost()) {
        return problem(
            TONQUIL_TEXT("Problem", "The X server has gone, so no key combination can be set."));
    }
    if (firstError != 0) {
        ungrab(key, state, lockStates);
        return tl::unexpected(refusal(firstError));
    }
    return {};
}

void X11KeyGrabs::ungrab(xcb_keycode_t key, std::uint16_t state,
                         std::span<const std::uint16_t> lockStates) const {
    std::vector<xcb_void_cookie_t> cookies;
    for (const xcb_window_t root : _roots) {
        for (const std::uint16_t lockState : lockStates) {
            cookies.push_back(
                xcb_ungrab_key_checked(_connection.get(), key, root, both(state, lockState)));
        }
    }
    for (const auto cookie : cookies) {
        const XcbPointer<xcb_generic_error_t> ignored(xcb_request_check(_connection.get(), cookie));
    }
}

}  // namespace tonquil
