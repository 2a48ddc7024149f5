// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <string>

#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

class Preferences : public testing::Test {
 protected:
    void open() const {
        EXPECT_TRUE(desk.runBeside({"--preferences"}).succeeded());
        EXPECT_TRUE(eventually([this] { return !window().empty(); }));
    }
    [[nodiscard]] std::string window() const {
        return desk.outputOf({"xdotool", "search", "--onlyvisible", "--name", "^Preferences"});
    }
    /// Clicks a place of the window, from its upper left corner.
    void click(int x, int y) const {
        desk.xdotool({"search", "--onlyvisible", "--name", "^Preferences", "mousemove", "--window",
                      "%1", std::to_string(x), std::to_string(y), "click", "1"});
    }
    [[nodiscard]] bool hasSetting(const std::string& key, bool value) const {
        const PropertyValue stored = desk.preferences();
        return stored.contains(key) && stored[key] == PropertyValue(value);
    }

    Desk desk;
};

constexpr int checkX = 19;
constexpr int radioX = 170;
/// The window's controls from top to bottom, and what a click on each stores.
struct Control {
    int x;
    int y;
    const char* key;
    bool value;
};
constexpr std::array controls{Control{checkX, 43, "ShowAtLaunch", false},
                              Control{checkX, 97, "RememberSettings", false},
                              Control{checkX, 123, "ContinuouslyApply", false},
                              Control{checkX, 159, "AdvancedPanel", false},
                              Control{checkX, 186, "ChannelStrip", true},
                              Control{checkX, 212, "ShowTargetHints", false},
                              Control{checkX, 240, "DarkTheme", false},
                              Control{radioX, 298, "AffectAllScreens", true},
                              Control{radioX, 348, "ToggleApply", true},
                              Control{radioX, 398, "ShowStatusItem", true},
                              Control{checkX, 457, "UseHotKey", true},
                              Control{checkX, 489, "PanelHotKey", true}};

TEST_F(Preferences, AClickOnEachControlIsStoredAndKeptByTheNextStart) {
    const Ramp neutral = desk.ramp("DUMMY0");
    desk.start({{"Window Frame ControlWindow", "1000 200 320 470"}});
    const int advanced = desk.panel().height;
    open();
    for (const Control& control : controls) {
        SCOPED_TRACE(control.key);
        click(control.x, control.y);
        EXPECT_TRUE(eventually([&] { return hasSetting(control.key, control.value); }));
    }
    EXPECT_LT(desk.panel().height, advanced) << "The compact form came at once.";
    desk.xdotool({"key", "Escape", "key", "Escape"});
    desk.drag(Desk::masterRow, 0.6);
    EXPECT_TRUE(eventually([&] {
        return desk.ramp("DUMMY0") != neutral && desk.ramp("DUMMY0") == desk.ramp("DUMMY1");
    }));

    desk.program().send(SIGTERM);
    ASSERT_EQ(desk.waitForEnd(), 0) << desk.program().standardError();
    desk.startWithoutPanel({});
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") == neutral; }))
        << "It starts without correcting.";
    EXPECT_FALSE(desk.hasPanel()) << "It starts without its panel.";
    open();
    // Each shows what is stored: another click takes the boxes back.
    for (const Control& control : controls) {
        SCOPED_TRACE(control.key);
        EXPECT_TRUE(hasSetting(control.key, control.value));
        if (control.x == checkX) {
            click(control.x, control.y);
            EXPECT_TRUE(eventually([&] { return hasSetting(control.key, !control.value); }));
        }
    }
}

TEST_F(Preferences, TheWindowComesBackWhereItWas) {
    // By its contents: what is to stay is what the person sees, with whatever border.
    const auto place = [&] {
        const std::string text = desk.outputOf({"xwininfo", "-name", "Preferences — Tonquil"});
        return text.substr(0, text.find("Relative"))
            .substr(std::min(text.size(), text.find("Absolute")));
    };
    desk.start();
    open();
    desk.xdotool({"search", "--onlyvisible", "--name", "^Preferences", "windowmove", "500", "300",
                  "windowactivate"});
    ASSERT_TRUE(eventually([&] { return place().find(" 300\n") != std::string::npos; }));
    const std::string moved = place();
    const auto close = [&] {
        desk.xdotool({"key", "Escape"});
        EXPECT_TRUE(eventually([&] { return window().empty(); }));
    };
    close();
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; })) << place();
    desk.program().send(SIGTERM);
    ASSERT_EQ(desk.waitForEnd(), 0);
    desk.start();
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; })) << place();
    EXPECT_TRUE(stays([&] { return place() == moved; }));
}

TEST_F(Preferences, TheEntryForTheLoginStartsTheProgram) {
    desk.start();
    open();
    click(checkX, 70);
    const auto entry =
        desk.preferencesFile().parent_path().parent_path() / "autostart/tonquil.desktop";
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(entry); }));
    // A program that lies here and not where programs are installed comes with advice.
    const auto hasAdvice = [&] { return desk.windows().size() == 3; };
    EXPECT_TRUE(eventually(hasAdvice));
    desk.xdotool({"key", "Return"});
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 2; }));
    EXPECT_TRUE(desk.runBeside({"--quit"}).succeeded());
    ASSERT_EQ(desk.waitForEnd(), 0);

    std::ifstream file(entry);
    std::string command;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Exec=")) {
            command = line.substr(5);
        }
    }
    const auto started = BackgroundProcess::start(desk.request({"sh", "-c", "exec " + command}));
    ASSERT_TRUE(succeeded(started));
    EXPECT_TRUE(eventually([&] { return desk.hasPanel(); })) << command;
    EXPECT_TRUE(desk.runBeside({"--quit"}).succeeded());
}

}  // namespace
}  // namespace tonquil
