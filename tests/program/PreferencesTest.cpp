// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

class Preferences : public testing::Test {
 protected:
    void open() const {
        desk.request("--preferences");
        EXPECT_TRUE(eventually([this] { return isOpen(); }));
    }
    [[nodiscard]] bool isOpen() const {
        return desk.run({"xdotool", "search", "--onlyvisible", "--name", "^Preferences"})
            .succeeded();
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
    void end() {
        desk.program().send(SIGTERM);
        ASSERT_EQ(desk.waitForEnd(), 0) << desk.program().standardError();
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

TEST_F(Preferences, AreStoredByAClickTakeEffectAndAreKeptByTheNextStart) {
    const Ramp neutral = desk.ramp();
    desk.start({{"Window Frame ControlWindow", "1000 200 320 470"}});
    const int advanced = desk.panel().height;
    open();
    for (const Control& control : controls) {
        click(control.x, control.y);
        EXPECT_TRUE(eventually([&] { return hasSetting(control.key, control.value); }))
            << control.key;
    }
    EXPECT_LT(desk.panel().height, advanced) << "The compact form came at once.";
    EXPECT_NE(desk.ramp(), neutral);
    end();
    desk.startWithoutPanel();
    EXPECT_TRUE(eventually([&] { return desk.ramp() == neutral; }))
        << "It starts without correcting.";
    EXPECT_FALSE(desk.hasPanel()) << "It starts without its panel.";
    open();
    // Each shows what is stored: another click takes the boxes back.
    for (const Control& control : controls) {
        EXPECT_TRUE(hasSetting(control.key, control.value)) << control.key;
        if (control.x == checkX) {
            click(control.x, control.y);
            EXPECT_TRUE(eventually([&] { return hasSetting(control.key, !control.value); }))
                << control.key;
        }
    }
}

TEST_F(Preferences, ComeBackWhereTheirWindowWasAndWriteAnEntryThatStartsTheProgram) {
    // By its contents: what is to stay is what the person sees, with whatever border.
    const auto place = [&] {
        const std::string text =
            desk.run({"xwininfo", "-name", "Preferences — Tonquil"}).standardOutput;
        return text.substr(0, text.find("Relative"))
            .substr(std::min(text.size(), text.find("Absolute")));
    };
    desk.start();
    open();
    desk.xdotool({"search", "--onlyvisible", "--name", "^Preferences", "windowmove", "600", "300",
                  "windowactivate"});
    ASSERT_TRUE(eventually([&] { return place().find(" 300\n") != std::string::npos; }));
    const std::string moved = place();
    desk.xdotool({"key", "Escape"});
    EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; })) << place();
    end();
    desk.start();
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; })) << place();
    EXPECT_TRUE(stays([&] { return place() == moved; }));

    click(checkX, 70);
    const auto entry = desk.folder() / "config/autostart/tonquil.desktop";
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(entry); }));
    // A program that lies here and not where programs are installed comes with advice.
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 3; }));
    desk.xdotool({"key", "Return"});
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 2; }));
    end();
    std::ifstream file(entry);
    std::string command;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Exec=")) {
            command = line.substr(5);
        }
    }
    const auto started = desk.begin({"sh", "-c", "exec " + command});
    EXPECT_TRUE(eventually([&] { return desk.hasPanel(); })) << command;
    desk.request("--quit");
}

}  // namespace
}  // namespace tonquil
