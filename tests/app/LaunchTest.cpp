// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoredCorrection.h"
#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* frameKey = "Window Frame ControlWindow";

TEST(Launch, RunsStepsInOrder) {
    ControllerBench bench;
    bench.launch();
    EXPECT_THAT(
        bench.journal,
        ElementsAre("about 234", "frame", "advanced", "dark", "table 1", "table 2", "correction on",
                    "in task bar", "no status item", "controls disabled", "panel shown", "tab 1",
                    "focus observed", "session observed", "displays observed"));
    bench.journal.clear();
    bench.loop.runPosted();
    EXPECT_THAT(bench.journal, ElementsAre("controls enabled", "tab 1", "master focused"));
}

TEST(Launch, FollowsPreferences) {
    ControllerBench bench;
    bench.preferences.stored = {{"AdvancedPanel", false},  {"DarkTheme", false},
                                {"ShowAtLaunch", false},   {"RememberSettings", false},
                                {"ApplyCorrection", true}, {"SelectedTab", 2},
                                {"ShowStatusItem", true}};
    bench.launch();
    EXPECT_THAT(
        bench.journal,
        ElementsAre("about 234", "frame", "compact", "light", "correction off", "not in task bar",
                    "status item", "status inactive", "controls disabled", "tab 2",
                    "focus observed", "session observed", "displays observed"));
    EXPECT_FALSE(bench.panel.correction);
    bench.controller().toggleApplyCorrection();
    EXPECT_THAT(bench.journal, testing::Contains("status active"));
}

TEST(Launch, RestoresPanelEntirelyOnAnAttachedDisplay) {
    const std::vector<std::pair<const char*, Point>> rows{{"1200 50 320 132", {1200, 50}},
                                                          {"1800 700 320 132", {1680, 330}},
                                                          {"5000 50 320 132", {648, 64}},
                                                          {"12 x", {648, 64}}};
    for (const auto& [saved, origin] : rows) {
        SCOPED_TRACE(saved);
        ControllerBench bench;
        bench.preferences.stored = {{frameKey, saved}};
        bench.launchAndSettle();
        EXPECT_EQ(bench.panel.place.x, origin.x);
        EXPECT_EQ(bench.panel.place.y, origin.y);
    }
    ControllerBench bench;
    bench.panel.place.height = 5000;
    bench.launchAndSettle();
    EXPECT_EQ(bench.panel.place.y, 0) << "Too tall a panel keeps the edge it is moved by.";
}

TEST(Launch, KeepsThePanelsPlaceForOtherDesktopsWhereTheDesktopPlacesIt) {
    ControllerBench bench;
    bench.preferences.stored = {{frameKey, "1800 700 320 132"}};
    bench.panel.placedByDesktop = true;
    bench.launchAndSettle();
    bench.controller().editDisplay(left);
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.preferences.stored[frameKey], "1800 700 320 132");
}

TEST(Launch, SavesOnceAtShutdownAndLoadsOnNextStart) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    ASSERT_GT(edited, 0);
    bench.panel.place.x = 300;
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.firstEntry(left), edited) << "The correction stays.";
    EXPECT_EQ(bench.preferences.stored[frameKey], "300 64 320 470");
    EXPECT_THAT(bench.desktop.recovery, IsEmpty());
    const PropertyValue saved = bench.preferences.stored;
    bench.panel.place.x = 400;
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.preferences.stored, saved);

    bench.desk.find(left)->ramp = HardwareRamp::straight(256);
    bench.launchAndSettle();
    EXPECT_EQ(bench.firstEntry(left), edited);
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
}

TEST(Launch, AppliesStoredCurvesFirstUnlessOffOrAsking) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    const auto start = [&] {
        bench.desk.find(left)->ramp = HardwareRamp::straight(256);
        SimulatedDisplayService service(bench.desk);
        ScreenRegistry registry(service);
        applyStoredCurves(registry, service, bench.preferences, bench.desktop, bench.desktop);
        return bench.firstEntry(left);
    };
    bench.loop.advance(std::chrono::milliseconds(500));
    EXPECT_EQ(start(), edited) << "left by a crash";
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(start(), edited);
    bench.preferences.stored["RememberSettings"] = false;
    EXPECT_EQ(start(), 0);
    bench.preferences.stored["RememberSettings"] = true;
    bench.desktop.installed = "redshift.desktop";
    EXPECT_EQ(start(), 0);
}

TEST(Launch, AppliesAtMostTwiceAfterEventBurst) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.journal.clear();
    for (int count = 0; count < 1000; ++count) {
        bench.desktop.tell(SessionEvent::ScreenSaverStopped);
    }
    EXPECT_THAT(bench.journal, ElementsAre("table 1", "table 2"));
    bench.loop.advance(Reapplication::pause);
    EXPECT_THAT(bench.journal, ElementsAre("table 1", "table 2", "table 1", "table 2"));
    bench.loop.advance(2 * Reapplication::pause);
    EXPECT_EQ(bench.journal.size(), 4U);
}

TEST(Launch, PrefersRecoveredCurvesToStoredOnes) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().applicationWillTerminate();
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.5F);
    bench.loop.advance(std::chrono::milliseconds(500));
    bench.launchAndSettle();  // The previous run crashed.
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.5F);
    bench.edit(PanelSlider::BlackRed, 0.75F);
    bench.preferences.isWritable = false;
    bench.controller().applicationWillTerminate();
    EXPECT_FALSE(bench.desktop.recovery.empty()) << "It was all there was.";
    bench.preferences.isWritable = true;
    bench.launchAndSettle();
    bench.controller().applicationWillTerminate();
    EXPECT_THAT(bench.desktop.recovery, IsEmpty()) << "It is stored now.";
    bench.launchAndSettle();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.75F);
}

TEST(Launch, ReopenShowsPanelOrTogglesPerPreference) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.journal.clear();
    bench.controller().applicationShouldHandleReopen();
    EXPECT_THAT(bench.journal, ElementsAre("panel shown", "table 1", "table 2"));
    bench.controller().setApplyCorrection(false);
    bench.journal.clear();
    bench.controller().applicationShouldHandleReopen();
    EXPECT_THAT(bench.journal, IsEmpty());
    bench.preferences.setValue("ToggleApply", true);
    bench.controller().applicationShouldHandleReopen();
    EXPECT_TRUE(bench.controller().applyCorrection());
}

}  // namespace
}  // namespace tonquil
