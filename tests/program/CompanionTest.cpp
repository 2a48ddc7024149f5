// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

constexpr const char* address = "10.98.0.1";

/// A computer with a network of its own, which leads nowhere, unless the test takes it away.
class Companion : public testing::Test {
 protected:
    /// What this thread starts from now on is on that network.
    void SetUp() override {
        if (::unshare(CLONE_NEWNET) != 0) {
            GTEST_SKIP() << "Network namespaces cannot be made here.";
        }
        if (!hasRun({"ip", "link", "set", "lo", "up"}) ||
            !hasRun({"ip", "link", "add", "tq0", "type", "veth", "peer", "name", "tq1"})) {
            GTEST_SKIP() << "Virtual network links cannot be made here.";
        }
        desk = std::make_unique<Desk>();
    }
    static void connectNetwork() {
        ASSERT_TRUE(hasRun({"ip", "address", "add", "10.98.0.1/24", "brd", "+", "dev", "tq0"}));
        ASSERT_TRUE(hasRun({"ip", "link", "set", "tq0", "up"}));
        ASSERT_TRUE(hasRun({"ip", "link", "set", "tq1", "up"}));
        ASSERT_TRUE(hasRun({"ip", "route", "add", "default", "dev", "tq0"}));
    }
    static bool hasRun(const std::vector<std::string>& command) {
        const auto result = run({.command = command});
        return result && result->succeeded();
    }
    [[nodiscard]] std::string remote(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {TONQUILCTL, "remote"});
        return desk->outputOf(arguments);
    }
    [[nodiscard]] std::string referenceID() const {
        const std::string line = desk->outputOf({TONQUILCTL, "displays"});
        const auto start = line.find('\t') + 1;
        return line.substr(start, line.find('\t', start) - start);
    }
    [[nodiscard]] bool isAllowed() const {
        return desk->preferences()["AllowRemote"] == PropertyValue(true);
    }

    std::unique_ptr<Desk> desk;
};

const PropertyValue allowed = {{"AllowRemote", true},
                               {"Window Frame ControlWindow", "200 200 320 470"}};

TEST_F(Companion, FindsSetsAndReadsTheDisplaysAndHearsThatATargetIsClosed) {
    connectNetwork();
    desk->start(allowed);
    const std::string id = referenceID();
    ASSERT_TRUE(eventually([&] { return remote({"scan"}).find(id) != std::string::npos; }));
    const Ramp before = desk->ramp("DUMMY0");
    const Ramp other = desk->ramp("DUMMY1");
    std::ignore = remote({"set", address, id, "--curve", "[1,0.1,1.3]"});
    EXPECT_TRUE(eventually([&] { return desk->ramp("DUMMY0") != before; }));
    EXPECT_EQ(desk->ramp("DUMMY1"), other);
    EXPECT_EQ(remote({"get", address, id}),
              "[1.0,0.1,1.3,1.0,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]\n");

    const auto watch =
        BackgroundProcess::start(desk->request({TONQUILCTL, "remote", "watch", address}));
    ASSERT_TRUE(succeeded(watch));
    EXPECT_TRUE((*watch)->waitForOutput("transparent", std::chrono::seconds(10)));
    std::ignore = remote({"set", address, id, "--content", "colorTargets"});
    const auto isCovered = [&] {
        const auto windows = desk->windows();
        return std::ranges::any_of(windows, [](const Desk::Place& place) {
            return place.x == 0 && place.y == 0 && place.width == 1400 && place.height == 1050;
        });
    };
    ASSERT_TRUE(eventually(isCovered));
    // A curve is not pushed; the end of the target tells of it.
    std::ignore = remote({"set", address, id, "--curve", "[1,0.25,1.3]"});
    desk->xdotool({"mousemove", "600", "900", "click", "1"});
    EXPECT_TRUE(eventually([&] { return !isCovered(); }));
    EXPECT_TRUE((*watch)->waitForOutput("0.25", std::chrono::seconds(10)));
}

TEST_F(Companion, WithoutANetworkTheUserIsToldOnceAndItIsSwitchedOff) {
    desk->start(allowed);
    const auto count = [&] { return desk->windows().size(); };
    ASSERT_TRUE(eventually([&] { return count() == 2; })) << "The panel and the alert.";
    EXPECT_TRUE(eventually([&] { return !isAllowed(); }));
    desk->xdotool({"key", "Return"});
    EXPECT_TRUE(eventually([&] { return count() == 1; }));
    EXPECT_TRUE(stays([&] { return count() == 1; }));
    EXPECT_TRUE(desk->runBeside({"--quit"}).succeeded());
    EXPECT_EQ(desk->waitForEnd(), 0);
    EXPECT_FALSE(isAllowed());
}

}  // namespace
}  // namespace tonquil
