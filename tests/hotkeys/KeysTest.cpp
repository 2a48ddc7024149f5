// SPDX-License-Identifier: MIT
#include "hotkeys/VirtualKeys.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>

#include "hotkeys/KeyCombinationString.h"
#include "tests/hotkeys/TableLayout.h"

namespace tonquil {
namespace {

TEST(KeyCombinationString, ShowsModifiersInOrderThenKey) {
    TableLayout layout;
    layout.set(36, "the layout is not asked for a key with a glyph");
    constexpr std::uint16_t deadKey = 24;
    struct Row {
        std::uint16_t keyCode;
        ModifierFlags flags;
        const char* text;
    };
    for (const Row& row : {
             Row{0, 0, "a"},
             Row{12, ModifierFlag::command, "⌘q"},
             Row{122, 0x1E0000, "⌃⌥⇧⌘F1"},
             Row{36, ModifierFlag::shift, "⇧↩"},
             Row{123, ModifierFlag::function | ModifierFlag::numericPad | ModifierFlag::capsLock,
                 "←"},
             // A left modifier key only shows as its flag; a right one also as a key.
             Row{56, ModifierFlag::shift, "⇧"},
             Row{56, 0, ""},
             Row{55, ModifierFlag::control, "⌃"},
             Row{60, ModifierFlag::shift, "⇧⇧"},
             Row{63, 0, "⌘"},
             Row{deadKey, ModifierFlag::control | ModifierFlag::option, "⌃⌥"},
         }) {
        SCOPED_TRACE(row.keyCode);
        EXPECT_EQ(keyCombinationString(row.keyCode, row.flags, layout), row.text);
    }
}

TEST(VirtualKeys, MatchKernelKeyCodes) {
    struct Row {
        std::uint16_t keyCode;
        std::uint32_t evdevCode;
    };
    for (const Row& row : {Row{0, KEY_A},          Row{4, KEY_H},          Row{5, KEY_G},
                           Row{16, KEY_Y},         Row{6, KEY_Z},          Row{10, KEY_102ND},
                           Row{22, KEY_6},         Row{23, KEY_5},         Row{25, KEY_9},
                           Row{26, KEY_7},         Row{29, KEY_0},         Row{36, KEY_ENTER},
                           Row{50, KEY_GRAVE},     Row{55, KEY_LEFTMETA},  Row{58, KEY_LEFTALT},
                           Row{62, KEY_RIGHTCTRL}, Row{76, KEY_KPENTER},   Row{89, KEY_KP7},
                           Row{91, KEY_KP8},       Row{96, KEY_F5},        Row{99, KEY_F3},
                           Row{103, KEY_F11},      Row{105, KEY_F13},      Row{90, KEY_F20},
                           Row{110, KEY_COMPOSE},  Row{114, KEY_INSERT},   Row{117, KEY_DELETE},
                           Row{116, KEY_PAGEUP},   Row{121, KEY_PAGEDOWN}, Row{123, KEY_LEFT},
                           Row{125, KEY_DOWN},     Row{126, KEY_UP}}) {
        SCOPED_TRACE(row.keyCode);
        EXPECT_EQ(evdevForVirtualKey(row.keyCode), row.evdevCode);
    }
    // Every key round-trips through its code, and no code occurs twice.
    std::set<std::uint32_t> codes;
    for (std::uint16_t keyCode = 0; keyCode < 256; ++keyCode) {
        if (const auto code = evdevForVirtualKey(keyCode)) {
            EXPECT_EQ(virtualKeyForEvdev(*code), keyCode);
            EXPECT_TRUE(codes.insert(*code).second) << *code;
        }
    }
    EXPECT_GT(codes.size(), 110U);
    EXPECT_FALSE(virtualKeyForEvdev(KEY_SYSRQ));
    EXPECT_FALSE(evdevForVirtualKey(VirtualKey::function));
}

}  // namespace
}  // namespace tonquil
