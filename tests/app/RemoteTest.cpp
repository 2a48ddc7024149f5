// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "colourfiles/ExportedTable.h"
#include "tests/app/ControllerBench.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const SocketAddress companion(0x0A000002, 5000);

class Remote : public testing::Test {
 protected:
    Remote() {
        bench.preferences.stored = {{"AllowRemote", true}};
        bench.launchAndSettle();
        // The self-test receives the program's own announce.
        receive("Kantivel ann {\"name\":\"desk\"}");
        bench.loop.advance(std::chrono::seconds(1));
        bench.network.sent.clear();
    }
    void receive(const std::string& bytes) {
        bench.network.receiver(bytes, companion);
        bench.loop.runPosted();
    }
    void setState(DisplayID display, const PropertyValue& state) {
        receive("Kantivel state-update " +
                PropertyValue{{ControllerBench::referenceID(display), state}}.dump());
    }
    /// The same, followed by a pause in which waiting orders are applied.
    void setStateInPeace(DisplayID display, const PropertyValue& state) {
        setState(display, state);
        bench.loop.advance(PacedOrders::interval * 2);
    }
    /// What an announce contains about a display.
    [[nodiscard]] PropertyValue info(DisplayID display) {
        bench.network.sent.clear();
        receive("Kantivel scan ");
        const std::string answer = bench.network.sent.at(0).bytes;
        return PropertyValue::parse(
            answer.substr(13))["screens"][ControllerBench::referenceID(display)];
    }
    static PropertyValue gamma(float red) {
        return PropertyValue::array({1, 0, 1, 1, red, 1, 1, 0, 1, 1, 0, 1, 1});
    }
    ControllerBench bench;
};

TEST_F(Remote, AppliesNetworkCurveAsOneEdit) {
    setState(left, {{"gamma", gamma(0.25F)}});
    EXPECT_EQ(bench.red(left), 0.25F) << "at once";
    EXPECT_GT(bench.firstEntry(left), 16000);
    EXPECT_EQ(
        info(left),
        (PropertyValue{
            {"number", 1}, {"local", false}, {"gamma", gamma(0.25F)}, {"content", "transparent"}}));
    bench.network.sent.clear();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
    bench.desk.setForeignRamp(left, HardwareRamp::straight(256));
    setStateInPeace(left, {{"gamma", gamma(0.25F)}});
    EXPECT_GT(bench.firstEntry(left), 16000) << "It is put on the display again.";
    bench.controller().undo();
    EXPECT_EQ(bench.red(left), 0) << "A repeated order is no second edit.";
    EXPECT_THAT(bench.network.sent, IsEmpty());
}

TEST_F(Remote, KeepsTableWhoseAnnouncedCurveComesBack) {
    const ScratchFolder folder;
    GammaTable steps;
    for (std::size_t slot = 0; slot < GammaTable::capacity; ++slot) {
        steps.channel(0)[slot] = steps.channel(1)[slot] = steps.channel(2)[slot] =
            slot < 100 ? 0.1F : 0.8F;
    }
    const auto bytes = exportedTable(ExportFormat::Cal, steps, GammaTable::capacity, {}).value();
    const auto file = folder.path() / "steps.cal";
    std::ofstream(file, std::ios::binary) << std::string(bytes.begin(), bytes.end());
    bench.controller().openFile(file);
    bench.loop.runPosted();
    const int stepped = bench.firstEntry(left);
    setStateInPeace(left, {{"gamma", info(left)["gamma"]}, {"content", "colorTargets"}});
    EXPECT_EQ(bench.firstEntry(left), stepped);
    EXPECT_TRUE(bench.controller().canMakeEditable()) << "It is still a table.";
}

TEST_F(Remote, IgnoresCurvesOutOfRange) {
    bench.edit(PanelSlider::BlackRed, 0.125F);
    for (const PropertyValue& bad : PropertyValue{{2, 0, 1, 1}, {1, 0, 1, 1, 1001}, "text"}) {
        setStateInPeace(left, {{"gamma", bad}, {"content", "colorTargets"}});
        EXPECT_EQ(bench.red(left), 0.125F) << bad;
        EXPECT_EQ(info(left)["content"], "colorTargets") << "The rest of the order holds.";
        setStateInPeace(left, {{"content", "transparent"}});
    }
    bench.log.clear();
    for (int i = 0; i < 1000; ++i) {
        setState(left, {{"gamma", {2, 0, 1, 1}}});
    }
    // 20 for orders, 20 for curves; some of both were logged earlier.
    EXPECT_LE(bench.log.size(), 40U) << "A stranger cannot fill the log.";
    receive("Kantivel state-update {\"9-9-9\":{\"gamma\":[1,1,1,1]}}");
    EXPECT_EQ(bench.red(left), 0.125F);
}

TEST_F(Remote, PushesStateWhenTargetCloses) {
    setStateInPeace(left, {{"content", "grayscaleTargets"}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets");
    setStateInPeace(left, {{"content", 7}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets") << "Only text says anything.";
    setStateInPeace(left, {{"content", "colorTargets"}});
    receive("Kantivel sub ");
    bench.network.sent.clear();
    setState(left, {{"content", "transparent"}});
    EXPECT_THAT(bench.network.sent, SizeIs(2)) << "It was shown twice.";
    EXPECT_EQ(bench.network.sent.back().recipient, companion);
    bench.loop.advance(PacedOrders::interval * 2);
    EXPECT_EQ(info(left)["content"], "transparent");
    for (int i = 0; i < 100; ++i) {
        setStateInPeace(left, {{"content", "colorTargets"}});
    }
    EXPECT_EQ(bench.targets.closings.size(), std::size_t{RemoteTargets::mostReports});
}

TEST_F(Remote, StopsShowingTargetsAfterUserClosesThree) {
    const auto isShown = [this] {
        setStateInPeace(left, {{"content", "colorTargets"}});
        return bench.targets.covers.contains(left);
    };
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(isShown());
        setStateInPeace(left, {{"content", "transparent"}});
    }
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(isShown() && isShown()) << "Closed " << i << " times by hand.";
        bench.targets.uncoverDisplay(left);
    }
    EXPECT_FALSE(isShown());
    EXPECT_THAT(bench.log, Contains(HasSubstr("ignored for a minute")));
    bench.loop.advance(std::chrono::minutes(1));
    EXPECT_TRUE(isShown());
}

TEST_F(Remote, PacesFloodAndAlwaysAppliesLastState) {
    bench.edit(PanelSlider::BlackRed, 0.5F);
    int changes = 0;
    for (int i = 1; i <= 1000; ++i) {
        const float before = bench.red(left);
        setState(left, {{"gamma", gamma(static_cast<float>(i) / 1000)}});
        setState(right, {{"gamma", gamma(static_cast<float>(i) / 1000)}});
        // A content is not lost among the curves that follow it.
        setState(left, i == 500 ? PropertyValue{{"content", "colorTargets"}}
                                : PropertyValue{{"gamma", "text"}});
        bench.loop.advance(std::chrono::milliseconds(1));
        changes += bench.red(left) != before ? 1 : 0;
    }
    EXPECT_NEAR(changes, 59, 2);
    bench.loop.advance(PacedOrders::interval);
    EXPECT_EQ(bench.red(left), 1);
    EXPECT_EQ(bench.red(right), 1);
    EXPECT_TRUE(bench.targets.covers.contains(left));
    bench.loop.advance(std::chrono::seconds(1));
    setStateInPeace(left, {{"gamma", gamma(0.25F)}});
    for (const float red : {1.0F, 0.5F, 0.0F}) {
        bench.controller().undo();
        EXPECT_EQ(bench.red(left), red) << "A drag is one step, whatever it moves.";
    }
    EXPECT_EQ(bench.red(right), 0);
    setState(left, {{"gamma", gamma(0.25F)}});
    setState(left, {{"gamma", gamma(0.75F)}});
    bench.set("AllowRemote", false);
    bench.loop.advance(PacedOrders::interval);
    EXPECT_EQ(bench.red(left), 0.25F) << "What waited is dropped.";
}

TEST_F(Remote, RetriesUsedPortAndReportsItUntilFree) {
    bench.set("AllowRemote", false);
    bench.network.bindResult = 98;
    bench.log.clear();
    bench.set("AllowRemote", true);
    bench.loop.advance(std::chrono::minutes(1));
    EXPECT_THAT(bench.log, ElementsAre("CFSocketSetAddress() failed 98"));
    EXPECT_FALSE(bench.desktop.remoteProblem.empty() || bench.desktop.isRemoteShown);
    bench.network.bindResult = 0;
    bench.loop.advance(std::chrono::seconds(5));
    EXPECT_TRUE(bench.desktop.remoteProblem.empty() && bench.desktop.isRemoteShown);
}

TEST_F(Remote, FollowsPreferenceAndClearsItWhenSelfTestFails) {
    bench.set("AllowRemote", true);
    EXPECT_THAT(bench.network.sent, IsEmpty()) << "It runs already.";
    EXPECT_TRUE(bench.desktop.isRemoteShown);
    bench.set("AllowRemote", false);
    EXPECT_FALSE(bench.desktop.isRemoteShown);
    bench.controller().pushStateUpdate();
    bench.loop.runPosted();
    bench.set("AllowRemote", true);
    ASSERT_THAT(bench.network.sent, SizeIs(2));
    EXPECT_EQ(bench.network.sent[0].bytes, "Kantivel scan ");
    EXPECT_EQ(bench.network.sent[1].recipient, SocketAddress(SocketAddress::broadcastHost, 48184));

    // No announce arrives now.
    bench.loop.advance(std::chrono::seconds(1));
    bench.loop.runPosted();
    EXPECT_EQ(bench.preferences.stored["AllowRemote"], false);
    ASSERT_THAT(bench.alerts.shown, SizeIs(1));
    EXPECT_EQ(bench.alerts.shown[0].message, "Cannot enable remote configuration");
    EXPECT_FALSE(bench.desktop.isRemoteShown);
}

}  // namespace
}  // namespace tonquil
