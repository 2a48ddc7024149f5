// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "model/TQExtendedGammaCurve.h"
#include "tests/cli/ControlProgram.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"
#include "values/BoundedJson.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// Three displays: serial numbers 1 and 2, and one identified by its size.
class ProgramOnXServer : public testing::Test {
 protected:
    ProgramOnXServer() {
        mustSucceed(server->setEdid("DUMMY0", buildEdid({.product = 10, .serial = 1})));
        mustSucceed(server->setEdid("DUMMY1", buildEdid({.product = 10, .serial = 2})));
        mustSucceed(server->plug("DUMMY1", "1280x1024"));
        mustSucceed(server->plug("DUMMY2", "1024x768"));
        mustSucceed(server->setPhysicalSize("DUMMY2", 600, 340));
    }
    ProcessResult control(const std::vector<std::string>& arguments) {
        return tonquilctl(server->display(), arguments);
    }
    void mustRun(const std::vector<std::string>& arguments) {
        const ProcessResult result = control(arguments);
        EXPECT_EQ(result.exitStatus, 0) << result.standardError;
        EXPECT_EQ(result.standardError, "");
    }
    Ramp ramp(int display) { return reader.read("DUMMY" + std::to_string(display)).value(); }

    std::unique_ptr<XServer> server = XServer::start().value();
    RampReader reader = RampReader::connect(server->display()).value();
};

template <typename Entry>
Ramp rampOf(Entry entry) {
    Ramp ramp;
    for (int i = 0; i < 256; ++i) {
        ramp.red.push_back(static_cast<std::uint16_t>(entry(i)));
    }
    ramp.green = ramp.blue = ramp.red;
    return ramp;
}

const Ramp startRamp = rampOf([](int i) { return i << 8; });

/// The ramp of an absolute curve with this exponent and white, from the formula.
Ramp absoluteRamp(double exponent, double white) {
    return rampOf(
        [=](int i) { return std::lround(65535 * white * std::pow(i / 256.0, exponent)); });
}

TEST_F(ProgramOnXServer, ListsDisplays) {
    EXPECT_EQ(control({"displays"}).standardOutput,
              "1\t1-10-21036\tDUMMY0\t1400x1050+0+0\t256\tunique\n"
              "2\t2-10-21036\tDUMMY1\t1280x1024+1400+0\t256\tunique\n"
              "3\t600.000000x340.000000-3246328619-0\tDUMMY2\t1024x768+2680+0\t256\tlocal\n");
}

TEST_F(ProgramOnXServer, AppliesFileToItsDisplays) {
    const auto dictionary = [](float exponent) {
        return TQExtendedGammaCurve::gammaCurveWithMasterBlack(0, exponent, 1, nullptr, nullptr,
                                                               nullptr, 0)
            ->gammaCurveDictionary();
    };
    const auto list = readBoundedJson(control({"displays", "--json"}).standardOutput).value();
    EXPECT_EQ(list[1]["bounds"], (PropertyValue{1400, 0, 1280, 1024}));
    const std::string oldID = list[2]["oldReferenceID"].get<std::string>();
    const std::string file = propertyListFile({{"Format", 1},
                                               {"Screens",
                                                {{"1-10-21036", dictionary(4)},
                                                 {"1-10-21036@DUMMY0", dictionary(2)},
                                                 {oldID, dictionary(0.5F)},
                                                 {"9-9-9", dictionary(3)}}}});
    mustRun({"apply", file});
    EXPECT_EQ(ramp(0), absoluteRamp(2, 1));
    EXPECT_EQ(ramp(1), startRamp);
    EXPECT_EQ(ramp(2), absoluteRamp(0.5, 1));
    mustRun({"restore", "--display", "DUMMY0"});
    EXPECT_EQ(ramp(0), startRamp);
    EXPECT_EQ(ramp(2), absoluteRamp(0.5, 1));
    // Another program's ramp between two applies becomes the system ramp.
    mustRun({"apply", file, "--display", "1-10-21036"});
    EXPECT_EQ(ramp(0), absoluteRamp(2, 1));
    mustSucceed(server->xrandr({"--output", "DUMMY0", "--gamma", "1.2:1:0.8"}));
    const Ramp foreign = ramp(0);
    mustRun({"apply", file});
    EXPECT_EQ(ramp(0), absoluteRamp(2, 1));
    mustRun({"restore"});
    EXPECT_EQ(ramp(0), foreign);
    // A raw table goes to all displays; byte 255 is 255 / 256.
    mustRun({"apply", fileWith(std::string(768, '\xFF'))});
    EXPECT_EQ(ramp(1).green[3], 65279);
    EXPECT_EQ(ramp(2).green[3], 65279);
}

TEST_F(ProgramOnXServer, ReadsBaseOrHardware) {
    const std::string before = control({"read"}).standardOutput;
    EXPECT_TRUE(before.starts_with("0\t0\t0\t0\n1\t0.0039063096\t0.0039063096\t0.0039063096\n"));
    mustRun({"apply", "--curve", "[0,0,1,0.5]", "--display", "2-10-21036"});
    EXPECT_EQ(control({"read", "--display", "DUMMY1"}).standardOutput, before);
    const std::string hardware =
        control({"read", "--hardware", "--display", "2-10-21036"}).standardOutput;
    // 32640 of 65535 in slot 255: half of 255 / 256.
    EXPECT_TRUE(hardware.ends_with("\n255\t0.498054475\t0.498054475\t0.498054475\n")) << hardware;
    EXPECT_EQ(control({"read", "--hardware"}).standardOutput, before);
}

TEST_F(ProgramOnXServer, DoesNotCompoundWhenKilledRepeatedly) {
    const std::vector<std::string> apply{"apply", "--curve", "[1,0.05,1.3,0.9]"};
    const std::vector<std::string> other{"apply", "--curve", "[0,0.1,0.7,1]"};
    mustRun(apply);
    const Ramp once = ramp(1);
    ASSERT_NE(once, startRamp);
    mustRun({"restore"});
    // Killed later and later in its short run, alternating two curves.
    for (int round = 0; round < 120; ++round) {
        const auto process =
            BackgroundProcess::start(
                tonquilctlRequest(server->display(), round % 2 == 0 ? apply : other))
                .value();
        std::this_thread::sleep_for(std::chrono::microseconds(50 * (round % 60)));
        process->kill();
    }
    mustRun(apply);
    for (int display = 0; display < 3; ++display) {
        EXPECT_EQ(ramp(display), once);
    }
    mustRun({"restore"});
    EXPECT_EQ(ramp(1), startRamp);
}

TEST_F(ProgramOnXServer, RestoresCalibrationOfPublishedProfile) {
    const Ramp calibration = absoluteRamp(1.1, 0.95);
    mustSucceed(server->setRootProperty("_ICC_PROFILE_2", buildIccWithTable(calibration)));
    mustSucceed(server->setRootProperty("_ICC_PROFILE_1", {1, 2, 3}));
    mustSucceed(server->setRootProperty("_ICC_PROFILE", buildIccWithoutCalibration()));
    mustRun({"apply", "--curve", "[1,0,1.5,1]"});
    mustRun({"restore"});
    EXPECT_EQ(ramp(2), calibration);
    EXPECT_EQ(ramp(1), startRamp) << "a broken profile counts as none";
    EXPECT_EQ(ramp(0), startRamp) << "so does one without a calibration";
    // The other vcgt form, a formula: min 0, max 0.95, exponent 1.1.
    mustSucceed(server->setRootProperty(
        "_ICC_PROFILE", buildIccWithFormula({{{1.1, 0, 0.95}, {1, 0, 1}, {1, 0.5, 0.5}}})));
    mustRun({"restore"});
    EXPECT_NEAR(ramp(0).red[128], 65535 * 0.95 * std::pow(128 / 255.0, 1.1), 2);
    EXPECT_NEAR(ramp(0).blue[255], 65535 * 0.5, 2);
}

TEST_F(ProgramOnXServer, ExportsWhatRestorePutsBackFromPublishedProfile) {
    const ScratchFolder folder;
    mustRun({"apply", "--curve", "[0,0.1,1.3,0.9,0,1,0.8]"});
    const Ramp present = ramp(1);
    const auto exportTo = [&](const std::string& name) {
        mustRun({"export", "--display", "DUMMY1", folder.path() / name});
        std::ifstream file(folder.path() / name, std::ios::binary);
        return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {});
    };
    const auto profile = exportTo("one.icc");
    mustRun({"restore"});
    mustSucceed(server->setRootProperty("_ICC_PROFILE_1", profile));
    mustRun({"restore"});
    EXPECT_EQ(ramp(1), present);
    mustSucceed(server->setRootProperty("_ICC_PROFILE_1", {}));
    // What is opened exports as it was, in every format that keeps it.
    std::filesystem::create_directories(folder.path() / "tonquil/presets");
    std::filesystem::copy(folder.path() / "one.icc", folder.path() / "tonquil/presets/Desk.icc");
    ProcessRequest preset =
        tonquilctlRequest(server->display(), {"apply", "--preset", "Desk", "--display", "DUMMY1"});
    preset.environment["XDG_CONFIG_HOME"] = folder.path();
    EXPECT_EQ(run(preset).value().exitStatus, 0);
    EXPECT_EQ(ramp(1), present);
    exportTo("two.cal");
    for (const char* file : {"one.icc", "two.cal"}) {
        mustRun({"restore"});
        mustRun({"apply", folder.path() / file});
        EXPECT_EQ(ramp(1), present) << file;
    }
    EXPECT_EQ(exportTo("three.amp").size(), 768U);
    EXPECT_TRUE(control({"fit", folder.path() / "two.cal"})
                    .standardOutput.ends_with("\nlargest difference: 0.000008\n"));
    for (const auto& wrong : {std::vector<std::string>{"export", folder.path() / "four"},
                              {"apply", "--preset", "Desk"},
                              {"export", folder.path() / "no/such/folder.icc"}}) {
        EXPECT_EQ(control(wrong).exitStatus, 1);
    }
}

TEST_F(ProgramOnXServer, EndsItsHoldWhenTheServerDies) {
    const auto holder =
        BackgroundProcess::start(
            tonquilctlRequest(server->display(), {"apply", "--hold", "--curve", "[0,0,1.5]"}))
            .value();
    while (ramp(1) == startRamp && holder->isRunning()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    server->kill();
    const auto ended = holder->wait(std::chrono::seconds(20));
    ASSERT_TRUE(ended);
    EXPECT_EQ(ended->exitStatus, 1);
    EXPECT_EQ(ended->standardError, "tonquilctl: The display server has gone.\n");
}

}  // namespace
}  // namespace tonquil
