// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

TEST(Panel, CorrectsDisplayUnderItOrAllAndKeepsUpperEdge) {
    Desk desk;
    desk.start();
    const Ramp right = desk.ramp("DUMMY1");
    const Ramp corrected = desk.correct();
    EXPECT_EQ(desk.ramp("DUMMY1"), right);
    const auto desktop = desk.run({"xprop", "-name", "Tonquil", "_NET_WM_DESKTOP"});
    EXPECT_NE(desktop.standardOutput.find("4294967295"), std::string::npos) << "on all workspaces";
    // It can be dragged by its upper edge, even by the display's name in the middle.
    desk.xdotool({"mousemove", "360", "214", "sleep", "0.1", "mousedown", "1", "mousemove", "390",
                  "214", "sleep", "0.2", "mousemove", "1860", "214", "mouseup", "1"});
    ASSERT_TRUE(eventually([&] { return desk.panel().x > 1600; }));
    desk.correct("DUMMY1", 0.55);
    EXPECT_EQ(desk.ramp(), corrected);

    // Another program changes settings, and the running one follows.
    const Desk::Place advanced = desk.panel();
    desk.writePreferences({{"AffectAllScreens", true}, {"AdvancedPanel", false}});
    ASSERT_TRUE(eventually([&] { return desk.panel().height < advanced.height / 2; }));
    EXPECT_EQ(desk.panel().x, advanced.x);
    EXPECT_EQ(desk.panel().y, advanced.y);
    desk.drag(Desk::masterRow, 0.65);
    EXPECT_TRUE(eventually([&] { return desk.ramp() == desk.ramp("DUMMY1"); }));
    desk.writePreferences({{"AdvancedPanel", true}});
    EXPECT_TRUE(eventually([&] { return desk.panel() == advanced; }));
}

TEST(Panel, StepsByWheelAndKeysUndoesAndLinksByShift) {
    Desk desk;
    desk.start();
    const Ramp neutral = desk.ramp();
    const Desk::Place place = desk.panel();
    const auto becomes = [&](const Ramp& ramp) {
        return eventually([&] { return desk.ramp() == ramp; });
    };
    desk.click(place.x + 150, place.y + Desk::masterRow, "4");
    ASSERT_TRUE(eventually([&] { return desk.ramp() != neutral; }));
    const Ramp stepped = desk.ramp();
    // The master's field has the focus from the start.
    desk.xdotool({"key", "Up"});
    EXPECT_TRUE(eventually([&] { return desk.ramp() != stepped; }));
    desk.xdotool({"key", "Down"});
    EXPECT_TRUE(becomes(stepped));
    desk.xdotool({"key", "ctrl+z"});
    EXPECT_TRUE(becomes(neutral));
    desk.xdotool({"key", "ctrl+shift+z"});
    EXPECT_TRUE(becomes(stepped));
    desk.xdotool({"key", "ctrl+z"});
    EXPECT_TRUE(becomes(neutral));

    desk.drag(Desk::redRow, 0.6);
    ASSERT_TRUE(eventually([&] { return desk.ramp().red != neutral.red; }));
    EXPECT_EQ(desk.ramp().green, neutral.green);
    desk.xdotool({"keydown", "shift"});
    desk.drag(Desk::redRow, 0.5);
    desk.xdotool({"keyup", "shift"});
    EXPECT_TRUE(eventually([&] {
        const Ramp now = desk.ramp();
        return now.green != neutral.green && now.green == now.blue;
    }));
}

TEST(Panel, LeavesFocusToFrontWindowUntilFieldIsClicked) {
    Desk desk;
    desk.start();
    desk.click(900, 900);
    const auto isFocused = [&](const char* name) {
        return desk.run({"xdotool", "getwindowfocus", "getwindowname"}).standardOutput == name;
    };
    const auto other = desk.begin({"xev", "-geometry", "200x200+800+700"});
    ASSERT_TRUE(eventually([&] { return isFocused("Event Tester\n"); }));
    desk.correct();
    EXPECT_TRUE(isFocused("Event Tester\n"));
    const auto accepts = [&](const char* answer) {
        const auto hints = desk.run({"xprop", "-name", "Tonquil", "WM_HINTS"}).standardOutput;
        return hints.find(answer) != std::string::npos;
    };
    EXPECT_TRUE(accepts("input focus: False"));
    // Some window managers decide on the press.
    const Desk::Place place = desk.panel();
    desk.movePointer(place.x + place.width - 30, place.y + Desk::masterRow);
    EXPECT_TRUE(eventually([&] { return accepts("input focus: True"); }));
    desk.click(place.x + place.width - 30, place.y + Desk::masterRow);
    EXPECT_TRUE(eventually([&] { return isFocused("Tonquil\n"); }));
}

}  // namespace
}  // namespace tonquil
