// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include "tests/cli/ControlProgram.h"
#include "tests/support/GammaCompositor.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/KdeCompositor.h"
#include "tests/support/MutterDesk.h"
#include "values/BoundedJson.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// Asks again until it is so; false when that takes too long.
template <typename Question>
bool comesTrue(Question isSo) {
    const auto end = std::chrono::steady_clock::now() + 20s;
    bool isYes = isSo();
    while (!isYes && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(2ms);
        isYes = isSo();
    }
    return isYes;
}

template <typename Compositor>
class ProgramOn : public testing::Test {
 protected:
    ProcessRequest request(const std::vector<std::string>& arguments) {
        ProcessRequest request = tonquilctlRequest("", arguments);
        std::erase(request.unset, "WAYLAND_DISPLAY");
        request.environment["WAYLAND_DISPLAY"] = compositor.socket();
        request.environment["XDG_STATE_HOME"] = state.path();
        return request;
    }
    ProcessResult control(const std::vector<std::string>& arguments) {
        return run(request(arguments)).value();
    }

    ScratchFolder state;
    Compositor compositor;
};
using ProgramOnWayland = ProgramOn<GammaCompositor>;
using ProgramOnKde = ProgramOn<KdeCompositor>;

TEST_F(ProgramOnWayland, SaysWhatADesktopThatOnlyLendsItsTablesCannotDo) {
    compositor.plug("DP-1", 0, 1024);
    const auto list = readBoundedJson(control({"displays", "--json"}).standardOutput).value();
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0]["outlives"], false);
    EXPECT_EQ(list[0]["readable"], false);
    EXPECT_EQ(list[0]["bounds"], (PropertyValue{0, 0, 1920, 1080}));
    for (const auto& command : std::vector<std::vector<std::string>>{
             {"apply", "--curve", "[0,0,1.5]"}, {"restore"}, {"read", "--hardware"}}) {
        const ProcessResult result = control(command);
        EXPECT_EQ(result.exitStatus, 1) << command[0];
        EXPECT_EQ(result.standardError.find('\n'), result.standardError.size() - 1);
    }
    EXPECT_NE(control({"read"}).standardOutput.find("\n255\t1\t1\t1\n"), std::string::npos);
}

TEST_F(ProgramOnWayland, TakesCalibrationSessionsBeforeGammaControlsBeforeRampsForAnybody) {
    compositor.plug("wlr", 0);
    for (const bool lendsSessions : {true, false}) {
        MutterDesk desk(lendsSessions);
        desk.tell("desk.plug('mutter', 0)");
        ProcessRequest list = request({"displays"});
        list.environment["DBUS_SESSION_BUS_ADDRESS"] = desk.address();
        EXPECT_NE(run(list)->standardOutput.find(lendsSessions ? "\tmutter\t" : "\twlr\t"),
                  std::string::npos);
        list.environment["WAYLAND_DISPLAY"] = "none";
        EXPECT_NE(run(list)->standardOutput.find("\tmutter\t"), std::string::npos);
        list.unset.emplace_back("WAYLAND_DISPLAY");
        list.environment.erase("WAYLAND_DISPLAY");
        EXPECT_EQ(run(list)->standardOutput, "") << "an X11 session of GNOME";
        EXPECT_EQ(desk.tell("desk.count"), "0") << "listing touches nothing";
    }
}

TEST_F(ProgramOnWayland, HoldsACorrectionUntilItIsEnded) {
    const HardwareRamp straight = HardwareRamp::straight(256);
    compositor.plug("DP-1", 0);
    const auto holder =
        BackgroundProcess::start(request({"apply", "--hold", "--curve", "[0,0,1.5]"})).value();
    ASSERT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") != straight; }));
    compositor.plug("DP-2", 1920);
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-2") != straight; }));
    compositor.unplug("DP-1");
    compositor.plug("DP-1", 0);
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") == compositor.ramp("DP-2"); }));
    holder->send(SIGTERM);
    const auto ended = holder->wait(20s);
    ASSERT_TRUE(ended);
    EXPECT_EQ(ended->exitStatus, 0);
    EXPECT_EQ(ended->standardError, "");
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") == straight; }));

    const auto lost =
        BackgroundProcess::start(request({"apply", "--hold", "--curve", "[0,0,1.5]"})).value();
    ASSERT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") != straight; }));
    compositor.die();
    const auto alone = lost->wait(20s);
    ASSERT_TRUE(alone);
    EXPECT_EQ(alone->exitStatus, 1);
    EXPECT_EQ(alone->standardError, "tonquilctl: The display server has gone.\n");
}

TEST_F(ProgramOnWayland, HandsCurvesToTheTonquilThatRuns) {
    const ScratchFolder home;
    compositor.plug("DP-1", 0);
    compositor.plug("DP-2", 1920);
    compositor.plug("DP-3", 3840);
    const auto inSession = [&](ProcessRequest request) {
        for (const char* const folder : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME",
                                         "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS"}) {
            request.environment[folder] = home.path();
        }
        request.environment["QT_QPA_PLATFORM"] = "offscreen";
        return request;
    };
    const auto control = [&](const std::vector<std::string>& arguments) {
        return run(inSession(request(arguments))).value().exitStatus;
    };
    // A slow machine's compositor may not answer in the time in which a command does.
    const auto succeeds = [&](const std::vector<std::string>& arguments) {
        return comesTrue([&] { return control(arguments) == 0; });
    };
    auto start = inSession(request({}));
    start.command = {TONQUIL};
    const auto program = BackgroundProcess::start(start).value();
    ASSERT_TRUE(succeeds({"restore"})) << program->standardError();

    // The correction was off, and what is not meant keeps its neutral curve.
    EXPECT_TRUE(succeeds({"apply", "--display", "DP-2", "--curve", "[0,0,1.5]"}));
    const auto areAlike = [&] { return compositor.ramp("DP-1") == compositor.ramp("DP-2"); };
    EXPECT_TRUE(comesTrue([&] { return compositor.isHeld("DP-1") && !areAlike(); }));
    EXPECT_TRUE(succeeds({"restore", "--display", "DP-2"}));
    EXPECT_TRUE(comesTrue(areAlike));
    const HardwareRamp neutral = compositor.ramp("DP-1");
    EXPECT_TRUE(succeeds({"apply", fileWith(std::string(768, '\x80'))}));
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-2").channel(2)[7] == 32768; }));

    EXPECT_TRUE(succeeds({"apply", "--curve", "[0,0,1.5]"}));
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") != neutral && areAlike(); }));
    EXPECT_TRUE(succeeds({"restore"}));
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") == HardwareRamp::straight(256); }));
    compositor.setTaken("DP-1", true);
    EXPECT_TRUE(comesTrue([&] { return control({"apply", "--curve", "[0,0,1.2]"}) == 1; }));
}

TEST_F(ProgramOnKde, NeverLosesThePersonsProfileAndCorrectsItOnce) {
    compositor.plug("DP-1", 0, 1);
    std::vector<std::uint16_t> entries(256);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i] = static_cast<std::uint16_t>(900 + 200 * i);
    }
    const auto profile = buildIccWithTable({entries, entries, entries});
    const KdeCompositor::Choice theirs{state.path() / "their own.icc", 1};
    std::ofstream(theirs.first, std::ios::binary) << std::string(profile.begin(), profile.end());
    compositor.choose("DP-1", theirs);
    const std::string base = control({"read"}).standardOutput;
    const std::vector<std::string> apply{"apply", "--curve", "[1,0,0.5]"};
    EXPECT_EQ(control(apply).exitStatus, 0);
    const HardwareRamp once = compositor.ramp("DP-1");
    for (const bool isHeard : {false, true, true}) {
        EXPECT_EQ(control({"restore"}).exitStatus, 0);
        EXPECT_EQ(compositor.choice("DP-1"), theirs);
        compositor.stopAtChange();
        const auto killed = BackgroundProcess::start(request(apply)).value();
        ASSERT_TRUE(comesTrue([&] { return compositor.isStopped(); }));
        killed->kill();
        compositor.goOn(isHeard);
        EXPECT_EQ(compositor.choice("DP-1") != theirs, isHeard);
        EXPECT_EQ(control({"read"}).standardOutput, base);
        EXPECT_EQ(control(apply).exitStatus, 0);
        EXPECT_EQ(compositor.ramp("DP-1"), once);
    }
    ProcessRequest elsewhere = request({"read"});
    elsewhere.environment["XDG_STATE_HOME"] = state.path() / "another";
    EXPECT_EQ(run(elsewhere).value().standardOutput, base);
    std::filesystem::remove_all(state.path() / "tonquil");
    EXPECT_EQ(control(apply).exitStatus, 0) << "without the note, from a straight line";
    const HardwareRamp plain = compositor.ramp("DP-1");
    EXPECT_EQ(control({"restore"}).exitStatus, 0);
    EXPECT_EQ(compositor.choice("DP-1"), KdeCompositor::Choice("", 0));

    compositor.choose("DP-1", theirs);
    const auto holder =
        BackgroundProcess::start(request({"apply", "--hold", "--curve", apply[2]})).value();
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") == once; }));
    compositor.choose("DP-1", {"", 0});
    EXPECT_TRUE(comesTrue([&] { return compositor.ramp("DP-1") == plain; }));
    holder->send(SIGTERM);
    EXPECT_TRUE(holder->wait(20s));
    EXPECT_EQ(compositor.choice("DP-1"), KdeCompositor::Choice("", 0));
}

}  // namespace
}  // namespace tonquil
