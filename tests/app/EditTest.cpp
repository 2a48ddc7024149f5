// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

constexpr DisplayID left = ControllerBench::left;
constexpr DisplayID right = ControllerBench::right;

TEST(Edit, GoesToTheDisplayUnderThePanelOrToAll) {
    ControllerBench bench;
    bench.launchAndSettle();
    const int before = bench.firstEntry(right);
    bench.panel.place = {100, 100, 320, 470};
    bench.controller().panelMoved();
    bench.edit(PanelSlider::MasterBlack, 0.25F);
    EXPECT_GT(bench.firstEntry(left), before);
    EXPECT_EQ(bench.firstEntry(right), before);

    // Mostly on the right display: what it is given is shown, and what is edited is its curve.
    bench.panel.place.x = 900;
    bench.controller().panelMoved();
    EXPECT_EQ(bench.panel.shown[PanelSlider::MasterBlack], 0);
    bench.edit(PanelSlider::MasterBlack, 0.5F);
    EXPECT_GT(bench.firstEntry(right), bench.firstEntry(left));
    bench.panel.place.x = 100;
    bench.controller().panelMoved();
    EXPECT_EQ(bench.panel.shown[PanelSlider::MasterBlack], 0.25F);
    EXPECT_EQ(bench.panel.subject.title, "DP-1");

    bench.controller().setAffectsAllScreens(true);
    bench.edit(PanelSlider::MasterBlack, 0.125F);
    EXPECT_EQ(bench.panel.subject.title, "All displays");
    EXPECT_EQ(bench.firstEntry(left), bench.firstEntry(right));

    // Another program takes it back: the panel shows what it edits from now on.
    bench.panel.place.x = 900;
    bench.preferences.setValue("AffectAllScreens", false);
    bench.loop.runPosted();
    EXPECT_EQ(bench.panel.subject.title, "DP-2");
}

TEST(Edit, LinksTheColoursOfAPointByTheDistanceTravelled) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::MiddleRed, 1.25F);
    bench.edit(PanelSlider::MiddleGreen, 1.0625F, true);
    EXPECT_EQ(bench.panel.shown[PanelSlider::MiddleRed], 1.3125F);
    EXPECT_EQ(bench.panel.shown[PanelSlider::MiddleBlue], 1.0625F);
    EXPECT_EQ(bench.panel.shown[PanelSlider::WhiteRed], 1);
    // From the edit before, not from the beginning of the drag.
    bench.edit(PanelSlider::MiddleGreen, 1.125F, true);
    EXPECT_EQ(bench.panel.shown[PanelSlider::MiddleRed], 1.375F);

    const PanelValues before = bench.panel.shown;
    bench.edit(PanelSlider::MasterMiddle, 1.5F, true);
    PanelValues expected = before;
    expected[PanelSlider::MasterMiddle] = 1.5F;
    EXPECT_EQ(bench.panel.shown, expected);
}

TEST(Edit, ChangingTheModeLeavesTheSliders) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::WhiteBlue, 0.75F);
    const PanelValues before = bench.panel.shown;
    bench.panel.shown.blendingMode = KVBlendingModeAbsolute;
    bench.controller().changeBlendingMode();
    EXPECT_EQ(bench.curve(left)->blendingMode(), KVBlendingModeAbsolute);
    EXPECT_EQ(bench.panel.shown.sliders, before.sliders);
}

TEST(Edit, IsUndoneAndRedoneByDragAndByControl) {
    ControllerBench bench;
    bench.launchAndSettle();
    const int neutral = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    bench.controller().endEdit();
    const int first = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.75F);
    bench.edit(PanelSlider::BlackGreen, 0.25F);

    bench.controller().undo();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackGreen], 0);
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), first);
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.canUndo);
    bench.controller().undo();
    bench.controller().redo();
    EXPECT_EQ(bench.firstEntry(left), first);
    // After a new edit there is nothing to do again.
    bench.edit(PanelSlider::BlackBlue, 0.25F);
    bench.controller().redo();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackBlue], 0.25F);
    // The control that was undone begins a step of its own.
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), first);
}

TEST(Edit, GoesWhereThePanelIsEvenIfNobodyToldThatItMoved) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.panel.place.x = 1100;  // Grown over the edge, say.
    bench.edit(PanelSlider::BlackGreen, 0.5F);
    EXPECT_EQ(bench.panel.subject.title, "DP-2");
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0) << "Not what the left display had.";
}

TEST(Edit, ThatChangesNothingIsNoStep) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().undo();
    bench.edit(PanelSlider::WhiteRed, 1);
    EXPECT_FALSE(bench.panel.canUndo);
    bench.controller().redo();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
}

TEST(Edit, OfADisplayThatIsUnpluggedIsNotLost) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.desk.unplug(left);
    EXPECT_EQ(bench.panel.subject.title, "DP-2") << "The panel comes back into view.";
    bench.desk.unplug(right);
    EXPECT_EQ(bench.panel.subject.title, "No display");
    EXPECT_FALSE(bench.panel.enabled);
    bench.controller().applicationWillTerminate();
    bench.desk.plug(ControllerBench::makeDisplay(left, 0));
    bench.launchAndSettle();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
}

TEST(Correction, OffGivesTheDisplaysBackAtOnceAndOnTakesThemAgain) {
    ControllerBench bench;
    bench.launchAndSettle();
    const int neutral = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    bench.controller().setApplyCorrection(false);
    bench.loop.runPosted();
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.correction);

    bench.journal.clear();
    bench.loop.advance(std::chrono::seconds(10));
    bench.events().tell(SessionEvent::Woke);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    EXPECT_THAT(bench.journal, IsEmpty());
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().toggleApplyCorrection();
    bench.loop.runPosted();
    EXPECT_EQ(bench.firstEntry(left), edited);
    EXPECT_THAT(bench.journal, Contains("every 3000 ms"));
}

TEST(Correction, TurnedByAnotherProgramIsTurnedHere) {
    ControllerBench bench;
    bench.launchAndSettle();
    const int neutral = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    bench.preferences.setValue("ApplyCorrection", false);
    bench.loop.runPosted();
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.correction);
    bench.preferences.setValue("ApplyCorrection", true);
    bench.loop.runPosted();
    EXPECT_EQ(bench.firstEntry(left), edited);
    EXPECT_TRUE(bench.panel.correction);
}

TEST(Correction, TurnedWhileADisplayIsAwayHoldsForItToo) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.panel.place.x = 1100;
    bench.controller().panelMoved();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.desk.unplug(right);
    bench.controller().setApplyCorrection(false);
    bench.desk.plug(ControllerBench::makeDisplay(right, 1000));
    bench.panel.place.x = 1100;
    const int neutral = bench.firstEntry(right);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    EXPECT_EQ(bench.firstEntry(right), neutral);
}

TEST(Correction, IsPutBackAfterWhateverDisturbsIt) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    const auto disturb = [&bench] { bench.desk.setForeignRamp(left, HardwareRamp::straight(256)); };
    disturb();
    bench.loop.advance(std::chrono::seconds(3));
    EXPECT_EQ(bench.firstEntry(left), edited);
    for (const SessionEvent event :
         {SessionEvent::Woke, SessionEvent::SessionBecameActive,
          SessionEvent::ApplicationTerminated, SessionEvent::ScreenSaverStopped,
          SessionEvent::ColourSpaceChanged}) {
        SCOPED_TRACE(static_cast<int>(event));
        disturb();
        bench.events().tell(event);
        EXPECT_EQ(bench.firstEntry(left), edited);
    }
}

TEST(Correction, FollowsAnIntervalFromTheNextStartOfTheTimerOn) {
    struct Row {
        float stored;
        const char* expected;
    };
    for (const Row& row : {Row{0.5F, "every 500 ms"}, Row{0, "every 3000 ms"},
                           Row{-1, "every 3000 ms"}, Row{1e-9F, "every 100 ms"}}) {
        SCOPED_TRACE(row.stored);
        ControllerBench bench;
        bench.launchAndSettle();
        bench.journal.clear();
        bench.preferences.setValue("ContinuouslyApplyInterval", row.stored);
        bench.loop.runPosted();
        EXPECT_THAT(bench.journal, Not(Contains(testing::StartsWith("every"))));
        bench.controller().setApplyCorrection(false);
        bench.loop.runPosted();
        bench.controller().setApplyCorrection(true);
        bench.loop.runPosted();
        EXPECT_THAT(bench.journal, Contains(row.expected));
    }
}

TEST(Reset, WaitsForTheCalibrationAndTakesItForTheBase) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().resetGamma();
    EXPECT_FALSE(bench.panel.enabled);
    HardwareRamp calibrated = HardwareRamp::straight(256);
    std::ranges::fill(calibrated.channel(0), std::uint16_t{5000});
    bench.desk.setForeignRamp(left, calibrated);
    bench.loop.advance(std::chrono::milliseconds(499));
    EXPECT_FALSE(bench.panel.enabled);
    bench.loop.advance(std::chrono::milliseconds(1));
    EXPECT_TRUE(bench.panel.enabled);
    EXPECT_EQ(bench.panel.shown, PanelValues{});
    EXPECT_EQ(bench.firstEntry(left), 5000);
    bench.controller().undo();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
    EXPECT_EQ(bench.firstEntry(left), 5000) << "Over the new base.";
}

TEST(Reconfiguration, GivesANewDisplayItsCurveAndLeavesTheOthersTheirs) {
    ControllerBench bench;
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().applicationWillTerminate();
    bench.desk.unplug(left);

    bench.panel.place.x = 1100;
    bench.launchAndSettle();
    bench.panel.place.x = 1100;
    bench.controller().panelMoved();
    bench.edit(PanelSlider::BlackRed, 0.5F);
    const int edited = bench.firstEntry(right);
    bench.log.clear();
    bench.desk.plug(ControllerBench::makeDisplay(left, 0));
    EXPECT_GT(bench.firstEntry(left), 0);
    EXPECT_LT(bench.firstEntry(left), edited);
    EXPECT_EQ(bench.firstEntry(right), edited);
    EXPECT_THAT(bench.log,
                testing::ElementsAre("Begin display reconfiguration.", "Updating screen list."));
    // The new one follows an edit at once, not only with the next re-application.
    bench.controller().setAffectsAllScreens(true);
    bench.edit(PanelSlider::BlackRed, 0.75F);
    EXPECT_EQ(bench.firstEntry(left), bench.firstEntry(right));
}

TEST(Reconfiguration, IsOverWhenAllThatBeganHasEnded) {
    struct Row {
        const char* what;
        std::vector<ReconfigurationFlags> flags;
        std::size_t updates;
        std::size_t lines;
    };
    for (const Row& row : {Row{"nested", {1, 1, 2, 2}, 1, 2}, Row{"an end alone", {2}, 1, 1},
                           Row{"begin with another bit is an end", {1, 3}, 1, 2},
                           Row{"still open", {1, 1, 2}, 0, 1}, Row{"twice", {1, 2, 1, 2}, 2, 4}}) {
        SCOPED_TRACE(row.what);
        ReconfigurationCounter counter;
        std::size_t lines = 0;
        std::size_t updates = 0;
        ReconfigurationObserver observer(
            counter, [&](std::string_view) { ++lines; }, [&] { ++updates; });
        for (const ReconfigurationFlags flags : row.flags) {
            observer.displayReconfigured(flags);
        }
        EXPECT_EQ(updates, row.updates);
        EXPECT_EQ(lines, row.lines);
    }
}

}  // namespace
}  // namespace tonquil
