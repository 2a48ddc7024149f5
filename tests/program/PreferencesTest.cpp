// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>

#include "tests/program/Controls.h"
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
    /// Clicks the box or the button of a control.
    void click(const char* role, const char* name) const {
        const auto place = controls.find(role, name);
        ASSERT_TRUE(place) << name;
        desk.click(place->x + place->height / 2, place->y + place->height / 2);
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
    const Controls controls{desk};
};

constexpr const char* check = "check box";
constexpr const char* radio = "radio button";
/// The window's controls from top to bottom, and what a click on each stores.
struct Setting {
    const char* role;
    const char* name;
    const char* key;
    bool value;
};
constexpr std::array settings{
    Setting{check, "Show the panel when Tonquil starts", "ShowAtLaunch", false},
    Setting{check, "Correct the displays as soon as Tonquil starts", "RememberSettings", false},
    Setting{check, "Apply the curves again every few seconds", "ContinuouslyApply", false},
    Setting{check, "Show sliders for the single channels", "AdvancedPanel", false},
    Setting{check, "Show the channel strip", "ChannelStrip", true},
    Setting{check, "Show hints under targets", "ShowTargetHints", false},
    Setting{check, "Dark theme", "DarkTheme", false},
    Setting{radio, "All displays", "AffectAllScreens", true},
    Setting{radio, "Switches the correction on or off", "ToggleApply", true},
    Setting{radio, "The status area", "ShowStatusItem", true},
    Setting{check, "Switch the correction on or off", "UseHotKey", true},
    Setting{check, "Show the panel under the pointer", "PanelHotKey", true}};

TEST_F(Preferences, AreStoredTakeEffectAndSurviveRestart) {
    const Ramp neutral = desk.ramp();
    desk.start({{"Window Frame ControlWindow", "1000 200 320 470"}});
    const int advanced = desk.panel().height;
    open();
    for (const Setting& setting : settings) {
        click(setting.role, setting.name);
        EXPECT_TRUE(eventually([&] { return hasSetting(setting.key, setting.value); }))
            << setting.key;
    }
    EXPECT_LT(desk.panel().height, advanced) << "The compact form came at once.";
    EXPECT_NE(desk.ramp(), neutral);
    end();
    desk.startWithoutPanel();
    EXPECT_TRUE(eventually([&] { return desk.ramp() == neutral; }))
        << "It starts without correcting.";
    EXPECT_FALSE(desk.hasPanel()) << "It starts without its panel.";
    open();
    // Each shows the stored value: another click restores the boxes.
    for (const Setting& setting : settings) {
        EXPECT_TRUE(hasSetting(setting.key, setting.value)) << setting.key;
        if (setting.role == check) {
            click(setting.role, setting.name);
            EXPECT_TRUE(eventually([&] { return hasSetting(setting.key, !setting.value); }))
                << setting.key;
        }
    }
}

TEST_F(Preferences, KeepWindowPositionAndWriteWorkingAutostartEntry) {
    // Measured by the contents: what the user sees must stay in place, whatever the frame.
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

    click(check, "Start Tonquil at login");
    const auto entry = desk.folder() / "config/autostart/tonquil.desktop";
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(entry); }));
    // A program that runs from here, and not from where programs are installed, shows advice.
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
