// SPDX-License-Identifier: MIT
#include "tests/support/XKeyboard.h"

#include <xcb/xtest.h>

#include "tests/support/Succeeded.h"

namespace tonquil {

bool XKeyboard::grab(int evdevCode, int modifiers) const {
    const auto cookie =
        xcb_grab_key_checked(_x.connection(), 0, _x.root(), static_cast<std::uint16_t>(modifiers),
                             static_cast<std::uint8_t>(evdevCode + firstKeyCode),
                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return _x.check(cookie, "Another program holds it.").has_value();
}

void XKeyboard::ungrab(int evdevCode, int modifiers) const {
    const auto cookie =
        xcb_ungrab_key_checked(_x.connection(), static_cast<std::uint8_t>(evdevCode + firstKeyCode),
                               _x.root(), static_cast<std::uint16_t>(modifiers));
    mustSucceed(_x.check(cookie, "The key is not let go."));
}

void XKeyboard::fake(std::uint8_t type, int detail, std::int16_t x, std::int16_t y) const {
    const auto cookie =
        xcb_test_fake_input_checked(_x.connection(), type, static_cast<std::uint8_t>(detail),
                                    XCB_CURRENT_TIME, _x.root(), x, y, 0);
    mustSucceed(_x.check(cookie, "The input is not taken."));
}

}  // namespace tonquil
