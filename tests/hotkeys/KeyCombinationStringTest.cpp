// SPDX-License-Identifier: MIT
#include "hotkeys/KeyCombinationString.h"

#include <gtest/gtest.h>

#include "tests/hotkeys/TableLayout.h"

namespace tonquil {
namespace {

TEST(KeyCombinationString, IsTheModifiersInTheirOrderAndThenTheKey) {
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
             Row{90, 0, "F20"},
             Row{36, ModifierFlag::shift, "⇧↩"},
             Row{123, ModifierFlag::function | ModifierFlag::numericPad | ModifierFlag::capsLock,
                 "←"},
             Row{117, ModifierFlag::option, "⌥⌦"},
             // A left modifier key stands in its flag alone; a right one is a key as well.
             Row{56, ModifierFlag::shift, "⇧"},
             Row{56, 0, ""},
             Row{55, ModifierFlag::control, "⌃"},
             Row{60, ModifierFlag::shift, "⇧⇧"},
             Row{57, 0, "⇪"},
             Row{63, 0, "⌘"},
             Row{deadKey, ModifierFlag::control | ModifierFlag::option, "⌃⌥"},
         }) {
        SCOPED_TRACE(row.keyCode);
        EXPECT_EQ(keyCombinationString(row.keyCode, row.flags, layout), row.text);
    }
}

}  // namespace
}  // namespace tonquil
