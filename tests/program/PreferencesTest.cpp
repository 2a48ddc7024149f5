// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

class Preferences : public testing::Test {
 protected:
    void SetUp() override { desk.startSessionBus(); }
    void open() const {
        desk.request("--preferences");
        EXPECT_TRUE(eventually([this] { return isOpen(); }));
    }
    [[nodiscard]] bool isOpen() const { return !desk.windows("--name", "^Preferences").empty(); }
    /// Clicks the box or the button of a control.
    void click(const char* role, const char* name) const {
        const Desk::Place place = desk.control(role, name);
        desk.click(place.x + place.height / 2, place.y + place.height / 2);
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

TEST_F(Preferences, ComeBackWhereTheirWindowWasAndWriteAnEntryThatStartsTheProgram) {
    const auto place = [&] {
        const auto found = desk.windows("--name", "^Preferences");
        return found.empty() ? Desk::Place{} : found.front();
    };
    desk.start();
    open();
    desk.xdotool({"search", "--onlyvisible", "--name", "^Preferences", "windowmove", "600", "300",
                  "windowactivate"});
    ASSERT_TRUE(eventually([&] { return std::abs(place().x - 600) < 20; }));
    const Desk::Place moved = place();
    desk.xdotool({"key", "Escape"});
    EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; }));
    end();
    desk.start();
    open();
    EXPECT_TRUE(eventually([&] { return place() == moved; }));
    EXPECT_TRUE(stays([&] { return place() == moved; }));

    click(check, "Start Tonquil at login");
    const auto entry = desk.folder() / "config/autostart/tonquil.desktop";
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(entry); }));
    // A program that runs from here, and not from where programs are installed, shows advice.
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 3; }));
    EXPECT_TRUE(eventually([&] {
        // The alert may not have the keyboard yet.
        desk.xdotool({"key", "Return"});
        return desk.windows().size() == 2;
    }));
    end();
    const auto started = desk.begin({"sh", "-c", "eval exec $(sed -n s/^Exec=//p \"$0\")", entry});
    EXPECT_TRUE(eventually([&] { return desk.hasPanel(); })) << started->standardError();
    desk.request("--quit");
}

}  // namespace
}  // namespace tonquil
