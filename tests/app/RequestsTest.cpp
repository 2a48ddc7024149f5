// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

TEST(CommandLine, IsReadAndPassedOn) {
    const std::vector<const char*> arguments{"--on",         "-session",      "10ab",
                                             "--show-panel", "/a\n100%nfile", "--targets=grayscale",
                                             "--display",    "101-0-0"};
    const Request on{.kind = Request::Kind::On};
    const Request showPanel{.kind = Request::Kind::ShowPanel};
    const Request cover{
        .kind = Request::Kind::Targets, .target = TargetKind::Grayscale, .referenceID = "101-0-0"};
    const Request open{.kind = Request::Kind::Open, .file = "/a\n100%nfile"};
    const auto line = readCommandLine(arguments);
    ASSERT_TRUE(line);
    EXPECT_THAT(line->requests, ElementsAre(on, showPanel, open, cover));
    EXPECT_THAT(requestsFromText(textFromRequests(line->requests)).value(),
                ElementsAre(on, showPanel, open, cover));
    EXPECT_THAT(readCommandLine({})->requests, ElementsAre(Request{}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--of"}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--"}));
    EXPECT_FALSE(readCommandLine(std::vector<const char*>{"--display", "101-0-0"}));
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

    carryOut({{.kind = Request::Kind::Targets},
              {.kind = Request::Kind::Targets, .target = TargetKind::Grayscale},
              {.kind = Request::Kind::Targets, .referenceID = "102-0-0"},
              {.kind = Request::Kind::Targets, .referenceID = "9"}},
             bench.controller());
    EXPECT_THAT(bench.targets.shown, ElementsAre("floating", "floating 1", "display 2 0"));
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("No such display"));
}

}  // namespace
}  // namespace tonquil
