// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

/// A tray in the lower left of the first display.
class Tray : public testing::Test {
 protected:
    void SetUp() override {
        if (!desk.run({"which", "trayer"}).succeeded()) {
            GTEST_SKIP() << "There is no trayer here.";
        }
    }
    void startTray() {
        tray = desk.begin({"trayer", "--edge", "bottom", "--align", "left", "--monitor", "0"});
    }
    /// Waits for the first window with a height in this range; an empty rectangle if there is none.
    [[nodiscard]] Desk::Place find(int least, int most) const {
        const auto all = desk.windows();
        const auto found = std::ranges::find_if(all, [&](const Desk::Place& place) {
            return place.height >= least && place.height < most;
        });
        return found == all.end() ? Desk::Place{} : *found;
    }
    static constexpr int iconHeight = 60;
    static constexpr int menuHeight = 400;
    [[nodiscard]] bool hasIcon() const { return find(1, iconHeight).width > 0; }
    void clickIcon(const char* button, int fromLeft = 4) const {
        const Desk::Place icon = find(1, iconHeight);
        desk.click(icon.x + fromLeft, icon.y + icon.height / 2, button);
    }
    [[nodiscard]] bool isInTaskBar() const {
        return desk.run({"xprop", "-name", "Tonquil", "_NET_WM_STATE"})
                   .standardOutput.find("SKIP_TASKBAR") == std::string::npos;
    }

    Desk desk;
    std::unique_ptr<BackgroundProcess> tray;
};

TEST_F(Tray, TogglesCorrectionByMenuAndMiddleClickAndPanelByClick) {
    const Ramp neutral = desk.ramp();
    startTray();
    desk.start({{"ShowStatusItem", 1}});
    ASSERT_TRUE(eventually([&] { return hasIcon(); }));
    const Ramp corrected = desk.correct();
    clickIcon("3");
    ASSERT_TRUE(eventually([&] { return find(iconHeight, menuHeight).width > 0; }));
    // "Apply correction" is the first entry.
    const Desk::Place menu = find(iconHeight, menuHeight);
    desk.click(menu.x + 40, menu.y + 12);
    EXPECT_TRUE(eventually([&] { return desk.ramp() == neutral; }));

    for (const bool isShown : {false, true}) {
        // Apart, or they would be a double click.
        clickIcon("1", isShown ? 4 : 14);
        EXPECT_TRUE(eventually([&] { return desk.hasPanel() == isShown; }));
    }
    clickIcon("2");
    EXPECT_TRUE(eventually([&] { return desk.ramp() == corrected; }));
}

TEST_F(Tray, MayAppearLateWithTaskBarAsFallback) {
    desk.start({{"ShowStatusItem", 1}});
    EXPECT_TRUE(stays([&] { return !hasIcon(); }));
    EXPECT_TRUE(isInTaskBar()) << "without a tray";
    startTray();
    EXPECT_TRUE(eventually([&] { return hasIcon() && !isInTaskBar(); }));
    desk.writePreferences({{"ShowStatusItem", 0}});
    EXPECT_TRUE(eventually([&] { return !hasIcon() && isInTaskBar(); }));
    EXPECT_TRUE(desk.hasPanel());
}

}  // namespace
}  // namespace tonquil
