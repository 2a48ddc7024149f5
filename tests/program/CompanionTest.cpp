// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sched.h>

#include "tests/program/Desk.h"

namespace tonquil {
namespace {

constexpr const char* address = "10.98.0.1";

TEST(Companion, FindsSetsAndReadsDisplaysAndSeesTargetClose) {
    // Processes started by this thread from now on have a network namespace of their own, which
    // leads nowhere.
    if (::unshare(CLONE_NEWNET) != 0 ||
        !run({.command = {"sh", "-ec",
                          "ip link set lo up; ip link add tq0 type veth peer name tq1;"
                          "ip address add 10.98.0.1/24 brd + dev tq0; ip link set tq0 up;"
                          "ip link set tq1 up; ip route add default dev tq0"}})
             .value()
             .succeeded()) {
        GTEST_SKIP() << "Networks cannot be made here.";
    }
    Desk desk;
    const auto remote = [&desk](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {TONQUILCTL, "remote"});
        return desk.run(arguments).standardOutput;
    };
    desk.start({{"AllowRemote", true}});
    const std::string line = desk.run({TONQUILCTL, "displays"}).standardOutput;
    const auto start = line.find('\t') + 1;
    const std::string id = line.substr(start, line.find('\t', start) - start);
    ASSERT_TRUE(eventually([&] { return remote({"scan"}).find(id) != std::string::npos; }));
    const Ramp before = desk.ramp();
    const Ramp other = desk.ramp("DUMMY1");
    remote({"set", address, id, "--curve", "[1,0.1,1.3]"});
    EXPECT_TRUE(eventually([&] { return desk.ramp() != before; }));
    EXPECT_EQ(desk.ramp("DUMMY1"), other);
    EXPECT_EQ(remote({"get", address, id}),
              "[1.0,0.1,1.3,1.0,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]\n");

    const auto watch = desk.begin({TONQUILCTL, "remote", "watch", address});
    EXPECT_TRUE(watch->waitForOutput("transparent", std::chrono::seconds(10)));
    remote({"set", address, id, "--content", "colorTargets"});
    const Desk::Place whole{0, 0, 1400, 1050};
    ASSERT_TRUE(eventually([&] { return desk.hasWindow(whole); }));
    // A change of curve is not pushed; the closing of the target is.
    remote({"set", address, id, "--curve", "[1,0.25,1.3]"});
    desk.click(600, 900);
    EXPECT_TRUE(eventually([&] { return !desk.hasWindow(whole); }));
    EXPECT_TRUE(watch->waitForOutput("0.25", std::chrono::seconds(10)));
}

}  // namespace
}  // namespace tonquil
