// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::Not;

/// A tray in the lower left of the first display.
class Tray : public testing::Test {
 protected:
    void SetUp() override {
        if (desk.outputOf({"which", "trayer"}).empty()) {
            GTEST_SKIP() << "There is no trayer here.";
        }
    }
    void startTray() {
        auto started = BackgroundProcess::start(
            desk.request({"trayer", "--edge", "bottom", "--align", "left", "--monitor", "0"}));
        ASSERT_TRUE(succeeded(started));
        tray = std::move(*started);
    }
    [[nodiscard]] bool has(const std::function<bool(const Desk::Place&)>& kind) const {
        return std::ranges::any_of(desk.windows(), kind);
    }
    static constexpr int iconHeight = 60;
    [[nodiscard]] bool hasIcon() const {
        return has([](const Desk::Place& place) { return place.height < iconHeight; });
    }
    [[nodiscard]] bool hasPanelItself() const {
        return has([](const Desk::Place& place) { return place.height > 300; });
    }
    void clickIcon(const std::string& button) const {
        const auto all = desk.windows();
        const auto icon = std::ranges::find_if(
            all, [](const Desk::Place& place) { return place.height < iconHeight; });
        ASSERT_NE(icon, all.end());
        desk.movePointer({icon->x + icon->width / 2, icon->y + icon->height / 2});
        desk.xdotool({"click", button});
    }
    [[nodiscard]] std::string panelState() const {
        return desk.outputOf({"xprop", "-name", "Tonquil", "_NET_WM_STATE"});
    }

    Desk desk;
    std::unique_ptr<BackgroundProcess> tray;
};

const PropertyValue inTheTray = {{"ShowStatusItem", 1},
                                 {"Window Frame ControlWindow", "200 200 320 470"}};

TEST_F(Tray, TheIconsMenuSwitchesTheCorrectionAndAClickShowsThePanel) {
    const Ramp neutral = desk.ramp("DUMMY0");
    startTray();
    desk.start(inTheTray);
    ASSERT_TRUE(eventually([&] { return hasIcon() && hasPanelItself(); }));
    ASSERT_TRUE(desk.runBeside({"--on"}).succeeded());
    desk.drag(Desk::masterRow, 0.6);
    ASSERT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != neutral; }));

    clickIcon("3");
    const auto isMenu = [](const Desk::Place& place) {
        return place.height > iconHeight && place.height < 300;
    };
    ASSERT_TRUE(eventually([&] { return has(isMenu); }));
    // "Apply correction" is the first.
    const auto places = desk.windows();
    const auto menu = std::ranges::find_if(places, isMenu);
    desk.movePointer({menu->x + 40, menu->y + 12});
    desk.xdotool({"click", "1"});
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") == neutral; }));

    desk.xdotool({"mousemove", "212", "213", "click", "1"});
    ASSERT_TRUE(eventually([&] { return !hasPanelItself(); })) << "The panel's own button.";
    clickIcon("1");
    EXPECT_TRUE(eventually([&] { return hasPanelItself(); }));
}

TEST_F(Tray, TheIconComesIntoALateTrayAndTheTaskBarStandsInForIt) {
    desk.start(inTheTray);
    EXPECT_TRUE(stays([&] { return !hasIcon(); }));
    EXPECT_THAT(panelState(), Not(HasSubstr("SKIP_TASKBAR"))) << "without a tray";
    startTray();
    EXPECT_TRUE(eventually([&] { return hasIcon(); }));
    EXPECT_TRUE(eventually([&] { return panelState().find("SKIP_TASKBAR") != std::string::npos; }));

    desk.writePreferences({{"ShowStatusItem", 0}});
    EXPECT_TRUE(eventually([&] { return !hasIcon(); }));
    EXPECT_TRUE(eventually([&] { return panelState().find("SKIP_TASKBAR") == std::string::npos; }));
    EXPECT_TRUE(hasPanelItself());
}

}  // namespace
}  // namespace tonquil
