// SPDX-License-Identifier: MIT
#include "tests/support/ProcessRunner.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

TEST(ProcessRunner, GivesAllThatAProgramWritesAndHowItEnds) {
    ProcessRequest request;
    // More than a pipe holds, both ways, so that a runner that waits first would hang.
    request.standardInput = std::string(300'000, 'x');
    request.environment["TONQUIL_WORD"] = "given";
    request.unset = {"HOME"};
    request.command = {"sh", "-c", "cat; echo \"$TONQUIL_WORD ${HOME-no home}\" >&2; exit 3"};

    const auto result = run(request);
    ASSERT_TRUE(succeeded(result));
    EXPECT_EQ(result->standardOutput, request.standardInput);
    EXPECT_EQ(result->standardError, "given no home\n");
    EXPECT_EQ(result->exitStatus, 3);
    EXPECT_EQ(result->signal, 0);
}

TEST(ProcessRunner, FailsForAProgramThatIsNotThere) {
    ProcessRequest request;
    request.command = {"/nowhere/no-such-program"};
    EXPECT_FALSE(run(request).has_value());
}

TEST(ProcessRunner, KillsAProgramThatOutlivesItsLimitOrItsObject) {
    ProcessRequest request;
    request.command = {"sleep", "1000"};
    request.limit = std::chrono::milliseconds(20);
    const auto result = run(request);
    ASSERT_TRUE(succeeded(result));
    EXPECT_EQ(result->signal, SIGKILL);
    EXPECT_EQ(result->exitStatus, -1);

    pid_t pid = 0;
    {
        const auto process = BackgroundProcess::start(request);
        ASSERT_TRUE(succeeded(process));
        pid = (*process)->pid();
        EXPECT_TRUE((*process)->isRunning());
        EXPECT_EQ(::kill(pid, 0), 0);
    }
    EXPECT_NE(::kill(pid, 0), 0);
}

TEST(ProcessRunner, FollowsTheOutputOfAProgramInTheBackground) {
    ProcessRequest request;
    request.command = {"sh", "-c", "echo ready; exec sleep 1000"};
    const auto process = BackgroundProcess::start(request);
    ASSERT_TRUE(succeeded(process));
    EXPECT_TRUE((*process)->waitForOutput("ready\n", std::chrono::seconds(20)));
    EXPECT_FALSE((*process)->waitForOutput("never", std::chrono::milliseconds(1)));
    (*process)->send(SIGTERM);
    const auto result = (*process)->wait(std::chrono::seconds(20));
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->signal, SIGTERM);
}

}  // namespace
}  // namespace tonquil
