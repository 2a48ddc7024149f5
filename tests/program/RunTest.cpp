// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <thread>

#include "tests/program/Desk.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using testing::HasSubstr;

class Run : public testing::Test {
 protected:
    /// Starts with a correction on the left display, made by a drag.
    void startCorrected() {
        neutral = desk.ramp();
        desk.start({{"ContinuouslyApplyInterval", 0.25}});
        corrected = desk.correct();
    }
    [[nodiscard]] bool becomes(const Ramp& ramp) const {
        return eventually([&] { return desk.ramp() == ramp; });
    }

    Desk desk;
    Ramp neutral;
    Ramp corrected;
};

TEST_F(Run, AcceptsRequestsAndUndoesForeignRamps) {
    startCorrected();
    desk.request("--off");
    EXPECT_TRUE(becomes(neutral));
    EXPECT_TRUE(stays([&] { return desk.ramp() == neutral; }));
    desk.request("--toggle");
    EXPECT_TRUE(becomes(corrected));
    EXPECT_EQ(desk.run({TONQUIL, "--nonsense"}).exitStatus, 2);
    mustSucceed(desk.server().xrandr({"--output", "DUMMY0", "--gamma", "1.5:1:0.5"}));
    EXPECT_TRUE(becomes(corrected));
}

TEST_F(Run, RestoresCurvesOnReplugAndStartsWithoutDisplays) {
    desk.start({{"Window Frame ControlWindow", "1700 200 320 470"}});
    const auto hasUpdated = [&] {
        return desk.program().standardError().find("Updating screen list.") != std::string::npos;
    };
    const Ramp edited = desk.correct("DUMMY1");
    mustSucceed(desk.server().unplug("DUMMY1"));
    ASSERT_TRUE(eventually(hasUpdated));
    mustSucceed(desk.server().plug("DUMMY1", "1280x1024"));
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY1") == edited; }));

    desk.program().send(SIGTERM);
    ASSERT_EQ(desk.waitForEnd(), 0);
    mustSucceed(desk.server().unplug("DUMMY1"));
    mustSucceed(desk.server().unplug("DUMMY0"));
    desk.startWithoutPanel();
    EXPECT_TRUE(stays([&] { return desk.program().isRunning(); }));
    mustSucceed(desk.server().xrandr({"--output", "DUMMY0", "--auto"}));
    EXPECT_TRUE(eventually(hasUpdated));
    EXPECT_TRUE(desk.program().isRunning()) << desk.program().standardError();
}

TEST_F(Run, KeepsCurvesHoweverItEnds) {
    startCorrected();
    // The stored curve is the drag's final one within half a second.
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(desk.recoveryFile()); }));
    std::this_thread::sleep_for(std::chrono::seconds(1));
    for (const int signal : {SIGKILL, SIGTERM, 0}) {
        SCOPED_TRACE(signal);
        if (signal != 0) {
            desk.program().send(signal);
        } else {
            desk.request("--quit");
        }
        EXPECT_EQ(desk.waitForEnd(), signal == SIGKILL ? -1 : 0);
        EXPECT_EQ(desk.ramp(), corrected) << "An end leaves the correction.";
        EXPECT_EQ(std::filesystem::exists(desk.recoveryFile()), signal == SIGKILL);
        desk.start();
        EXPECT_EQ(desk.ramp(), corrected) << "Nothing is corrected twice.";
        // The ramp outlives the program, so it alone does not show what a new start knows.
        desk.request("--off");
        EXPECT_TRUE(becomes(neutral));
        desk.request("--on");
        EXPECT_TRUE(becomes(corrected));
    }
    const PropertyValue before = desk.preferences()["Screens"];
    desk.correct("DUMMY0", 0.7);
    desk.server().kill();
    EXPECT_NE(desk.waitForEnd(), -1);
    EXPECT_NE(desk.preferences()["Screens"], before);
    EXPECT_FALSE(std::filesystem::exists(desk.recoveryFile()));
}

TEST_F(Run, DelaysRequestsButNotShutdownDuringRivalAlert) {
    const auto programs = desk.folder() / "data/applications";
    std::filesystem::create_directories(programs);
    std::ofstream(programs / "redshift.desktop")
        << "[Desktop Entry]\nType=Application\nName=Rival\nExec=true\n";
    const auto hasQuestion = [&] { return desk.windows().size() == 1; };
    for (const bool isSignal : {false, true}) {
        SCOPED_TRACE(isSignal);
        desk.startWithoutPanel();
        ASSERT_TRUE(eventually(hasQuestion));
        if (isSignal) {
            desk.program().send(SIGTERM);
        } else {
            desk.request("--quit");
        }
        EXPECT_EQ(desk.waitForEnd(), 0);
    }
    desk.startWithoutPanel();
    ASSERT_TRUE(eventually(hasQuestion)) << "It was not answered yet.";
    desk.request("--preferences");
    EXPECT_TRUE(stays(hasQuestion));
    desk.xdotool({"key", "Return"});
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 2; })) << "Panel, preferences.";
}

TEST(RunAlone, ShowsPanelWithoutStandardStreams) {
    const Desk desk;
    const auto program = desk.begin({"sh", "-c", "exec " TONQUIL " <&- >&- 2>&-"});
    EXPECT_TRUE(eventually([&] { return desk.hasPanel(); }));
}

TEST(RunAlone, WorksWithoutWindowManagerAndReportsMissingServer) {
    Desk desk(false);
    desk.start();
    EXPECT_THAT(desk.program().standardError(), HasSubstr("no window manager"));
    desk.correct();
    const ProcessResult result = desk.run({"env", "DISPLAY=:64999", TONQUIL});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.standardError, HasSubstr(":64999"));
}

}  // namespace
}  // namespace tonquil
