// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/x11/displays/X11DisplayService.h"
#include "screens/ScreenRegistry.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

class X11Reconfigurations : public testing::Test {
 protected:
    /// Takes in what the server has sent and lets the quiet time pass.
    void becomeQuiet() {
        // The server has answered, so its events are on the way or here.
        while (loop.pollReadable(50ms)) {
        }
        loop.advance(X11Reconfiguration::quietTime);
    }
    void watch() {
        subscription = service->registerReconfigurationCallback(
            [this](DisplayID display, ReconfigurationFlags flags) {
                calls.emplace_back(display, flags);
            });
    }

    ManualRunLoop loop;
    std::unique_ptr<XServer> server = XServer::start().value();
    RampReader reader = RampReader::connect(server->display()).value();
    std::unique_ptr<X11DisplayService> service =
        X11DisplayService::open(server->display().c_str(), &loop, {}).value();
    std::vector<std::pair<DisplayID, ReconfigurationFlags>> calls;
    std::unique_ptr<DisplayService::Subscription> subscription;
};

TEST_F(X11Reconfigurations, OnePlugIsOneBeginAndOneEnd) {
    watch();
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    while (loop.pollReadable(50ms)) {
    }
    EXPECT_TRUE(calls.empty()) << "the server has not been quiet long enough";
    loop.advance(X11Reconfiguration::quietTime);
    ASSERT_EQ(calls.size(), 2U);
    const DisplayID second = service->onlineDisplays(25).at(1);
    EXPECT_EQ(calls[0], std::pair(second, beginConfiguration));
    EXPECT_EQ(calls[1], std::pair(second, endConfiguration));

    calls.clear();
    mustSucceed(server->xrandr({"--output", "DUMMY0", "--mode", "1280x1024"}));
    becomeQuiet();
    std::set<DisplayID> affected;
    for (const auto& [display, flags] : calls) {
        affected.insert(display);
    }
    EXPECT_TRUE(affected.contains(service->mainDisplay()));
    EXPECT_EQ(calls.size(), 2 * affected.size());

    calls.clear();
    subscription.reset();
    mustSucceed(server->unplug("DUMMY1"));
    becomeQuiet();
    EXPECT_TRUE(calls.empty());
}

TEST_F(X11Reconfigurations, AChangeBeforeTheRegistrationIsToldToo) {
    ASSERT_EQ(service->onlineDisplays(25).size(), 1U);
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    watch();
    becomeQuiet();
    EXPECT_EQ(calls.size(), 2U);
}

TEST_F(X11Reconfigurations, AnotherMonitorOnTheSameConnectorIsAnotherDisplay) {
    ScreenRegistry registry(*service);
    watch();
    const auto plugMonitor = [&](std::uint32_t serial) {
        mustSucceed(server->setEdid("DUMMY1", buildEdid({.serial = serial})));
        mustSucceed(server->plug("DUMMY1", "1280x1024"));
        becomeQuiet();
        registry.updateScreenList();
        auto screen = registry.screens().at(1);
        mustSucceed(server->unplug("DUMMY1"));
        becomeQuiet();
        registry.updateScreenList();
        return screen;
    };
    const auto first = plugMonitor(5);
    const auto second = plugMonitor(6);
    EXPECT_EQ(first->referenceID(), "5-1-21036");
    EXPECT_EQ(second->referenceID(), "6-1-21036");
    EXPECT_EQ(plugMonitor(5), first) << "and it is known when it comes back";
}

TEST_F(X11Reconfigurations, ACrtcThatADisplayLeftGetsItsSystemRampBack) {
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    const Ramp system = reader.read("DUMMY1").value();
    watch();
    GammaTable dark;
    service->setTransferTable(service->onlineDisplays(25).at(1), dark);
    ASSERT_NE(reader.read("DUMMY1").value(), system);
    mustSucceed(server->unplug("DUMMY1"));
    becomeQuiet();
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    EXPECT_EQ(reader.read("DUMMY1").value(), system);
}

TEST_F(X11Reconfigurations, PluggingUnderALoadOfAppliesKeepsEveryDisplaysIdentity) {
    mustSucceed(server->setEdid("DUMMY1", buildEdid({.serial = 5})));
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    ScreenRegistry registry(*service);
    watch();
    const auto second = registry.screens().at(1);
    GammaTable table;
    for (int round = 0; round < 6; ++round) {
        if (round % 2 == 0) {
            mustSucceed(server->unplug("DUMMY1"));
        } else {
            mustSucceed(server->plug("DUMMY1", "1280x1024"));
        }
        for (int edit = 0; edit < 50; ++edit) {
            table.channel(0)[9] = static_cast<float>(edit) / 50;
            for (const auto& screen : registry.sightedScreens()) {
                screen->setTransferTable(table);
            }
        }
        becomeQuiet();
        registry.updateScreenList();
        ASSERT_EQ(registry.screens().size(), round % 2 == 0 ? 1U : 2U);
    }
    EXPECT_EQ(registry.screens().at(1), second);
    // T, Q and L are 20, 17 and 12 in five bits each.
    EXPECT_EQ(second->referenceID(), "5-1-21036");
}

}  // namespace
}  // namespace tonquil
