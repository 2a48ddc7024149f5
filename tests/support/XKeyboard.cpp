// SPDX-License-Identifier: MIT
#include "tests/support/XKeyboard.h"

#include <xcb/xtest.h>

#include <cstdlib>

// This C header has a member with a name that C++ keeps for itself.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif

namespace tonquil {

namespace {

std::uint8_t keyCode(std::uint32_t evdevCode) {
    constexpr std::uint32_t firstKeyCode = 8;
    return static_cast<std::uint8_t>(evdevCode + firstKeyCode);
}

}  // namespace

XKeyboard::XKeyboard(const std::string& display)
    : _connection(xcb_connect(display.c_str(), nullptr)) {
    _root = xcb_setup_roots_iterator(xcb_get_setup(_connection.get())).data->root;
    std::free(xcb_xkb_use_extension_reply(
        _connection.get(),
        xcb_xkb_use_extension(_connection.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
}

XKeyboard::~XKeyboard() = default;

void XKeyboard::press(std::uint32_t evdevCode) const {
    fake(XCB_KEY_PRESS, keyCode(evdevCode), 0, 0);
}

void XKeyboard::release(std::uint32_t evdevCode) const {
    fake(XCB_KEY_RELEASE, keyCode(evdevCode), 0, 0);
}

void XKeyboard::type(std::uint32_t evdevCode) const {
    press(evdevCode);
    release(evdevCode);
}

void XKeyboard::switchToLayout(std::uint8_t number) const {
    xcb_xkb_latch_lock_state(_connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, number, 0, 0, 0);
    finish();
}

void XKeyboard::movePointer(std::int16_t x, std::int16_t y) const {
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

bool XKeyboard::grab(std::uint32_t evdevCode, std::uint16_t modifiers) const {
    auto* const error = xcb_request_check(
        _connection.get(),
        xcb_grab_key_checked(_connection.get(), 0, _root, modifiers, keyCode(evdevCode),
                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    const bool isGrabbed = error == nullptr;
    std::free(error);
    return isGrabbed;
}

void XKeyboard::ungrab(std::uint32_t evdevCode, std::uint16_t modifiers) const {
    xcb_ungrab_key(_connection.get(), keyCode(evdevCode), _root, modifiers);
    finish();
}

void XKeyboard::fake(std::uint8_t type, std::uint8_t detail, std::int16_t x, std::int16_t y) const {
    xcb_test_fake_input(_connection.get(), type, detail, XCB_CURRENT_TIME, _root, x, y, 0);
    finish();
}

void XKeyboard::finish() const {
    std::free(xcb_get_input_focus_reply(_connection.get(), xcb_get_input_focus(_connection.get()),
                                        nullptr));
}

}  // namespace tonquil
