// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

const SocketAddress companion(0x0A000002, 5000);

class Remote : public testing::Test {
 protected:
    Remote() {
        bench.preferences.stored = {{"AllowRemote", true}};
        bench.launchAndSettle();
        // The self-test hears the program's own announce.
        receive("Kantivel ann {\"name\":\"desk\"}");
        bench.loop.advance(std::chrono::seconds(1));
        bench.network.sent.clear();
    }
    void receive(const std::string& bytes) {
        bench.network.receive(bytes, companion);
        bench.loop.runPosted();
    }
    void setState(DisplayID display, const PropertyValue& state) {
        receive("Kantivel state-update " +
                PropertyValue{{ControllerBench::referenceID(display), state}}.dump());
    }
    /// What an announce says of a display.
    [[nodiscard]] PropertyValue info(DisplayID display) {
        bench.network.sent.clear();
        receive("Kantivel scan ");
        const std::string answer = bench.network.sent.at(0).first;
        return PropertyValue::parse(
            answer.substr(13))["screens"][ControllerBench::referenceID(display)];
    }
    static PropertyValue gamma(float red) {
        return PropertyValue::array({1, 0, 1, 1, red, 1, 1, 0, 1, 1, 0, 1, 1});
    }
    ControllerBench bench;
};

TEST_F(Remote, ACurveFromTheNetworkIsOneEdit) {
    setState(left, {{"gamma", gamma(0.25F)}});
    EXPECT_EQ(bench.red(left), 0.25F);
    EXPECT_GT(bench.firstEntry(left), 16000);
    EXPECT_EQ(
        info(left),
        (PropertyValue{
            {"number", 1}, {"local", false}, {"gamma", gamma(0.25F)}, {"content", "transparent"}}));
    bench.network.sent.clear();
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
    setState(left, {{"gamma", gamma(0.25F)}});
    bench.controller().undo();
    EXPECT_EQ(bench.red(left), 0) << "A repeated order is no second edit.";
    EXPECT_THAT(bench.network.sent, IsEmpty());
}

TEST_F(Remote, IgnoresCurvesThatNoDisplayCanShow) {
    bench.edit(PanelSlider::BlackRed, 0.125F);
    for (const PropertyValue& bad : PropertyValue{{2, 0, 1, 1}, {1, 0, 1, 1, 1001}, "text"}) {
        setState(left, {{"gamma", bad}, {"content", "colorTargets"}});
        EXPECT_EQ(bench.red(left), 0.125F) << bad;
        EXPECT_EQ(info(left)["content"], "colorTargets") << "The rest of the order holds.";
        setState(left, {{"content", "transparent"}});
    }
    receive("Kantivel state-update {\"9-9-9\":{\"gamma\":[1,1,1,1]}}");
    EXPECT_EQ(bench.red(left), 0.125F);
}

TEST_F(Remote, PushesTheClosingOfATarget) {
    setState(left, {{"content", "grayscaleTargets"}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets");
    setState(left, {{"content", 7}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets") << "Only text says anything.";
    setState(left, {{"content", "colorTargets"}});
    receive("Kantivel sub ");
    bench.network.sent.clear();
    setState(left, {{"content", "transparent"}});
    EXPECT_THAT(bench.network.sent, SizeIs(2)) << "It was shown twice.";
    EXPECT_EQ(bench.network.sent.back().second, companion);
    EXPECT_EQ(info(left)["content"], "transparent");
}

TEST_F(Remote, FollowsItsPreferenceAndSwitchesItOffWhenNobodyIsHeard) {
    bench.set("AllowRemote", true);
    EXPECT_THAT(bench.network.sent, IsEmpty()) << "It runs already.";
    EXPECT_TRUE(bench.desktop.isRemoteShown);
    bench.set("AllowRemote", false);
    EXPECT_FALSE(bench.desktop.isRemoteShown);
    bench.controller().pushStateUpdate();
    bench.loop.runPosted();
    bench.set("AllowRemote", true);
    ASSERT_THAT(bench.network.sent, SizeIs(2));
    EXPECT_EQ(bench.network.sent[0].first, "Kantivel scan ");
    EXPECT_EQ(bench.network.sent[1].second, SocketAddress(SocketAddress::broadcastHost, 48184));

    // Nobody is heard now.
    bench.loop.advance(std::chrono::seconds(1));
    bench.loop.runPosted();
    EXPECT_EQ(bench.preferences.stored["AllowRemote"], false);
    ASSERT_THAT(bench.alerts.shown, SizeIs(1));
    EXPECT_EQ(bench.alerts.shown[0].message, "Cannot enable remote configuration");
    EXPECT_FALSE(bench.desktop.isRemoteShown);
}

}  // namespace
}  // namespace tonquil
