// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
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
        neutral = desk.ramp("DUMMY0");
        desk.start({{"Window Frame ControlWindow", "200 200 320 470"},
                    {"ContinuouslyApplyInterval", 0.25}});
        desk.drag(Desk::masterRow, 0.6);
        ASSERT_TRUE(eventually([this] { return desk.ramp("DUMMY0") != neutral; }));
        // The last moves of the drag may still be on their way.
        ASSERT_TRUE(eventually([this] {
            corrected = desk.ramp("DUMMY0");
            return stays([this] { return isCorrected(); }, std::chrono::milliseconds(200));
        }));
    }
    [[nodiscard]] bool isCorrected() const { return desk.ramp("DUMMY0") == corrected; }

    /// The ramp outlives the program, so that alone tells nothing of what a new start knows.
    void expectToHaveTheCurve() {
        EXPECT_TRUE(desk.runBeside({"--off"}).succeeded());
        EXPECT_TRUE(eventually([this] { return desk.ramp("DUMMY0") == neutral; }));
        EXPECT_TRUE(desk.runBeside({"--on"}).succeeded());
        EXPECT_TRUE(eventually([this] { return isCorrected(); }));
    }

    Desk desk;
    Ramp neutral;
    Ramp corrected;
};

TEST_F(Run, TheCorrectionGoesOffAndOnAtOnceFromTheCommandLine) {
    startCorrected();
    EXPECT_TRUE(desk.runBeside({"--off"}).succeeded());
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") == neutral; }));
    EXPECT_TRUE(stays([&] { return desk.ramp("DUMMY0") == neutral; }));
    EXPECT_TRUE(desk.runBeside({"--toggle"}).succeeded());
    EXPECT_TRUE(eventually([&] { return isCorrected(); }));
    EXPECT_EQ(desk.runBeside({"--nonsense"}).exitStatus, 2);
}

TEST_F(Run, AForeignRampIsUndoneWithinTheInterval) {
    startCorrected();
    desk.setForeignRamp("DUMMY0");
    EXPECT_TRUE(eventually([&] { return isCorrected(); }));
}

TEST_F(Run, ADisplayThatIsUnpluggedComesBackWithItsCurve) {
    desk.start({{"Window Frame ControlWindow", "1700 200 320 470"}});
    const Ramp before = desk.ramp("DUMMY1");
    desk.drag(Desk::masterRow, 0.6);
    ASSERT_TRUE(eventually([&] { return desk.ramp("DUMMY1") != before; }));
    ASSERT_TRUE(stays([&] { return desk.ramp("DUMMY1") != before; }));
    const Ramp edited = desk.ramp("DUMMY1");
    mustSucceed(desk.server().unplug("DUMMY1"));
    ASSERT_TRUE(eventually([&] {
        return desk.program().standardError().find("Updating screen list.") != std::string::npos;
    }));
    mustSucceed(desk.server().plug("DUMMY1", "1280x1024"));
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY1") == edited; }));
}

TEST_F(Run, EveryWayToEndStoresTheCurvesAndEveryStartFindsThem) {
    startCorrected();
    for (int count = 0; count < 10; ++count) {
        SCOPED_TRACE(count);
        if (count % 2 == 0) {
            desk.program().send(SIGTERM);
        } else {
            EXPECT_TRUE(desk.runBeside({"--quit"}).succeeded());
        }
        EXPECT_EQ(desk.waitForEnd(), 0) << desk.program().standardError();
        EXPECT_TRUE(isCorrected()) << "An end leaves the correction.";
        EXPECT_FALSE(std::filesystem::exists(desk.recoveryFile()));
        desk.start();
        EXPECT_TRUE(isCorrected()) << "Nothing is corrected twice.";
        expectToHaveTheCurve();
    }
}

TEST_F(Run, TheEndOfTheServerStoresTheCurves) {
    startCorrected();
    desk.server().kill();
    EXPECT_NE(desk.waitForEnd(), -1);
    const PropertyValue screens = desk.preferences()["Screens"];
    ASSERT_TRUE(screens.is_object());
    EXPECT_NE(screens.dump().find("v4-MasterMiddle"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(desk.recoveryFile()));
}

TEST_F(Run, AKillSoonAfterAnEditLosesNothing) {
    startCorrected();
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(desk.recoveryFile()); }));
    // The curve that is kept is the last one of the drag within half a second.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    desk.program().kill();
    desk.start();
    expectToHaveTheCurve();
}

TEST_F(Run, TwentyStartsAtOnceMakeOneProgram) {
    desk.start();
    std::vector<std::thread> starts;
    std::atomic<int> succeeded = 0;
    starts.reserve(20);
    for (int count = 0; count < 20; ++count) {
        starts.emplace_back([&] { succeeded += desk.runBeside({"--on"}).succeeded() ? 1 : 0; });
    }
    for (std::thread& start : starts) {
        start.join();
    }
    EXPECT_EQ(succeeded, 20);
    EXPECT_TRUE(desk.program().isRunning());
}

TEST_F(Run, DamagedPreferencesAreKeptAndTheProgramStarts) {
    std::filesystem::create_directories(desk.preferencesFile().parent_path());
    std::ofstream(desk.preferencesFile()) << "<?xml version=\"1.0\"?><plist><dict><key>";
    desk.startWithoutPanel({});
    EXPECT_TRUE(eventually([&] { return desk.hasPanel(); }));
    int damaged = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(desk.preferencesFile().parent_path())) {
        damaged += entry.path().string().find(".damaged-") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(damaged, 1);
}

TEST_F(Run, WhileTheStartAsksOfARivalRequestsWaitAndAnEndIsAnEnd) {
    const auto programs = desk.preferencesFile().parent_path().parent_path().parent_path() /
                          "data/applications/redshift.desktop";
    std::filesystem::create_directories(programs.parent_path());
    std::ofstream(programs) << "[Desktop Entry]\nType=Application\nName=Rival\nExec=true\n";
    const auto hasQuestion = [&] { return desk.windows().size() == 1; };
    for (const bool isSignal : {false, true}) {
        SCOPED_TRACE(isSignal);
        desk.startWithoutPanel({});
        ASSERT_TRUE(eventually(hasQuestion));
        if (isSignal) {
            desk.program().send(SIGTERM);
        } else {
            EXPECT_TRUE(desk.runBeside({"--quit"}).succeeded());
        }
        EXPECT_EQ(desk.waitForEnd(), 0);
    }
    desk.startWithoutPanel({});
    ASSERT_TRUE(eventually(hasQuestion)) << "It was not answered yet.";
    EXPECT_TRUE(desk.runBeside({"--preferences"}).succeeded());
    EXPECT_TRUE(stays(hasQuestion));
    desk.xdotool({"key", "Return"});
    EXPECT_TRUE(eventually([&] { return desk.windows().size() == 2; })) << "Panel, preferences.";
}

TEST_F(Run, StartsWithoutADisplayAndServesTheFirstOneThatComes) {
    desk.start();
    desk.drag(Desk::masterRow, 0.6);
    desk.program().send(SIGTERM);
    ASSERT_EQ(desk.waitForEnd(), 0);
    mustSucceed(desk.server().unplug("DUMMY1"));
    mustSucceed(desk.server().xrandr({"--output", "DUMMY0", "--off"}));
    desk.startWithoutPanel({});
    EXPECT_TRUE(stays([&] { return desk.program().isRunning(); }));
    mustSucceed(desk.server().xrandr({"--output", "DUMMY0", "--auto"}));
    EXPECT_TRUE(eventually([&] {
        return desk.program().standardError().find("Updating screen list.") != std::string::npos;
    }));
    EXPECT_TRUE(desk.program().isRunning()) << desk.program().standardError();
}

TEST(RunAlone, WithoutAWindowManagerThePanelStillWorks) {
    Desk desk(Desk::WindowManager::No);
    const Ramp before = desk.ramp("DUMMY0");
    desk.start({{"Window Frame ControlWindow", "200 200 320 470"}});
    EXPECT_THAT(desk.program().standardError(), HasSubstr("no window manager"));
    desk.drag(Desk::masterRow, 0.6);
    EXPECT_TRUE(eventually([&] { return desk.ramp("DUMMY0") != before; }));
}

TEST(RunAlone, WithoutADisplayServerItSaysSo) {
    const auto result = run({.command = {TONQUIL},
                             .environment = {{"DISPLAY", ":4242"}},
                             .unset = {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->exitStatus, 1);
    EXPECT_THAT(result->standardError, HasSubstr(":4242"));
}

}  // namespace
}  // namespace tonquil
