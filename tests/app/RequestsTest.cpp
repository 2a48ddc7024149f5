// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

TEST(CommandLine, IsReadAndPassedOn) {
    const std::vector<const char*> arguments{"--on", "-session", "10ab", "--show-panel"};
    const auto line = readCommandLine(arguments);
    ASSERT_TRUE(line);
    EXPECT_THAT(line->requests, ElementsAre(Request::On, Request::ShowPanel));
    EXPECT_THAT(requestsFromText(textFromRequests(line->requests)).value(),
                ElementsAre(Request::On, Request::ShowPanel));
    EXPECT_THAT(readCommandLine({})->requests, ElementsAre(Request::Reopen));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--of"}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--"}));
    EXPECT_FALSE(requestsFromText("on\n\n"));
}

TEST(Requests, AreCarriedOutInTheirOrder) {
    ControllerBench bench;
    bench.launchAndSettle();
    carryOut({Request::Off, Request::Toggle, Request::Toggle}, bench.controller());
    EXPECT_FALSE(bench.controller().applyCorrection());
    carryOut({Request::On, Request::Quit}, bench.controller());
    EXPECT_TRUE(bench.controller().applyCorrection());
    EXPECT_TRUE(bench.hasEnded);
}

}  // namespace
}  // namespace tonquil
