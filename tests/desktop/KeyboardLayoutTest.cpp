// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <string>
#include <tuple>

#include "hotkeys/KeyCombinationString.h"
#include "platform/xkb/NamedKeyboardLayout.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "tests/support/XKeyboard.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

constexpr std::uint16_t keyA = 0;
constexpr std::uint16_t keyZ = 6;
constexpr std::uint16_t keyEqual = 24;
constexpr std::uint16_t padSeven = 89;

TEST(NamedKeyboardLayout, ReturnsKeyLabels) {
    // The keypad's Enter, and a nonexistent key; the German acute accent is a dead key.
    for (const auto& [name, keyCode, character] : {std::tuple("us", padSeven, "7"),
                                                   {"us", 76, ""},
                                                   {"us", 999, ""},
                                                   {"de", keyZ, "y"},
                                                   {"de", 33, "ü"},
                                                   {"de", 10, "<"},
                                                   {"de", keyEqual, ""},
                                                   {"ru", keyA, "ф"}}) {
        SCOPED_TRACE(std::string(name) + " " + std::to_string(keyCode));
        EXPECT_EQ(NamedKeyboardLayout::open(name).value()->character(keyCode), character);
    }
    EXPECT_FALSE(NamedKeyboardLayout::open("no such layout"));
}

TEST(XkbKeyboardLayout, FollowsServerLayoutUntilDisconnected) {
    const auto server = XServer::start({.framebufferOnly = true}).value();
    const XKeyboard keyboard(server->display());
    const auto layout = XkbKeyboardLayout::open(server->display().c_str()).value();
    const auto result = run({.command = {"setxkbmap", "-display", server->display(), "-layout",
                                         "de,fr", "-option", "grp:rctrl_toggle"}});
    ASSERT_TRUE(result && result->succeeded());
    EXPECT_EQ(layout->character(keyZ), "y");
    EXPECT_EQ(keyCombinationString(keyEqual, ModifierFlag::control, *layout), "⌃") << "a dead key";
    keyboard.type(KEY_RIGHTCTRL);
    EXPECT_EQ(layout->character(keyZ), "w");
    EXPECT_EQ(layout->character(padSeven), "7") << "with one layout for all";
    server->kill();
    EXPECT_EQ(layout->character(keyA), "");
    EXPECT_FALSE(XkbKeyboardLayout::open(server->display().c_str()));
}

}  // namespace
}  // namespace tonquil
