// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>

#include "plist/PropertyListWriter.h"
#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

TEST(CommandLine, CoversDisplayAndOpensFileInRunningProgram) {
    Desk desk;
    desk.start();
    const Desk::Place whole{1400, 0, 1280, 1024};
    const auto displays = desk.run({TONQUILCTL, "displays"}).standardOutput;
    const std::string second = displays.substr(displays.find("\n2\t") + 3);
    const auto cover = [&] {
        EXPECT_TRUE(desk.run({TONQUIL, "--targets=grayscale", "--display",
                              second.substr(0, second.find('\t'))})
                        .succeeded());
        EXPECT_TRUE(eventually([&] { return desk.hasWindow(whole); }));
    };
    cover();
    desk.click(2000, 500);
    EXPECT_TRUE(eventually([&] { return !desk.hasWindow(whole); }));

    cover();
    mustSucceed(desk.server().unplug("DUMMY1"));
    EXPECT_TRUE(eventually([&] { return !desk.hasWindow(whole); }));
    EXPECT_TRUE(desk.program().isRunning());

    const Ramp before = desk.ramp();
    const auto file = desk.folder() / "a file.tonquil";
    std::ofstream(file) << writePropertyList({{"v4-MasterBlack", 0.25},
                                              {"v4-MasterMiddle", 1.0},
                                              {"v4-MasterWhite", 1.0},
                                              {"BlendingMode", 1}})
                               .value();
    desk.request(file);
    EXPECT_TRUE(eventually([&] { return desk.ramp() != before; }));
}

TEST(CommandLine, BringsBackMinimisedOrOffWorkspaceWindow) {
    Desk desk;
    desk.start();
    desk.xdotool({"set_num_desktops", "2"});
    for (const auto& [title, argument] : {std::pair("Preferences", "--preferences"),
                                          {"Targets", "--targets"},
                                          {"Tonquil", "--show-panel"}}) {
        SCOPED_TRACE(title);
        const auto isInFront = [&, title = title] {
            return desk.run({"xdotool", "getactivewindow", "getwindowname"})
                .standardOutput.starts_with(title);
        };
        const auto ask = [&, argument = argument] {
            desk.request(argument);
            EXPECT_TRUE(eventually(isInFront));
        };
        ask();
        desk.xdotool({"getactivewindow", "windowminimize"});
        ASSERT_TRUE(eventually([&] { return !isInFront(); }));
        ask();
        desk.xdotool({"set_desktop", "1"});
        const bool isOnOne = std::string(argument) == "--preferences";
        ASSERT_TRUE(eventually([&] { return !isOnOne || !isInFront(); }));
        ask();
        EXPECT_EQ(desk.run({"xdotool", "get_desktop"}).standardOutput, "1\n");
        // -1 stands for all workspaces.
        EXPECT_EQ(desk.run({"xdotool", "getactivewindow", "get_desktop_for_window"}).standardOutput,
                  isOnOne ? "1\n" : "-1\n");
        desk.xdotool({"set_desktop", "0"});
    }
}

}  // namespace
}  // namespace tonquil
