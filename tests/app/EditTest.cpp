// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "app/panel/PlottedPoint.h"
#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;

class Edit : public testing::Test {
 protected:
    Edit() { bench.launchAndSettle(); }
    [[nodiscard]] float shown(PanelSlider slider) const { return bench.panel.shown[slider]; }

    ControllerBench bench;
    const int neutral = bench.firstEntry(left);
};
class Correction : public Edit {};
class Reconfiguration : public Edit {};

TEST_F(Edit, ChangesDisplayUnderPanelOrAll) {
    bench.movePanel(100);
    bench.edit(PanelSlider::MasterBlack, 0.25F);
    EXPECT_GT(bench.firstEntry(left), neutral);
    EXPECT_EQ(bench.firstEntry(right), neutral);

    // Mostly on the right display, so its curve is shown and edited.
    bench.movePanel(900);
    EXPECT_EQ(shown(PanelSlider::MasterBlack), 0);
    bench.edit(PanelSlider::MasterBlack, 0.5F);
    EXPECT_GT(bench.firstEntry(right), bench.firstEntry(left));
    // No move notification arrived.
    bench.panel.place.x = 100;
    bench.edit(PanelSlider::BlackGreen, 0.5F);
    EXPECT_EQ(shown(PanelSlider::MasterBlack), 0.25F) << "Not what the right display has.";
    EXPECT_EQ(bench.panel.subject.title, "DP-1");

    bench.controller().setAffectsAllScreens(true);
    bench.edit(PanelSlider::MasterBlack, 0.125F);
    EXPECT_EQ(bench.panel.subject.title, "All displays");
    EXPECT_EQ(bench.firstEntry(left), bench.firstEntry(right));
    bench.panel.place.x = 900;
    bench.set("AffectAllScreens", false);
    EXPECT_EQ(bench.panel.subject.title, "DP-2") << "Another program took it back.";
}

TEST_F(Edit, TellsToEndTheOtherProgramOnlyWhereThereIsOne) {
    bench.barred.obstacle = "The compositor refuses.";
    bench.barred.outlivesProgram = false;
    for (const bool isTaken : {true, false}) {
        bench.barred.isTaken = isTaken;
        bench.movePanel(isTaken ? 900 : 100);
        EXPECT_EQ(bench.panel.subject.obstacle, bench.barred.obstacle);
        EXPECT_EQ(bench.panel.subject.remedy.empty(), !isTaken);
    }
}

TEST_F(Edit, MovesLinkedColoursByTheSameDistance) {
    bench.edit(PanelSlider::MiddleRed, 1.25F);
    bench.edit(PanelSlider::MiddleGreen, 1.0625F, true);
    EXPECT_EQ(shown(PanelSlider::MiddleRed), 1.3125F);
    EXPECT_EQ(shown(PanelSlider::MiddleBlue), 1.0625F);
    EXPECT_EQ(shown(PanelSlider::WhiteRed), 1);
    // Relative to the previous edit, not to the start of the drag.
    bench.edit(PanelSlider::MiddleGreen, 1.125F, true);
    EXPECT_EQ(shown(PanelSlider::MiddleRed), 1.375F);
    PanelValues expected = bench.panel.shown;
    expected[PanelSlider::MasterMiddle] = 1.5F;
    bench.edit(PanelSlider::MasterMiddle, 1.5F, true);
    EXPECT_EQ(bench.panel.shown, expected);
    // Changing the mode leaves the sliders unchanged.
    bench.panel.shown.blendingMode = KVBlendingModeAbsolute;
    bench.controller().changeBlendingMode();
    EXPECT_EQ(bench.curve(left)->blendingMode(), KVBlendingModeAbsolute);
    EXPECT_EQ(bench.panel.shown.sliders, expected.sliders);
}

// The table itself shows where a dragged point has ended up, as in the plot.
TEST_F(Edit, PutsPlottedCurveThroughDraggedPoint) {
    bench.desk.find(left)->profileRamp = HardwareRamp(256);
    for (std::size_t entry = 0; entry < 256; ++entry) {
        const double level = std::pow(static_cast<double>(entry) / 255, 1.3);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            bench.desk.find(left)->profileRamp->channel(channel)[entry] =
                static_cast<std::uint16_t>(65535 * level);
        }
    }
    bench.launchAndSettle();
    // Each point's entry in the table, and where it is dragged to.
    const std::map<int, std::pair<std::size_t, double>> points{
        {0, {0, 0.2}}, {1, {127, 0.4}}, {2, {255, 0.7}}};
    for (const std::int32_t mode : {KVBlendingModeBaseTable, KVBlendingModeAbsolute}) {
        for (std::size_t index = 0; index < panelSliderCount; ++index) {
            SCOPED_TRACE(mode * 100 + static_cast<int>(index));
            bench.panel.shown = {.sliders = {0.1F, 1.2F, 0.9F, 0, 0.1F, 0, 1, 1.1F, 1, 1, 0.9F, 1},
                                 .blendingMode = mode};
            const auto slider = static_cast<PanelSlider>(index);
            bench.edit(slider, bench.panel.shown[slider]);
            const bool isMaster = index < 3;
            const auto& [entry, level] =
                points.at(static_cast<int>(isMaster ? index : index / 3 - 1));
            const std::size_t channel = isMaster ? 1 : index % 3;
            const auto value = valueThrough(level, slider, channel, bench.panel.shown,
                                            *bench.controller().plottedCurves());
            ASSERT_TRUE(value);
            bench.edit(slider, *value);
            const auto curves = bench.controller().plottedCurves();
            EXPECT_NEAR(curves->result.channel(channel)[entry], level, 0.01);
        }
    }
}

TEST_F(Edit, UndoesAndRedoesPerDragAndControl) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    EXPECT_TRUE(bench.panel.hasHint);
    bench.controller().endEdit();
    bench.loop.runPosted();
    EXPECT_FALSE(bench.panel.hasHint) << "It is for people who have not edited yet.";
    const int first = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.75F);
    bench.edit(PanelSlider::BlackGreen, 0.25F);

    bench.controller().undo();
    EXPECT_EQ(shown(PanelSlider::BlackGreen), 0);
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), first);
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.canUndo);
    bench.controller().undo();
    // An edit without a change is no undo step.
    bench.edit(PanelSlider::WhiteRed, 1);
    EXPECT_FALSE(bench.panel.canUndo);
    bench.controller().redo();
    EXPECT_EQ(bench.firstEntry(left), first);
    // A new edit clears the redo steps.
    bench.edit(PanelSlider::BlackBlue, 0.25F);
    bench.controller().redo();
    EXPECT_EQ(shown(PanelSlider::BlackBlue), 0.25F);
    // After undo, the same control starts a new step.
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), first);
}

TEST_F(Edit, SurvivesUnpluggingTheDisplay) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.desk.unplug(left);
    EXPECT_EQ(bench.panel.subject.title, "DP-2") << "The panel comes back into view.";
    bench.desk.unplug(right);
    EXPECT_EQ(bench.panel.subject.title, "No display");
    EXPECT_FALSE(bench.panel.enabled);
    bench.controller().applicationWillTerminate();
    bench.desk.plug(ControllerBench::makeDisplay(left, 0));
    bench.launchAndSettle();
    EXPECT_EQ(shown(PanelSlider::BlackRed), 0.25F);
}

TEST_F(Edit, ResetReadsSystemCalibrationAsBase) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().resetGamma();
    HardwareRamp calibrated = HardwareRamp::straight(256);
    std::ranges::fill(calibrated.channel(0), std::uint16_t{5000});
    bench.desk.setForeignRamp(left, calibrated);
    bench.loop.advance(milliseconds(499));
    EXPECT_FALSE(bench.panel.enabled);
    bench.loop.advance(milliseconds(1));
    EXPECT_TRUE(bench.panel.enabled);
    EXPECT_EQ(bench.panel.shown, PanelValues{});
    EXPECT_EQ(bench.firstEntry(left), 5000);
    bench.controller().undo();
    EXPECT_EQ(shown(PanelSlider::BlackRed), 0.25F);
    EXPECT_EQ(bench.firstEntry(left), 5000) << "Over the new base.";
}

TEST_F(Correction, OffRestoresDisplaysAndOnCorrectsAgain) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    bench.controller().setApplyCorrection(false);
    bench.loop.runPosted();
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.correction);
    bench.journal.clear();
    bench.loop.advance(std::chrono::seconds(10));
    bench.desktop.tell(SessionEvent::Woke);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    EXPECT_THAT(bench.journal, testing::IsEmpty()) << "No table is set.";
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().toggleApplyCorrection();
    EXPECT_EQ(bench.firstEntry(left), edited);

    // Another program's change is not written back: it may have changed again by now.
    bench.preferences.written.clear();
    bench.set("ApplyCorrection", false);
    EXPECT_EQ(bench.firstEntry(left), neutral);
    EXPECT_FALSE(bench.panel.correction);
    EXPECT_EQ(bench.preferences.written.size(), 1U);
    bench.set("ApplyCorrection", true);
    EXPECT_EQ(bench.firstEntry(left), edited);
    EXPECT_TRUE(bench.panel.correction);
}

TEST_F(Correction, UsesForeignRampSetWhileOffAndChangedProfileAsBase) {
    HardwareRamp calibrated(256);
    calibrated.entries()[0] = 5000;
    bench.controller().setApplyCorrection(false);
    bench.desk.setForeignRamp(left, calibrated);
    bench.controller().setApplyCorrection(true);
    EXPECT_EQ(bench.firstEntry(left), 5000);
    calibrated.entries()[0] = 6000;
    bench.desk.find(left)->profileRamp = calibrated;
    bench.desktop.tell(SessionEvent::Woke);
    EXPECT_EQ(bench.firstEntry(left), 5000) << "Nobody has said so yet.";
    bench.loop.advance(Reapplication::pause);
    bench.desktop.tell(SessionEvent::ColourSpaceChanged);
    EXPECT_EQ(bench.firstEntry(left), 6000);
}

TEST_F(Correction, ShowsUncorrectedDisplaysOnlyWhileCompared) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    bench.controller().compare(true);
    bench.loop.advance(std::chrono::seconds(10));
    bench.desktop.tell(SessionEvent::Woke);
    EXPECT_EQ(bench.firstEntry(left), neutral);
    bench.controller().compare(false);
    EXPECT_EQ(bench.firstEntry(left), edited);
    bench.controller().compare(true);
    bench.controller().toggleApplyCorrection();
    bench.controller().compare(false);
    EXPECT_EQ(bench.firstEntry(left), neutral) << "It was switched off meanwhile.";
    bench.controller().toggleApplyCorrection();
    bench.controller().compare(true);
    bench.controller().applicationWillTerminate();
    EXPECT_EQ(bench.firstEntry(left), edited) << "An end leaves the correction.";
}

TEST_F(Correction, StaysOffForDisplayUnpluggedDuringSwitch) {
    bench.movePanel(1100);
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.journal.clear();
    bench.desk.unplug(right);
    EXPECT_THAT(bench.journal, testing::Contains("let go"))
        << "A drag is no edit of the other display.";
    bench.controller().setApplyCorrection(false);
    bench.desk.plug(ControllerBench::makeDisplay(right, 1000));
    bench.panel.place.x = 1100;
    bench.edit(PanelSlider::BlackRed, 0.5F);
    EXPECT_EQ(bench.firstEntry(right), neutral);
}

TEST_F(Correction, ReappliesAtIntervalAndAfterEachSessionEvent) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    const int edited = bench.firstEntry(left);
    for (const SessionEvent event :
         {SessionEvent::Woke, SessionEvent::SessionBecameActive,
          SessionEvent::ApplicationTerminated, SessionEvent::ScreenSaverStopped,
          SessionEvent::ColourSpaceChanged}) {
        SCOPED_TRACE(static_cast<int>(event));
        bench.desk.setForeignRamp(left, HardwareRamp::straight(256));
        bench.desktop.tell(event);
        EXPECT_EQ(bench.firstEntry(left), edited);
        bench.loop.advance(Reapplication::pause);
    }
    const std::vector<std::pair<float, int>> rows{{0.5F, 500}, {0, 3000}, {-1, 3000}, {1e-9F, 100}};
    // Five pauses of the first interval have passed.
    int running = 2000;
    for (const auto& [seconds, interval] : rows) {
        SCOPED_TRACE(seconds);
        bench.set("ContinuouslyApplyInterval", seconds);
        EXPECT_EQ(bench.timeToReapply(), milliseconds(running)) << "The timer goes on as it was.";
        bench.set("ApplyCorrection", false);
        bench.set("ApplyCorrection", true);
        EXPECT_EQ(bench.timeToReapply(), milliseconds(interval));
        running = interval;
    }
    bench.set("ContinuouslyApply", false);
    EXPECT_EQ(bench.timeToReapply(), std::chrono::seconds(10)) << "Never.";
}

TEST_F(Reconfiguration, AssignsStoredCurveToNewDisplayOnly) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.controller().applicationWillTerminate();
    bench.desk.unplug(left);

    bench.launchAndSettle();
    bench.movePanel(1100);
    bench.edit(PanelSlider::BlackRed, 0.5F);
    const int edited = bench.firstEntry(right);
    bench.log.clear();
    bench.desk.plug(ControllerBench::makeDisplay(left, 0));
    EXPECT_GT(bench.firstEntry(left), 0);
    EXPECT_LT(bench.firstEntry(left), edited);
    EXPECT_EQ(bench.firstEntry(right), edited);
    EXPECT_THAT(bench.log,
                testing::ElementsAre("Begin display reconfiguration.", "Updating screen list."));
    // The new display follows an edit immediately, not only at the next re-application.
    bench.controller().setAffectsAllScreens(true);
    bench.edit(PanelSlider::BlackRed, 0.75F);
    EXPECT_EQ(bench.firstEntry(left), bench.firstEntry(right));
}

TEST_F(Reconfiguration, EndsWhenEveryBeginHasEnded) {
    ReconfigurationCounter counter;
    std::string told;
    ReconfigurationObserver observer(
        counter, [&](std::string_view line) { told += line.front(); }, [&] { told += '!'; });
    // Nested; an end alone; a begin with another bit set, which counts as an end.
    for (const ReconfigurationFlags flags : {1U, 1U, 2U, 2U, 2U, 1U, 3U}) {
        observer.displayReconfigured(flags);
        told += ' ';
    }
    EXPECT_EQ(told, "B   U! U! B U! ");
}

}  // namespace
}  // namespace tonquil
