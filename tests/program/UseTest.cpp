// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

/// The panel with real pointer and keys, its controls found by their names.
class Use : public testing::Test {
 protected:
    void SetUp() override {
        desk.startSessionBus();
        uncorrected = desk.ramp();
        desk.start();
        waitForKeyboard();
        neutral = desk.ramp();
    }
    void waitForKeyboard() const {
        EXPECT_TRUE(eventually([this] {
            return desk.run({"xdotool", "getwindowfocus", "getwindowname"}).standardOutput ==
                   "Tonquil\n";
        }));
    }
    void openDisplayMenu() const {
        desk.click(desk.panel().x + desk.panel().width / 2, desk.panel().y + 14);
        EXPECT_TRUE(eventually([this] { return desk.windows().size() == 2; }));
    }
    [[nodiscard]] bool becomes(const Ramp& ramp) const {
        return eventually([&] { return desk.ramp() == ramp; });
    }
    /// Presses a button of the pointer on a control, and leaves it down.
    void hold(const char* role, const char* name) const {
        const Desk::Place place = desk.control(role, name);
        desk.movePointer(place.x + place.width / 2, place.y + place.height / 2);
        desk.xdotool({"sleep", "0.1", "mousedown", "1"});
    }
    /// Drags the plot's middle point, which lies on the diagonal at first.
    void dragMiddlePoint(int from, int to) const {
        const Desk::Place plot = desk.control("chart", "Transfer curves");
        const std::string x = std::to_string(plot.x + plot.width / 2 + 9);
        const int middle = plot.y + plot.height / 2 - 6;
        desk.xdotool({"mousemove", x, std::to_string(middle + from), "sleep", "0.1", "mousedown",
                      "1", "mousemove", x, std::to_string(middle + (from + to) / 2), "mousemove", x,
                      std::to_string(middle + to), "mouseup", "1"});
    }
    /// The middle of a ramp, in points of the plot's height above the straight line.
    [[nodiscard]] static double lift(const std::vector<std::uint16_t>& channel) {
        constexpr double graphHeight = 185;
        return (channel.at(127) / 65280.0 - 127 / 255.0) * graphHeight;
    }

    Desk desk;
    Ramp uncorrected;
    /// What a neutral curve makes of it.
    Ramp neutral;
};

TEST_F(Use, PlotPointsFollowPointerPerChannelAndLinked) {
    dragMiddlePoint(0, -30);
    ASSERT_TRUE(eventually([&] { return std::abs(lift(desk.ramp().red) - 30) < 3; }));
    const Ramp all = desk.ramp();
    EXPECT_EQ(all.red, all.green) << "Together they are the master's point.";
    desk.clickControl("text", "Red, Middle point");
    dragMiddlePoint(-30, -50);
    ASSERT_TRUE(eventually([&] { return std::abs(lift(desk.ramp().red) - 50) < 3; }));
    EXPECT_EQ(desk.ramp().green, all.green);
    const Ramp apart = desk.ramp();
    desk.xdotool({"keydown", "shift"});
    dragMiddlePoint(-50, -40);
    desk.xdotool({"keyup", "shift"});
    EXPECT_TRUE(eventually([&] {
        const Ramp now = desk.ramp();
        return now.red.at(127) < apart.red.at(127) && now.green.at(127) < apart.green.at(127) &&
               now.green == now.blue;
    }));
    desk.xdotool({"key", "ctrl+z"});
    EXPECT_TRUE(becomes(apart));
    desk.xdotool({"key", "ctrl+z"});
    EXPECT_TRUE(becomes(all)) << "A drag is one step.";
}

TEST_F(Use, KeysChangeTabsAndHidePanel) {
    const auto hasTab = [this](int tab) {
        return eventually([&] {
            const PropertyValue stored = desk.preferences();
            return stored.contains("SelectedTab") && stored["SelectedTab"] == PropertyValue(tab);
        });
    };
    desk.xdotool({"key", "ctrl+3"});
    EXPECT_TRUE(hasTab(2));
    desk.xdotool({"key", "ctrl+Tab"});
    EXPECT_TRUE(hasTab(0));
    desk.xdotool({"key", "ctrl+shift+Tab"});
    EXPECT_TRUE(hasTab(2));
    desk.xdotool({"key", "0", "Escape"});
    EXPECT_TRUE(stays([&] { return desk.hasPanel(); })) << "It only takes back what was typed.";
    EXPECT_EQ(desk.ramp(), neutral);
    for (const char* const key : {"Escape", "ctrl+w"}) {
        desk.xdotool({"key", key});
        EXPECT_TRUE(eventually([&] { return !desk.hasPanel(); })) << key;
        desk.request("--show-panel");
        waitForKeyboard();
    }
    const Desk::Place advanced = desk.panel();
    desk.clickControl("push button", "Hide the sliders of the colours");
    EXPECT_TRUE(eventually([&] { return desk.panel().height < advanced.height / 2; }));
    desk.xdotool({"mousemove", std::to_string(advanced.x + 50), std::to_string(advanced.y + 14),
                  "click", "--repeat", "2", "--delay", "60", "1"});
    EXPECT_TRUE(eventually([&] { return desk.panel() == advanced; }));
    const Desk::Place field = desk.control("text", "Master, White point");
    desk.click(field.x + 10, field.y + 10, "5");
    EXPECT_TRUE(eventually([&] { return desk.ramp() != neutral; })) << "The wheel over a number.";
}

TEST_F(Use, ComparesWhileHeldEvenIfKilledMeanwhile) {
    constexpr const char* button = "Hold to compare with the uncorrected display";
    const Ramp corrected = desk.correct();
    hold("push button", button);
    EXPECT_TRUE(becomes(uncorrected));
    desk.xdotool({"mouseup", "1"});
    EXPECT_TRUE(becomes(corrected));
    const auto broken = desk.folder() / "broken.tonquil";
    std::ofstream(broken) << "<plist>";
    hold("push button", button);
    EXPECT_TRUE(becomes(uncorrected));
    desk.request(broken);
    EXPECT_TRUE(becomes(corrected)) << "The release goes to the alert.";
    desk.xdotool({"mouseup", "1"});
    // Whether it has the keyboard is up to the window manager.
    desk.clickControl("push button", "OK");
    waitForKeyboard();
    desk.clickControl("text", "Blue, Middle point");
    desk.clickControl("chart", "Transfer curves");
    desk.xdotool({"keydown", "space"});
    EXPECT_TRUE(becomes(uncorrected));
    EXPECT_TRUE(stays([&] { return desk.ramp() == uncorrected; }))
        << "through the key's repetition";
    desk.xdotool({"keyup", "space"});
    EXPECT_TRUE(becomes(corrected));
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(desk.recoveryFile()); }));
    hold("push button", button);
    EXPECT_TRUE(becomes(uncorrected));
    desk.program().send(SIGKILL);
    EXPECT_EQ(desk.waitForEnd(), -1);
    desk.xdotool({"mouseup", "1"});
    desk.start();
    EXPECT_TRUE(becomes(corrected));
}

TEST_F(Use, DisplayMenuMovesPanelAndIdentifiesDisplays) {
    desk.writePreferences({{"AffectAllScreens", true}});
    static_cast<void>(desk.control("push button", "Edited: All displays"));
    openDisplayMenu();
    desk.xdotool({"key", "Down", "Down", "Return"});
    EXPECT_TRUE(eventually([&] { return desk.panel().x >= 1400; }));
    desk.correct("DUMMY1", 0.55);
    EXPECT_EQ(desk.ramp(), neutral) << "Only that display is edited.";
    const auto labels = [&] { return desk.windows("--name", "^[12]: DUMMY").size(); };
    openDisplayMenu();
    desk.xdotool({"key", "Up", "Return"});
    EXPECT_TRUE(eventually([&] { return labels() == 2; }));
    EXPECT_TRUE(eventually([&] { return labels() == 0; }));
}

}  // namespace
}  // namespace tonquil
