// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Launch, TakesItsStepsInTheirOrder) {
    ControllerBench bench;
    bench.launch();
    EXPECT_THAT(
        bench.journal,
        ElementsAre("about 234", "defaults registered", "every 3000 ms", "frame", "advanced",
                    "dark", "table 1", "table 2", "correction on", "in task bar", "no status item",
                    "controls disabled", "panel shown", "tab 1", "focus observed",
                    "preferences observed", "session observed", "displays observed"));
    bench.journal.clear();
    bench.loop.runPosted();
    EXPECT_THAT(bench.journal, ElementsAre("controls enabled", "tab 1", "master focused"));
}

TEST(Launch, DoesWhatThePreferencesSay) {
    ControllerBench bench;
    bench.preferences.stored = {{"AdvancedPanel", false},     {"DarkTheme", false},
                                {"ContinuouslyApply", false}, {"ShowAtLaunch", false},
                                {"RememberSettings", false},  {"ApplyCorrection", true},
                                {"SelectedTab", 2},           {"ShowStatusItem", true}};
    bench.launch();
    EXPECT_THAT(bench.journal,
                ElementsAre("about 234", "defaults registered", "frame", "compact", "light",
                            "correction off", "not in task bar", "status item", "status inactive",
                            "controls disabled", "tab 2", "focus observed", "preferences observed",
                            "session observed", "displays observed"));
    EXPECT_FALSE(bench.panel.correction);
}

TEST(Launch, TakesATabThatThereIsNotForTheMiddleOne) {
    for (const std::int64_t stored : {7LL, -1LL, 4294967296LL}) {
        SCOPED_TRACE(stored);
        ControllerBench bench;
        bench.preferences.stored = {{"SelectedTab", stored}};
        bench.launchAndSettle();
        EXPECT_THAT(bench.journal, testing::Contains("tab 1").Times(2));
    }
}

TEST(Launch, PutsThePanelBackWhereADisplayStillIs) {
    struct Row {
        const char* what;
        const char* saved;
        double x;
        double y;
    };
    for (const Row& row : {Row{"on a display", "1200 50 320 132", 1200, 50},
                           Row{"on one that is gone", "5000 50 320 132", 648, 64},
                           Row{"never saved", "", 648, 64}, Row{"rubbish", "12 x", 648, 64}}) {
        SCOPED_TRACE(row.what);
        ControllerBench bench;
        bench.preferences.stored = {{"Window Frame ControlWindow", row.saved}};
        bench.launchAndSettle();
        EXPECT_EQ(bench.panel.place.x, row.x);
        EXPECT_EQ(bench.panel.place.y, row.y);
    }
}

TEST(Launch, WithoutADisplayTheSavedPlaceIsKeptForTheFirstThatComes) {
    ControllerBench bench;
    bench.preferences.stored = {{"Window Frame ControlWindow", "1200 50 320 132"}};
    bench.desk.unplug(ControllerBench::left);
    bench.desk.unplug(ControllerBench::right);
    bench.launchAndSettle();
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.preferences.stored["Window Frame ControlWindow"], "1200 50 320 132");
    bench.launchAndSettle();
    bench.desk.plug(ControllerBench::makeDisplay(ControllerBench::right, 1000));
    EXPECT_EQ(bench.panel.place.x, 1200);
}

TEST(Launch, FindsTheCurvesOfTheRunBefore) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(ControllerBench::left);
    ASSERT_GT(edited, 0);
    bench.controller().applicationWillTerminate();
    bench.desk.find(ControllerBench::left)->ramp = HardwareRamp::straight(256);

    bench.launchAndSettle();
    EXPECT_EQ(bench.firstEntry(ControllerBench::left), edited);
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
}

TEST(Launch, AdoptsWhatACrashHasLeftOverWhatIsStored) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().applicationWillTerminate();
    EXPECT_THAT(bench.recovery.left, IsEmpty());

    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.5F);
    bench.loop.advance(std::chrono::seconds(1));
    bench.launchAndSettle();  // The program before ended without a word.
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.5F);
    EXPECT_THAT(bench.recovery.left, IsEmpty()) << "It is stored now.";
    bench.edit(PanelSlider::BlackRed, 0.75F);
    bench.preferences.isWritable = false;
    bench.controller().applicationWillTerminate();
    EXPECT_FALSE(bench.recovery.left.empty()) << "It was all there was.";
}

TEST(Launch, ReopeningShowsThePanelOrTogglesAsThePreferencesSay) {
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

TEST(Launch, AnEndLeavesTheCorrectionAndSavesOnce) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(ControllerBench::left);
    bench.panel.place.x = 300;
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.firstEntry(ControllerBench::left), edited);
    EXPECT_EQ(bench.preferences.stored["Window Frame ControlWindow"], "300 64 320 470");
    const PropertyValue saved = bench.preferences.stored;
    bench.panel.place.x = 400;
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.preferences.stored, saved);
}

}  // namespace
}  // namespace tonquil
