// SPDX-License-Identifier: MIT
#include "hotkeys/VirtualKeys.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <vector>

namespace tonquil {
namespace {

TEST(VirtualKeys, EveryKeyOfAKeyboardComesBackFromItsOwnCode) {
    std::size_t count = 0;
    for (std::uint32_t code = 0; code < 256; ++code) {
        SCOPED_TRACE(code);
        if (const auto keyCode = virtualKeyForEvdev(code)) {
            EXPECT_EQ(evdevForVirtualKey(*keyCode), code);
            ++count;
        }
    }
    std::size_t back = 0;
    for (std::uint16_t keyCode = 0; keyCode < 256; ++keyCode) {
        back += evdevForVirtualKey(keyCode) ? 1 : 0;
    }
    EXPECT_EQ(count, back) << "no evdev code is listed twice";
    EXPECT_GT(count, 110U);
}

TEST(VirtualKeys, AreTheKeysThatTheKernelMeans) {
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
    EXPECT_FALSE(virtualKeyForEvdev(KEY_SYSRQ));
    EXPECT_FALSE(evdevForVirtualKey(VirtualKey::function));
}

}  // namespace
}  // namespace tonquil
