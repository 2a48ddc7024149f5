// SPDX-License-Identifier: MIT
#include "platform/mutter/MutterDisplayService.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/mutter/BlackBodyWhite.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/MutterDesk.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// A program that keeps a table on every display.
class MutterDisplays : public testing::TestWithParam<bool> {
 protected:
    MutterDisplays() { table.levels.fill(0.25F); }
    void open() {
        service =
            MutterDisplayService::open(
                std::nullopt, {.runLoop = &loop,
                               .log = [this](std::string_view line) { log.emplace_back(line); },
                               .lost = [this] { ++losses; },
                               .sessionBus = desk.address(),
                               .systemBus = desk.address()})
                .value();
        subscription =
            service->registerReconfigurationCallback([this](DisplayID, ReconfigurationFlags flags) {
                calibrationChanges += flags == calibrationChanged ? 1 : 0;
                if (flags != beginConfiguration) {
                    correct();
                }
            });
        correct();
    }
    void correct() {
        const DisplayBatch batch(*service);
        for (const DisplayID display : service->onlineDisplays(25)) {
            service->setTransferTable(display, table);
        }
    }
    /// Lets answers come and time pass until it is so.
    bool comesTrue(const std::function<bool()>& isSo,
                   std::chrono::milliseconds step = MutterDisplayService::quietTime) {
        for (int turn = 0; turn < 2500 && !isSo(); ++turn) {
            if (loop.pollReadable(2ms) == 0) {
                loop.advance(step);
            }
        }
        return isSo();
    }
    HardwareRamp wanted(std::uint32_t size) {
        HardwareRamp ramp(size);
        ramp.setTable(table);
        return ramp;
    }
    bool isCorrected(const std::string& name) {
        const HardwareRamp ramp = desk.ramp(name);
        return ramp.size() >= 2 && ramp == wanted(ramp.size());
    }
    bool isObstructed() { return !service->description(0).obstacle.empty(); }
    int sets() { return std::stoi(desk.tell("sum(m.sets for m in desk.monitors.values())")); }

    ManualRunLoop loop;
    std::vector<std::string> log;
    GammaTable table;
    int losses = 0;
    int calibrationChanges = 0;
    MutterDesk desk{GetParam()};
    std::unique_ptr<MutterDisplayService> service;
    std::unique_ptr<DisplayService::Subscription> subscription;
};
class CalibratedMutterDisplays : public MutterDisplays {};
class OlderMutterDisplays : public MutterDisplays {};

TEST_P(CalibratedMutterDisplays, TellWhyTheyCannotBeCorrectedUntilTheCauseGoes) {
    struct Row {
        std::string what;
        std::string refusal;
        std::uint32_t size;
        std::uint32_t laterSize;
    };
    for (const Row& row : std::vector<Row>{{"another's", "is already being calibrated", 256, 256},
                                           {"no ramp", "cannot be calibrated", 256, 65'536},
                                           {"unheard of", "", 256, 256},
                                           {"size 0", "-", 0, 2},
                                           {"size 1", "-", 1, 1024},
                                           {"garbage", "-", 1'900'000'000, 1024},
                                           {"one too many", "-", 65'537, 255}}) {
        SCOPED_TRACE(row.what);
        desk.tell("desk.plug('DP-1', 0, " + std::to_string(row.size) + ")");
        if (row.refusal != "-") {
            desk.tell("desk.refuse('DP-1', 'Monitor " + row.refusal + "')");
        }
        log.clear();
        open();
        EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
        EXPECT_EQ(desk.tell("desk.monitors['DP-1'].holder"), "") << "left to the compositor";
        EXPECT_EQ(log.size(), 1U);
        desk.tell("desk.refuse('DP-1', '', 0)");
        desk.tell("setattr(desk.monitors['DP-1'], 'size', " + std::to_string(row.laterSize) + ")");
        EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }, 1s));
        EXPECT_TRUE(comesTrue([&] { return !isObstructed(); }));
        EXPECT_EQ(log.size(), 1U);
        service.reset();
        desk.tell("desk.unplug('DP-1')");
    }
}

TEST_P(CalibratedMutterDisplays, OpenASessionAgainThatWasNotReadyOrIsStopped) {
    desk.tell("desk.plug('DP-1', 0)");
    desk.tell("desk.refuse('DP-1', 'Monitor is not ready', 3)");
    open();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    desk.tell("desk.stop_sessions()");
    EXPECT_FALSE(isCorrected("DP-1"));
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    for (int count = 0; count < 8; ++count) {
        loop.pollReadable(20ms);
        loop.advance(1h);
        desk.tell("desk.stop_sessions()");
        const auto stopped = loop.now();
        EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
        EXPECT_LT(loop.now() - stopped, 1s) << "as soon as the first time";
    }
    EXPECT_TRUE(log.empty());
    service->restoreSystemCalibration();
    const auto isGivenBack = [&] { return desk.tell("desk.monitors['DP-1'].holder").empty(); };
    EXPECT_TRUE(comesTrue(isGivenBack));
    desk.tell("desk.change()");
    loop.advance(1s);
    loop.pollReadable(20ms);
    EXPECT_TRUE(isGivenBack()) << "off";
    correct();
    service->restoreSystemCalibration();
    correct();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    EXPECT_TRUE(log.empty()) << "our own session is nobody else's";
}

TEST_P(CalibratedMutterDisplays, AreNotBarredByAnotherProgramOnceTheyAreGivenBack) {
    desk.tell("desk.plug('DP-1', 0)");
    desk.tell("desk.refuse('DP-1', 'Monitor is already being calibrated')");
    open();
    EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
    EXPECT_TRUE(service->description(0).isTaken);
    loop.advance(1s);
    int told = 0;
    subscription = service->registerReconfigurationCallback([&](auto...) { ++told; });
    service->restoreSystemCalibration();
    loop.advance(1s);
    EXPECT_FALSE(isObstructed());
    EXPECT_FALSE(service->description(0).isTaken);
    EXPECT_GT(told, 0);
    desk.tell("desk.refuse('DP-1', 'Monitor cannot be calibrated')");
    correct();
    EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
    EXPECT_FALSE(service->description(0).isTaken);
    service->restoreSystemCalibration();
    EXPECT_TRUE(isObstructed()) << "it has no ramp, whoever wants one";
}

TEST_P(CalibratedMutterDisplays, KeepTheNightLightsColourUnlessTold) {
    desk.tell("desk.plug('DP-1', 0)");
    desk.tell("desk.set_night(True, 4000)");
    open();
    const auto white = blackBodyWhite(4000);
    const auto entry = [&](std::size_t channel) { return desk.ramp("DP-1").channel(channel)[200]; };
    ASSERT_TRUE(comesTrue([&] { return desk.ramp("DP-1").size() != 0; }));
    EXPECT_EQ(entry(0), 16'384);
    EXPECT_NEAR(entry(1), 16'384 * white[1], 1) << "from the first ramp on";
    EXPECT_NEAR(entry(2), 16'384 * white[2], 1);
    desk.tell("desk.set_night(True, 3000)");
    EXPECT_TRUE(comesTrue([&] { return entry(2) < 16'384 * white[2] - 1000; }));
    service->setNightLightKept(false);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    service->setNightLightKept(true);
    EXPECT_TRUE(comesTrue([&] { return !isCorrected("DP-1"); }));
    desk.tell("desk.set_night(False, 3000)");
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    // Planck's law summed over the CIE 1931 observer, relative to 6500 K, to the power of 1 / 2.2.
    EXPECT_NEAR(white[1], 0.849, 0.005);
    EXPECT_NEAR(white[2], 0.646, 0.005);
    EXPECT_EQ(blackBodyWhite(6500), (std::array<double, 3>{1, 1, 1}));
}

TEST_P(OlderMutterDisplays, TryAgainOnceWithTheNewSerialAndGiveTheNightLightBack) {
    desk.tell("desk.plug('DP-1', 0, 1024)");
    desk.tell("desk.set_night(True, 3000)");
    open();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    desk.tell("setattr(desk, 'serial', 99)");
    table.levels.fill(0.5F);
    correct();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    desk.tell("desk.refuse('DP-1', 'stale information', 2)");
    table.levels.fill(0.75F);
    DisplayBatch batch(*service);
    correct();
    static_cast<void>(batch.finish());
    EXPECT_TRUE(comesTrue([&] { return desk.tell("desk.monitors['DP-1'].refusals") == "0"; }));
    loop.advance(1min);
    loop.pollReadable(20ms);
    EXPECT_FALSE(isCorrected("DP-1"));
    correct();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    service->restoreSystemCalibration();
    const auto blue = [&] { return desk.ramp("DP-1").channel(2)[1023]; };
    EXPECT_TRUE(comesTrue([&] { return blue() < 30'000; })) << "the night light as it was";
    EXPECT_EQ(desk.ramp("DP-1").channel(0)[1023], 65'535);
    desk.tell("desk.plug('DP-1', 0, 0)");
    EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
    GammaTable base;
    EXPECT_EQ(service->getTransferTable(0, base), 0U);
}

TEST_P(OlderMutterDisplays, GetACalibrationThatIsKnownOnlyOnceTheyAreGivenBack) {
    desk.tell("desk.plug('DP-1', 0)");
    ScratchFolder folder;
    const auto bytes = buildIccWithFormula({{{.max = 0.5}, {.max = 0.5}, {.max = 0.5}}});
    std::ofstream(folder.path() / "profile", std::ios::binary)
        << std::string(bytes.begin(), bytes.end());
    desk.tell("desk.set_profile('DP-1', '" + (folder.path() / "profile").native() + "')");
    open();
    subscription.reset();
    service->restoreSystemCalibration();
    EXPECT_TRUE(comesTrue([&] {
        const HardwareRamp ramp = desk.ramp("DP-1");
        return ramp.size() == 256 && ramp.channel(1)[255] / 2 == 16'384;
    })) << "of no profile when they were";
}

TEST_P(MutterDisplays, AreCorrectedAfterAStormOfChanges) {
    desk.tell("desk.plug('DP-1', 0, 1024)");
    open();
    const DisplayID first = service->mainDisplay();
    for (int count = 0; count < 200; ++count) {
        desk.tell(count % 2 == 0 ? "desk.plug('DP-2', 1920)" : "desk.unplug('DP-2')");
        loop.pollReadable(0ms);
    }
    EXPECT_LT(sets(), 5) << "nothing is sent for what has not settled";
    desk.tell("desk.plug('DP-2', 1920)");
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1") && isCorrected("DP-2"); }));
    EXPECT_EQ(service->mainDisplay(), first);
    EXPECT_EQ(service->bounds(first), (Rectangle{0, 0, 1920, 1080})) << "of 3840 at a scale of 2";
    desk.tell("(desk.monitors['DP-1'].release(), setattr(desk, 'failures', 1), desk.change())");
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); })) << "asked again";
}

TEST_P(MutterDisplays, TellOfANewCalibrationAndSendOnlyTheLastOfManyEdits) {
    desk.tell("desk.plug('DP-1', 0)");
    open();
    ScratchFolder folder;
    const auto bytes = buildIccWithFormula({});
    std::ofstream(folder.path() / "profile", std::ios::binary)
        << std::string(bytes.begin(), bytes.end());
    desk.tell("desk.set_profile('DP-1', '" + (folder.path() / "profile").native() + "')");
    EXPECT_TRUE(comesTrue([&] { return calibrationChanges > 0; }));
    const int before = sets();
    for (int count = 1; count <= 1000; ++count) {
        table.levels.fill(static_cast<float>(count) / 1000);
        correct();
    }
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    EXPECT_LE(sets() - before, 3);
}

TEST_P(MutterDisplays, AreLeftAloneWhileTheBusHangs) {
    desk.tell("desk.plug('DP-1', 0)");
    open();
    loop.advance(1s);
    desk.sendToBus(SIGSTOP);
    table.levels.fill(0.5F);
    correct();
    EXPECT_FALSE(MutterDisplayService::isOffered(desk.address(), 1ms));
    loop.advance(1min);
    desk.sendToBus(SIGCONT);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    EXPECT_EQ(losses, 0);
}

TEST_P(MutterDisplays, EndInOrderWhenTheBusGoes) {
    desk.tell("desk.plug('DP-1', 0)");
    open();
    desk.sendToBus(SIGKILL);
    EXPECT_TRUE(comesTrue([&] { return losses == 1; }));
    DisplayBatch batch(*service);
    correct();
    EXPECT_FALSE(batch.finish());
    loop.advance(60s);
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(log, std::vector<std::string>{"The session bus has gone."});
}

constexpr auto generationName = [](const auto& each) {
    return each.param ? "Calibration" : "Crtc";
};
INSTANTIATE_TEST_SUITE_P(Both, MutterDisplays, testing::Bool(), generationName);
INSTANTIATE_TEST_SUITE_P(Newer, CalibratedMutterDisplays, testing::Values(true), generationName);
INSTANTIATE_TEST_SUITE_P(Older, OlderMutterDisplays, testing::Values(false), generationName);

}  // namespace
}  // namespace tonquil
