// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;

constexpr int controlAndShift = 0x40000 | 0x20000;

/// Control+Shift+F5 toggles the correction; with F6 it shows the panel.
const PropertyValue hotKeys = {
    {"UseHotKey", true},   {"UseHotKeyCode", 96},   {"UseHotKeyModifiers", controlAndShift},
    {"PanelHotKey", true}, {"PanelHotKeyCode", 97}, {"PanelHotKeyModifiers", controlAndShift}};

class HotKeys : public testing::Test {
 protected:
    // Keys have their usual codes only once a keyboard is set up.
    void SetUp() override {
        ASSERT_TRUE(desk.run({"setxkbmap", "-rules", "evdev", "-model", "pc105", "-layout", "us"})
                        .succeeded());
        neutral = desk.ramp();
        desk.start(hotKeys);
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
    /// Shows the panel by tapping its hot key with the pointer at a position; returns the pointer's
    /// position on the panel afterwards.
    [[nodiscard]] Desk::Place pointerOnPanelAfterTapAt(int x, int y) const {
        desk.movePointer(x, y);
        tap("F6");
        EXPECT_TRUE(eventually([this] { return desk.hasPanel(); }));
        const auto look = [this] {
            const Desk::Place panel = desk.panel();
            const Desk::Place pointer = desk.pointer();
            return Desk::Place{pointer.x - panel.x, pointer.y - panel.y};
        };
        Desk::Place onPanel;
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

TEST_F(HotKeys, ToggleCorrectionAndAlignKnobWithPointer) {
    // A drag leaves the knob where it ends, so the panel itself shows where that is.
    const Ramp corrected = desk.correct("DUMMY0", 0.6);
    const int knobX = desk.panel().width * 6 / 10;
    tap("F5");
    EXPECT_TRUE(eventually([&] { return desk.ramp() == neutral; }));
    tap("F5");
    EXPECT_TRUE(eventually([&] { return desk.ramp() == corrected; }));

    hidePanel();
    const Desk::Place knob = pointerOnPanelAfterTapAt(700, 500);
    EXPECT_EQ(desk.pointer(), (Desk::Place{700, 500})) << "The panel comes to the pointer.";
    EXPECT_NEAR(knob.x, knobX, 1);
    EXPECT_NEAR(knob.y, Desk::masterRow, 12);
    EXPECT_TRUE(stays([&] { return desk.hasPanel(); })) << "A tap leaves it.";
    hidePanel();
    // Near an edge the panel stays on its display, and the pointer moves to the knob.
    for (const auto& [x, y] : {std::pair(3, 3), {1397, 1047}}) {
        SCOPED_TRACE(x);
        EXPECT_EQ(pointerOnPanelAfterTapAt(x, y), knob);
        const Desk::Place panel = desk.panel();
        EXPECT_TRUE(panel.x >= 0 && panel.y >= 0 && panel.x + panel.width <= 1400 &&
                    panel.y + panel.height <= 1050);
        hidePanel();
    }
    // The other display's curve is neutral, which is the middle of the slider. That is so even in a
    // run that has never shown the panel.
    const Desk::Place middle = pointerOnPanelAfterTapAt(2000, 500);
    EXPECT_EQ(desk.pointer(), (Desk::Place{2000, 500}));
    EXPECT_LT(middle.x, knob.x - 10);
    EXPECT_EQ(middle.y, knob.y);
    desk.request("--quit");
    ASSERT_EQ(desk.waitForEnd(), 0);
    desk.writePreferences({{"ShowAtLaunch", false}});
    EXPECT_TRUE(desk.run({TONQUILCTL, "restore"}).succeeded());
    desk.startWithoutPanel();
    // By then it holds the instance's place; an earlier request would become the first instance
    // itself.
    ASSERT_TRUE(eventually([&] { return desk.ramp() == corrected; }));
    ASSERT_TRUE(eventually([&] { return desk.run({TONQUIL, "--on"}).succeeded(); }));
    EXPECT_EQ(pointerOnPanelAfterTapAt(1900, 500), middle);
}

TEST_F(HotKeys, ShowPanelWhileHeldAndRestoreEverything) {
    hidePanel();
    for (const bool isMoved : {false, true}) {
        SCOPED_TRACE(isMoved);
        desk.movePointer(1398, 1048);
        const Desk::Place before = desk.pointer();
        press("F6");
        EXPECT_TRUE(eventually([&] { return desk.hasPanel() && desk.pointer() != before; }));
        EXPECT_TRUE(stays([&] { return desk.hasPanel(); }, milliseconds(500)));
        if (isMoved) {
            desk.movePointer(900, 600);
        }
        release("F6");
        EXPECT_TRUE(eventually([&] { return !desk.hasPanel(); }));
        EXPECT_TRUE(eventually([&] {
            return desk.pointer() == (isMoved ? Desk::Place{900, 600} : before);
        }));
    }
    desk.request("--show-panel");
    ASSERT_TRUE(eventually([&] { return desk.hasPanel(); }));
    EXPECT_EQ(desk.panel().x, 200);
    EXPECT_EQ(desk.panel().y, 200);
}

}  // namespace
}  // namespace tonquil
