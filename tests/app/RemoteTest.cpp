// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "model/KVGammaPoint.h"
#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr DisplayID left = ControllerBench::left;
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
        receive("Kantivel state-update " + PropertyValue{{id(display), state}}.dump());
    }
    /// What an announce says of a display.
    [[nodiscard]] PropertyValue info(DisplayID display) {
        bench.network.sent.clear();
        receive("Kantivel scan ");
        const std::string answer = bench.network.sent.at(0).first;
        return PropertyValue::parse(answer.substr(13))["screens"][id(display)];
    }
    [[nodiscard]] static std::string id(DisplayID display) {
        return std::to_string(100 + display) + "-0-0";
    }
    [[nodiscard]] float red(DisplayID display) {
        return bench.curve(display)->blackPoint()->redValue();
    }
    static PropertyValue gamma(float red) {
        return PropertyValue::array({1, 0, 1, 1, red, 1, 1, 0, 1, 1, 0, 1, 1});
    }
    ControllerBench bench;
};

TEST_F(Remote, CompanionsAreToldOfTheDisplays) {
    EXPECT_EQ(info(left)["number"], 1);
    const PropertyValue right = info(ControllerBench::right);
    EXPECT_EQ(right["number"], 2);
    EXPECT_TRUE(right["local"].is_boolean());
    EXPECT_EQ(right["gamma"], gamma(0));
    EXPECT_EQ(right["content"], "transparent");
    EXPECT_TRUE(bench.presence.isRemoteShown);
}

TEST_F(Remote, ACurveFromAfarIsOneEdit) {
    setState(left, {{"gamma", gamma(0.25F)}});
    EXPECT_EQ(red(left), 0.25F);
    EXPECT_GT(bench.firstEntry(left), 16000);
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
    setState(left, {{"gamma", gamma(0.25F)}});
    bench.controller().undo();
    EXPECT_EQ(red(left), 0) << "A repeated order is no second edit.";
    EXPECT_THAT(bench.network.sent, IsEmpty());
}

TEST_F(Remote, WhatNoDisplayCanShowChangesNoCurve) {
    bench.edit(PanelSlider::BlackRed, 0.125F);
    const PropertyValue unknownMode = {2, 0, 1, 1};
    const PropertyValue huge = {1, 0, 1, 1, 1e300};
    for (const PropertyValue& bad : {unknownMode, huge, PropertyValue("text"), PropertyValue()}) {
        setState(left, {{"gamma", bad}, {"content", "colorTargets"}});
        EXPECT_EQ(red(left), 0.125F) << bad;
        EXPECT_EQ(info(left)["content"], "colorTargets") << "The rest of the order holds.";
        setState(left, {{"content", "transparent"}});
    }
    receive("Kantivel state-update {\"9-9-9\":{\"gamma\":[1,1,1,1]}}");
    EXPECT_EQ(red(left), 0.125F);
}

TEST_F(Remote, TargetsComeAndGoAndTheirClosingIsPushed) {
    setState(left, {{"content", "grayscaleTargets"}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets");
    setState(left, {{"content", 7}});
    EXPECT_EQ(info(left)["content"], "grayscaleTargets") << "Only text says anything.";
    setState(left, {{"content", "colorTargets"}});
    EXPECT_EQ(info(left)["content"], "colorTargets");
    receive("Kantivel sub ");
    bench.network.sent.clear();
    setState(left, {{"content", "transparent"}});
    EXPECT_THAT(bench.network.sent, SizeIs(2)) << "It was shown twice.";
    EXPECT_EQ(bench.network.sent.back().second, companion);
    EXPECT_EQ(info(left)["content"], "transparent");
}

TEST_F(Remote, IsSwitchedOnAndOffWhileTheProgramRuns) {
    bench.preferences.setValue("AllowRemote", true);
    bench.loop.runPosted();
    EXPECT_THAT(bench.network.sent, IsEmpty()) << "It runs already.";
    bench.preferences.setValue("AllowRemote", false);
    bench.loop.runPosted();
    EXPECT_FALSE(bench.presence.isRemoteShown);
    bench.controller().pushStateUpdate();
    bench.loop.runPosted();
    bench.preferences.setValue("AllowRemote", true);
    bench.loop.runPosted();
    ASSERT_THAT(bench.network.sent, SizeIs(2));
    EXPECT_EQ(bench.network.sent[0].first, "Kantivel scan ");
    EXPECT_EQ(bench.network.sent[1].second, SocketAddress(SocketAddress::broadcastHost, 48184));

    // Nobody is heard now.
    bench.loop.advance(std::chrono::seconds(1));
    bench.loop.runPosted();
    EXPECT_EQ(bench.preferences.stored["AllowRemote"], false);
    EXPECT_THAT(bench.alerts.messages, ElementsAre("Cannot enable remote configuration"));
    EXPECT_FALSE(bench.presence.isRemoteShown);
}

}  // namespace
}  // namespace tonquil
