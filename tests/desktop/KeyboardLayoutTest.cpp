// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>
#include <string>

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
constexpr std::uint16_t keyBracket = 33;
constexpr std::uint16_t padSeven = 89;

TEST(NamedKeyboardLayout, KnowsWhatIsPrintedOnTheKeys) {
    struct Row {
        const char* layout;
        std::uint16_t keyCode;
        const char* character;
    };
    for (const Row& row : {
             Row{"us", keyBracket, "["},
             Row{"us", padSeven, "7"},
             // The Enter of the pad, Insert, Escape, and no key.
             Row{"us", 76, ""},
             Row{"us", 114, ""},
             Row{"us", 53, ""},
             Row{"us", 999, ""},
             Row{"de", keyZ, "y"},
             Row{"de", keyBracket, "ü"},
             Row{"de", 10, "<"},
             // The acute accent waits for a letter.
             Row{"de", keyEqual, ""},
             Row{"fr", keyA, "q"},
             Row{"ru", keyA, "ф"},
         }) {
        SCOPED_TRACE(std::string(row.layout) + " " + std::to_string(row.keyCode));
        const auto layout = NamedKeyboardLayout::open(row.layout);
        ASSERT_TRUE(layout);
        EXPECT_EQ((*layout)->character(row.keyCode), row.character);
    }
    EXPECT_FALSE(NamedKeyboardLayout::open("no such layout"));
}

TEST(XkbKeyboardLayouts, FollowsTheServersLayoutAndTheOneSwitchedToUntilItGoes) {
    const auto server = XServer::start({.arguments = {}, .framebufferOnly = true}).value();
    const XKeyboard keyboard(server->display());
    const auto layout = XkbKeyboardLayout::open(server->display().c_str()).value();
    const auto setLayouts = [&](const std::string& names) {
        const auto result =
            run({.command = {"setxkbmap", "-display", server->display(), "-layout", names}});
        ASSERT_TRUE(result && result->succeeded());
    };
    setLayouts("us");
    EXPECT_EQ(layout->character(keyZ), "z");
    setLayouts("de,fr");
    EXPECT_EQ(layout->character(keyZ), "y");
    EXPECT_EQ(keyCombinationString(keyEqual, ModifierFlag::control, *layout), "⌃") << "a dead key";
    keyboard.switchToLayout(1);
    EXPECT_EQ(layout->character(keyZ), "w");
    EXPECT_EQ(layout->character(keyA), "q");
    EXPECT_EQ(layout->character(padSeven), "7") << "with one layout for all";
    server->kill();
    EXPECT_EQ(layout->character(keyA), "");
    EXPECT_FALSE(XkbKeyboardLayout::open(server->display().c_str()));
}

}  // namespace
}  // namespace tonquil
