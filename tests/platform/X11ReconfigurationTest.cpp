// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
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
using std::chrono::milliseconds;

class X11Reconfigurations : public testing::Test {
 protected:
    /// Handles the server's events: it has replied, so they are on the way or here.
    void hear() {
        while (loop.pollReadable(50ms)) {
        }
    }
    void becomeQuiet() {
        hear();
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

TEST_F(X11Reconfigurations, ReportsOnePlugOnce) {
    watch();
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    hear();
    EXPECT_TRUE(calls.empty()) << "the server has not been quiet long enough";
    loop.advance(X11Reconfiguration::quietTime);
    ASSERT_EQ(calls.size(), 2U);
    const DisplayID second = service->onlineDisplays(25).at(1);
    EXPECT_EQ(calls[0], std::pair(second, beginConfiguration));
    EXPECT_EQ(calls[1], std::pair(second, endConfiguration));

    calls.clear();
    mustSucceed(server->xrandr({"--output", "DUMMY0", "--mode", "1280x1024"}));
    becomeQuiet();
    const DisplayID main = service->mainDisplay();
    EXPECT_EQ(std::ranges::count(calls, std::pair(main, beginConfiguration)), 1);
    EXPECT_EQ(std::ranges::count(calls, std::pair(main, endConfiguration)), 1);
}

TEST_F(X11Reconfigurations, ReportsDisplayBrieflyOffEvenInStorm) {
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    const DisplayID second = service->onlineDisplays(25).at(1);
    watch();
    for (milliseconds passed{0}; calls.empty(); passed += 100ms) {
        ASSERT_LE(passed, X11Reconfiguration::longestWait);
        mustSucceed(server->unplug("DUMMY1"));
        mustSucceed(server->plug("DUMMY1", "1280x1024"));
        hear();
        loop.advance(100ms);
    }
    EXPECT_EQ(calls.front(), std::pair(second, beginConfiguration));
}

TEST_F(X11Reconfigurations, DistinguishesMonitorsOnSameConnector) {
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

TEST_F(X11Reconfigurations, RestoresSystemRampOfAbandonedCrtc) {
    ASSERT_EQ(service->onlineDisplays(25).size(), 1U);
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    const Ramp system = reader.read("DUMMY1").value();
    watch();
    becomeQuiet();
    EXPECT_EQ(calls.size(), 2U) << "a change from before the registration is told too";
    GammaTable dark;
    service->setTransferTable(service->onlineDisplays(25).at(1), dark);
    ASSERT_NE(reader.read("DUMMY1").value(), system);
    mustSucceed(server->unplug("DUMMY1"));
    becomeQuiet();
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    EXPECT_EQ(reader.read("DUMMY1").value(), system);
}

}  // namespace
}  // namespace tonquil
