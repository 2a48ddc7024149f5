// SPDX-License-Identifier: MIT
#include "platform/posix/TerminationSignals.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

// Raises the signals one after the other in this process, and prints which were reported.
void raiseAll(const std::vector<int>& signals) {
    ManualRunLoop loop;
    const auto watch = TerminationSignals::watch(
        loop, [](int signal) { std::fprintf(stderr, "told %d.", signal); });
    for (const int signal : signals) {
        std::raise(signal);
        while (loop.pollReadable(0ms) != 0) {
        }
    }
    std::_Exit(watch ? 0 : 1);
}

TEST(TerminationSignalsDeathTest, ReportsFirstAndKillsOnSecondOfSameKind) {
    const testing::ExitedWithCode goesOn(0);
    EXPECT_EXIT(raiseAll({SIGINT, SIGINT}), testing::KilledBySignal(SIGINT), "^told 2\\.$");
    EXPECT_EXIT(raiseAll({SIGTERM, SIGHUP, SIGHUP, SIGINT}), goesOn, "^told 15\\.$");
    EXPECT_EXIT(raiseAll({SIGHUP, SIGHUP, SIGTERM, SIGTERM}), testing::KilledBySignal(SIGTERM),
                "^told 1\\.$");
    EXPECT_EXIT(raiseAll({SIGPIPE, SIGPIPE}), goesOn, "^$");
}

TEST(TerminationSignals, RestoresHandlersAndLeavesIgnoredSignalsIgnored) {
    ManualRunLoop loop;
    std::signal(SIGHUP, SIG_IGN);
    auto watch = TerminationSignals::watch(loop, [](int signal) { ADD_FAILURE() << signal; });
    EXPECT_FALSE(TerminationSignals::watch(loop, [](int) {})) << "there is one already";
    std::raise(SIGHUP);
    loop.pollReadable(0ms);
    watch.value().reset();
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    for (const int signal : {SIGTERM, SIGINT, SIGPIPE}) {
        EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL) << signal;
    }
    EXPECT_TRUE(TerminationSignals::watch(loop, [](int) {})) << "the place is free again";
}

}  // namespace
}  // namespace tonquil
