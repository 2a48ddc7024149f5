// SPDX-License-Identifier: MIT
#include "platform/posix/TerminationSignals.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "tests/support/ManualRunLoop.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

// Raises the signals one after the other in this process, and prints which were told.
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

TEST(TerminationSignalsDeathTest, OnlyTheFirstIsToldAndASecondOfItsKindEndsAStuckProgram) {
    struct Row {
        std::vector<int> signals;
        /// The signal that ends the program, or 0.
        int end;
        const char* told;
    };
    const std::vector<Row> rows{{{SIGTERM}, 0, "^told 15\\.$"},
                                {{SIGTERM, SIGTERM}, SIGTERM, "^told 15\\.$"},
                                {{SIGINT, SIGINT}, SIGINT, "^told 2\\.$"},
                                {{SIGTERM, SIGHUP, SIGHUP, SIGINT}, 0, "^told 15\\.$"},
                                {{SIGHUP, SIGHUP, SIGTERM, SIGTERM}, SIGTERM, "^told 1\\.$"},
                                {{SIGPIPE, SIGPIPE}, 0, "^$"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.signals));
        if (row.end == 0) {
            EXPECT_EXIT(raiseAll(row.signals), testing::ExitedWithCode(0), row.told);
        } else {
            EXPECT_EXIT(raiseAll(row.signals), testing::KilledBySignal(row.end), row.told);
        }
    }
}

TEST(TerminationSignalsTest, WhatWasThereBeforeIsPutBackAndWhatWasIgnoredStaysSo) {
    ManualRunLoop loop;
    std::signal(SIGHUP, SIG_IGN);
    bool isTold = false;
    auto watch = TerminationSignals::watch(loop, [&](int) { isTold = true; });
    mustSucceed(watch);
    EXPECT_FALSE(TerminationSignals::watch(loop, [](int) {})) << "there is one already";
    std::raise(SIGHUP);
    loop.pollReadable(0ms);
    EXPECT_FALSE(isTold);
    watch->reset();
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    for (const int signal : {SIGTERM, SIGINT, SIGPIPE}) {
        EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL) << signal;
    }
    EXPECT_TRUE(TerminationSignals::watch(loop, [](int) {})) << "the place is free again";
}

}  // namespace
}  // namespace tonquil
