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
constexpr std::uint16_t keySection = 10;
constexpr std::uint16_t keyQ = 12;
constexpr std::uint16_t keyOne = 18;
constexpr std::uint16_t keyEqual = 24;
constexpr std::uint16_t keyBracket = 33;
constexpr std::uint16_t keySemicolon = 41;
constexpr std::uint16_t padEnter = 76;
constexpr std::uint16_t padSeven = 89;
constexpr std::uint16_t insertKey = 114;

TEST(NamedKeyboardLayout, KnowsWhatIsPrintedOnTheKeys) {
    struct Row {
        const char* layout;
        std::uint16_t keyCode;
        const char* character;
    };
    for (const Row& row : {
             Row{"us", keyA, "a"},
             Row{"us", keyZ, "z"},
             Row{"us", keyBracket, "["},
             Row{"us", padSeven, "7"},
             Row{"us", padEnter, ""},
             Row{"us", insertKey, ""},
             Row{"us", 53, ""},
             Row{"us", 999, ""},
             Row{"de", keyZ, "y"},
             Row{"de", keyBracket, "ü"},
             Row{"de", keySemicolon, "ö"},
             Row{"de", keySection, "<"},
             // The acute accent and the circumflex wait for a letter.
             Row{"de", keyEqual, ""},
             Row{"de", 50, ""},
             Row{"fr", keyA, "q"},
             Row{"fr", keyQ, "a"},
             Row{"fr", keyOne, "&"},
             Row{"fr", keyBracket, ""},
             Row{"ru", keyA, "ф"},
         }) {
        SCOPED_TRACE(std::string(row.layout) + " " + std::to_string(row.keyCode));
        const auto layout = NamedKeyboardLayout::open(row.layout);
        ASSERT_TRUE(layout);
        EXPECT_EQ((*layout)->character(row.keyCode), row.character);
    }
    EXPECT_FALSE(NamedKeyboardLayout::open("no such layout"));
}

class XkbKeyboardLayouts : public testing::Test {
 protected:
    void setLayouts(const std::string& names) const {
        const auto result =
            run({.command = {"setxkbmap", "-display", server->display(), "-layout", names}});
        ASSERT_TRUE(result && result->succeeded());
    }
    std::unique_ptr<XServer> server =
        XServer::start({.arguments = {}, .framebufferOnly = true}).value();
    XKeyboard keyboard{server->display()};
    std::unique_ptr<XkbKeyboardLayout> layout =
        XkbKeyboardLayout::open(server->display().c_str()).value();
};

TEST_F(XkbKeyboardLayouts, FollowsTheServersLayoutAndTheOneSwitchedTo) {
    setLayouts("us");
    EXPECT_EQ(layout->character(keyZ), "z");
    setLayouts("de,fr");
    EXPECT_EQ(layout->character(keyZ), "y");
    EXPECT_EQ(keyCombinationString(keyEqual, ModifierFlag::control, *layout), "⌃") << "a dead key";
    keyboard.switchToLayout(1);
    EXPECT_EQ(layout->character(keyZ), "w");
    EXPECT_EQ(layout->character(keyA), "q");
    EXPECT_EQ(layout->character(padSeven), "7") << "with one layout for all";
}

TEST_F(XkbKeyboardLayouts, KnowsNothingOnceTheServerHasGone) {
    EXPECT_NE(layout->character(keyA), "");
    server->kill();
    EXPECT_EQ(layout->character(keyA), "");
    EXPECT_FALSE(XkbKeyboardLayout::open(server->display().c_str()));
}

}  // namespace
}  // namespace tonquil
