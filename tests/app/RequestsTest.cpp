// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

TEST(CommandLine, IsReadAndPassedOn) {
    const std::vector<const char*> arguments{"--on", "-session", "10ab", "--show-panel",
                                             "/a\n100%nfile"};
    const Request on{.kind = Request::Kind::On};
    const Request showPanel{.kind = Request::Kind::ShowPanel};
    const Request open{.kind = Request::Kind::Open, .file = "/a\n100%nfile"};
    const auto line = readCommandLine(arguments);
    ASSERT_TRUE(line);
    EXPECT_THAT(line->requests, ElementsAre(on, showPanel, open));
    EXPECT_THAT(requestsFromText(textFromRequests(line->requests)).value(),
                ElementsAre(on, showPanel, open));
    EXPECT_THAT(readCommandLine({})->requests, ElementsAre(Request{}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--of"}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--"}));
    EXPECT_FALSE(requestsFromText("on\n\n"));
}

TEST(Requests, AreCarriedOutInTheirOrder) {
    ControllerBench bench;
    bench.launchAndSettle();
    carryOut({{Request::Kind::Off}, {Request::Kind::Toggle}, {Request::Kind::Toggle}},
             bench.controller());
    EXPECT_FALSE(bench.controller().applyCorrection());
    carryOut({{Request::Kind::On}, {Request::Kind::Quit}}, bench.controller());
    EXPECT_TRUE(bench.controller().applyCorrection());
    EXPECT_TRUE(bench.hasEnded);
}

}  // namespace
}  // namespace tonquil
