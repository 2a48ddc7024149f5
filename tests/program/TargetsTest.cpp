// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "plist/PropertyListWriter.h"
#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

/// Where the window at a point of the desktop is, in the tool's words: "Position: 1400,0 …
/// Geometry: 1280x1024".
std::string windowAt(Desk& desk, int x, int y) {
    const std::map<std::string, std::string> environment{{"DISPLAY", desk.server().display()}};
    desk.xdotool({"mousemove", std::to_string(x), std::to_string(y)});
    const auto location =
        run({.command = {"xdotool", "getmouselocation"}, .environment = environment}).value();
    const std::string_view mark = "window:";
    std::string window =
        location.standardOutput.substr(location.standardOutput.find(mark) + mark.size());
    window.erase(window.find('\n'));
    return run({.command = {"xdotool", "getwindowgeometry", window}, .environment = environment})
        .value()
        .standardOutput;
}

TEST(Targets, CoverExactlyTheirDisplayUntilTheyAreClickedOrItGoes) {
    Desk desk;
    desk.start({{"Window Frame ControlWindow", "200 200 320 470"}});
    const auto isCovered = [&desk] {
        return windowAt(desk, 2000, 500).find("Geometry: 1280x1024") != std::string::npos;
    };
    const auto displays = run({.command = {TONQUILCTL, "displays"},
                               .environment = {{"DISPLAY", desk.server().display()}}});
    ASSERT_TRUE(displays && displays->succeeded());
    const std::string second =
        displays->standardOutput.substr(displays->standardOutput.find("\n2\t") + 3);
    const std::string referenceID = second.substr(0, second.find('\t'));

    const auto cover = [&] {
        EXPECT_TRUE(desk.runBeside({"--targets=grayscale", "--display", referenceID}).succeeded());
        EXPECT_TRUE(eventually(isCovered));
    };
    cover();
    EXPECT_THAT(windowAt(desk, 2000, 500), testing::HasSubstr("Position: 1400,0"));
    EXPECT_THAT(windowAt(desk, 1390, 500), testing::Not(testing::HasSubstr("1280x1024")));
    desk.xdotool({"mousemove", "2000", "500", "click", "1"});
    EXPECT_TRUE(eventually([&] { return !isCovered(); }));

    cover();
    mustSucceed(desk.server().unplug("DUMMY1"));
    EXPECT_TRUE(eventually([&] { return !isCovered(); }));
    EXPECT_TRUE(desk.program().isRunning());
}

TEST(Targets, AFileOnTheCommandLineReachesTheRunningProgram) {
    Desk desk;
    desk.start({{"Window Frame ControlWindow", "200 200 320 470"}});
    const Ramp before = desk.ramp("DUMMY0");
    const std::filesystem::path file = desk.preferencesFile().parent_path() / "a file.tonquil";
    std::ofstream(file) << writePropertyList({{"v4-MasterBlack", 0.25},
                                              {"v4-MasterMiddle", 1.0},
                                              {"v4-MasterWhite", 1.0},
                                              {"BlendingMode", 1}})
                               .value();
    EXPECT_TRUE(desk.runBeside({file}).succeeded());
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != before; }));
}

}  // namespace
}  // namespace tonquil
