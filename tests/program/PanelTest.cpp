// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

/// On the left display, away from its edges.
const PropertyValue onTheLeft = {{"Window Frame ControlWindow", "200 200 320 470"}};

class Panel : public testing::Test {
 protected:
    [[nodiscard]] bool differs(const std::string& connector, const Ramp& from) const {
        return desk.ramp(connector) != from;
    }

    Desk desk;
};

TEST_F(Panel, ADragCorrectsTheDisplayUnderItOrAll) {
    desk.start(onTheLeft);
    const Ramp left = desk.ramp("DUMMY0");
    const Ramp right = desk.ramp("DUMMY1");
    desk.drag(Desk::masterRow, 0.6);
    EXPECT_TRUE(eventually([&] { return differs("DUMMY0", left); }));
    EXPECT_EQ(desk.ramp("DUMMY1"), right);

    desk.movePanel(1700, 200);
    const Ramp corrected = desk.ramp("DUMMY0");
    desk.drag(Desk::masterRow, 0.55);
    EXPECT_TRUE(eventually([&] { return differs("DUMMY1", right); }));
    EXPECT_EQ(desk.ramp("DUMMY0"), corrected);

    // Another program changes a setting, and the running one follows.
    desk.writePreferences({{"AffectAllScreens", true}});
    EXPECT_TRUE(eventually([&] {
        desk.drag(Desk::masterRow, 0.65);
        return desk.ramp("DUMMY0") == desk.ramp("DUMMY1");
    }));
}

TEST_F(Panel, ShiftMovesTheOtherColoursAlong) {
    desk.start(onTheLeft);
    const Ramp neutral = desk.ramp("DUMMY0");
    desk.drag(Desk::redRow, 0.6);
    ASSERT_TRUE(eventually([&] { return differs("DUMMY0", neutral); }));
    Ramp now = desk.ramp("DUMMY0");
    EXPECT_NE(now.red, neutral.red);
    EXPECT_EQ(now.green, neutral.green);

    desk.xdotool({"keydown", "shift"});
    desk.drag(Desk::redRow, 0.5);
    desk.xdotool({"keyup", "shift"});
    EXPECT_TRUE(eventually([&] {
        now = desk.ramp("DUMMY0");
        return now.green != neutral.green && now.green == now.blue;
    }));
}

TEST_F(Panel, TheWheelAndTheKeysStepAndUndoTakesThemBack) {
    desk.start(onTheLeft);
    const Ramp neutral = desk.ramp("DUMMY0");
    const Desk::Place place = desk.panel();
    desk.xdotool(
        {"mousemove", std::to_string(place.x + 150), std::to_string(place.y + 76), "click", "4"});
    ASSERT_TRUE(eventually([&] { return differs("DUMMY0", neutral); }));
    const Ramp stepped = desk.ramp("DUMMY0");
    // The master's field has the focus from the start.
    desk.xdotool({"key", "Up"});
    EXPECT_TRUE(eventually([&] { return differs("DUMMY0", stepped); }));
    desk.xdotool({"key", "Down"});
    EXPECT_TRUE(eventually([&] { return !differs("DUMMY0", stepped); }));
    desk.xdotool({"key", "ctrl+z"});
    EXPECT_TRUE(eventually([&] { return !differs("DUMMY0", neutral); }));
    desk.xdotool({"key", "ctrl+shift+z"});
    EXPECT_TRUE(eventually([&] { return !differs("DUMMY0", stepped); }));
}

TEST_F(Panel, IsUsedWithoutTakingTheKeyboardFromTheWindowInFront) {
    desk.start(onTheLeft);
    desk.xdotool({"mousemove", "900", "900", "click", "1"});
    const auto focused = [&] {
        return run({.command = {"xdotool", "getwindowfocus", "getwindowname"},
                    .environment = {{"DISPLAY", desk.server().display()}}})
            .value()
            .standardOutput;
    };
    const auto other =
        BackgroundProcess::start({.command = {"xev", "-geometry", "200x200+800+700"},
                                  .environment = {{"DISPLAY", desk.server().display()}}});
    ASSERT_TRUE(succeeded(other));
    ASSERT_TRUE(eventually([&] { return focused() == "Event Tester\n"; })) << focused();
    const Ramp before = desk.ramp("DUMMY0");
    desk.drag(Desk::masterRow, 0.6);
    ASSERT_TRUE(eventually([&] { return differs("DUMMY0", before); }));
    EXPECT_EQ(focused(), "Event Tester\n");
    // A field takes it when it is clicked.
    const Desk::Place place = desk.panel();
    desk.xdotool({"mousemove", std::to_string(place.x + place.width - 30),
                  std::to_string(place.y + Desk::masterRow), "click", "1"});
    EXPECT_TRUE(eventually([&] { return focused() == "Tonquil\n"; })) << focused();
}

TEST_F(Panel, ItsFormKeepsTheUpperEdge) {
    desk.start(onTheLeft);
    const Desk::Place advanced = desk.panel();
    desk.writePreferences({{"AdvancedPanel", false}});
    ASSERT_TRUE(eventually([&] { return desk.panel().height < advanced.height / 2; }));
    EXPECT_EQ(desk.panel().x, advanced.x);
    EXPECT_EQ(desk.panel().y, advanced.y);
    desk.writePreferences({{"AdvancedPanel", true}});
    EXPECT_TRUE(eventually([&] { return desk.panel().height == advanced.height; }));
    EXPECT_EQ(desk.panel().y, advanced.y);
}

}  // namespace
}  // namespace tonquil
