// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <linux/input-event-codes.h>

#include <string>
#include <thread>

#include "tests/program/Desk.h"
#include "tests/support/XKeyboard.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

constexpr int controlAndShift = 0x40000 | 0x20000;

/// Control+Shift+F5 switches the correction, and with F6 it shows the panel.
const PropertyValue hotKeys = {{"UseHotKey", true},
                               {"UseHotKeyCode", 96},
                               {"UseHotKeyModifiers", controlAndShift},
                               {"PanelHotKey", true},
                               {"PanelHotKeyCode", 97},
                               {"PanelHotKeyModifiers", controlAndShift},
                               {"Window Frame ControlWindow", "200 200 320 470"}};

class HotKeys : public testing::Test {
 protected:
    // Keys have their usual codes only once a keyboard is set up.
    HotKeys() {
        mustSetUpKeyboard();
        neutral = desk.ramp("DUMMY0");
    }
    void mustSetUpKeyboard() const {
        const auto result =
            run(desk.request({"setxkbmap", "-rules", "evdev", "-model", "pc105", "-layout", "us"}));
        ASSERT_TRUE(result && result->succeeded());
    }

    void press(const std::string& key) const {
        desk.xdotool({"keydown", "ctrl", "keydown", "shift", "keydown", key});
    }
    void release(const std::string& key) const {
        desk.xdotool({"keyup", key, "keyup", "shift", "keyup", "ctrl"});
    }
    void tap(const std::string& key) const {
        press(key);
        release(key);
    }
    /// Shows the panel by a tap at a place; gives where the pointer then is on the panel.
    [[nodiscard]] Desk::Point pointerOnPanelAfterTapAt(const Desk::Point& place) const {
        desk.movePointer(place);
        tap("F6");
        EXPECT_TRUE(eventually([this] { return desk.hasPanel(); }));
        Desk::Point onPanel;
        const auto look = [&] {
            const Desk::Place panel = desk.panel();
            const Desk::Point pointer = desk.pointer();
            return Desk::Point{pointer.x - panel.x, pointer.y - panel.y};
        };
        EXPECT_TRUE(eventually([&] {
            onPanel = look();
            return stays([&] { return look() == onPanel; }, milliseconds(150));
        }));
        return onPanel;
    }
    void hidePanel() const {
        tap("F6");
        EXPECT_TRUE(eventually([this] { return !desk.hasPanel(); }));
    }

    Desk desk;
    Ramp neutral;
};

TEST_F(HotKeys, TheToggleSwitchesTheCorrectionWhateverLocksAreOn) {
    desk.start(hotKeys);
    desk.drag(Desk::masterRow, 0.6);
    ASSERT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != neutral; }));
    for (const std::string lock : {"", "Num_Lock", "Caps_Lock"}) {
        SCOPED_TRACE(lock);
        if (!lock.empty()) {
            desk.xdotool({"key", lock});
        }
        tap("F5");
        EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") == neutral; }));
        tap("F5");
        EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != neutral; }));
    }
}

TEST_F(HotKeys, ATapBringsTheKnobToThePointerToThePixel) {
    desk.start(hotKeys);
    // A drag leaves the knob where it ends, so the panel itself says where that is.
    const double end = 0.6;
    desk.drag(Desk::masterRow, end);
    ASSERT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != neutral; }));
    const int knobX = static_cast<int>(desk.panel().width * end);
    hidePanel();
    const Desk::Point knob = pointerOnPanelAfterTapAt({700, 500});
    EXPECT_EQ(desk.pointer(), (Desk::Point{700, 500})) << "The panel comes to the pointer.";
    EXPECT_NEAR(knob.x, knobX, 1);
    EXPECT_NEAR(knob.y, Desk::masterRow, 12);
    EXPECT_TRUE(stays([&] { return desk.hasPanel(); })) << "A tap leaves it.";
    hidePanel();

    // Near an edge the panel stays on its display, and the pointer comes to the knob.
    struct Row {
        const char* name;
        Desk::Point pointer;
        Desk::Place display;
    };
    const Desk::Place left{0, 0, 1400, 1050};
    for (const Row& row : {Row{"upper left", {3, 3}, left}, Row{"lower right", {1397, 1047}, left},
                           Row{"right edge", {1390, 500}, left}}) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(pointerOnPanelAfterTapAt(row.pointer), knob);
        const Desk::Place panel = desk.panel();
        EXPECT_GE(panel.x, row.display.x);
        EXPECT_GE(panel.y, row.display.y);
        EXPECT_LE(panel.x + panel.width, row.display.x + row.display.width);
        EXPECT_LE(panel.y + panel.height, row.display.y + row.display.height);
        hidePanel();
    }
    // The other display's curve is neutral, which is the middle of the slider.
    const Desk::Point middle = pointerOnPanelAfterTapAt({2000, 500});
    EXPECT_EQ(desk.pointer(), (Desk::Point{2000, 500}));
    EXPECT_LT(middle.x, knob.x - 10);
    EXPECT_EQ(middle.y, knob.y);
}

TEST_F(HotKeys, HoldingShowsThePanelForThatLongAndPutsEverythingBack) {
    desk.start(hotKeys);
    hidePanel();
    for (const bool isMoved : {false, true}) {
        SCOPED_TRACE(isMoved);
        const Desk::Point before{1398, 1048};
        desk.movePointer(before);
        press("F6");
        EXPECT_TRUE(eventually([&] { return desk.hasPanel() && desk.pointer() != before; }));
        std::this_thread::sleep_for(milliseconds(500));
        const Desk::Point moved{900, 600};
        if (isMoved) {
            desk.movePointer(moved);
        }
        release("F6");
        EXPECT_TRUE(eventually([&] { return !desk.hasPanel(); }));
        EXPECT_TRUE(eventually([&] { return desk.pointer() == (isMoved ? moved : before); }));
    }
    EXPECT_TRUE(desk.runBeside({"--show-panel"}).succeeded());
    ASSERT_TRUE(eventually([&] { return desk.hasPanel(); }));
    EXPECT_EQ(desk.panel().x, 200);
    EXPECT_EQ(desk.panel().y, 200);
}

TEST_F(HotKeys, ACombinationThatAnotherProgramHoldsIsSaidToBe) {
    const XKeyboard other(desk.server().display());
    ASSERT_TRUE(other.grab(KEY_F5, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT));
    desk.start(hotKeys);
    EXPECT_THAT(desk.program().standardError(),
                HasSubstr("The hot key for the correction does not work. Another program"));
    EXPECT_THAT(desk.program().standardError(), Not(HasSubstr("The hot key for the panel")));
    // The other one works all the same.
    hidePanel();
    other.ungrab(KEY_F5, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
}

}  // namespace
}  // namespace tonquil
