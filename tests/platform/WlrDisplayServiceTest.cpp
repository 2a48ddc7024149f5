// SPDX-License-Identifier: MIT
#include "platform/wayland/WlrDisplayService.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/platform/KeptDisplays.h"
#include "tests/support/GammaCompositor.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/MutterDesk.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

using WlrDisplays = KeptDisplays<WlrDisplayService, GammaCompositor>;

TEST_F(WlrDisplays, TellsADisplayThatCannotBeCorrectedAndCorrectsItWhenTheCauseGoes) {
    struct Row {
        std::string what;
        std::uint32_t size;
        std::uint32_t laterSize;
    };
    const std::vector<Row> rows{{"taken at the start", 256, 256},
                                {"garbage", 1'900'000'000, 1024},
                                {"one entry", 1, 2},
                                {"one too many", 65'537, 65'536},
                                {"late or silent", GammaCompositor::silence, 1024}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        compositor.plug("DP-1", 0, row.size);
        compositor.setTaken("DP-1", row.size == row.laterSize);
        log.clear();
        open();
        correct();
        EXPECT_TRUE(isObstructed());
        EXPECT_EQ(service->description(0).isTaken,
                  row.size == row.laterSize || row.size == GammaCompositor::silence);
        EXPECT_EQ(log.size(), 1U);
        compositor.setTaken("DP-1", false);
        compositor.setSize("DP-1", row.laterSize);
        EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
        EXPECT_FALSE(isObstructed());
        compositor.setTaken("DP-1", true);
        EXPECT_TRUE(comesTrue([&] { return log.size() == 2; })) << "taken away later";
        EXPECT_TRUE(isObstructed());
        compositor.setTaken("DP-1", false);
        EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
        EXPECT_EQ(log.size(), 2U);
        service.reset();
        compositor.unplug("DP-1");
    }
}

TEST_F(WlrDisplays, CorrectsWhatIsThereAfterAThousandHotplugs) {
    compositor.plug("DP-1", 0, 65'536);
    open();
    const DisplayID first = service->mainDisplay();
    for (int count = 0; count < 1000; ++count) {
        compositor.plug("DP-2", 1920);
        if (count % 3 != 0) {
            loop.pollReadable(1ms);
        }
        if (count % 50 == 0) {
            loop.advance(WlrDisplayService::quietTime);
        }
        compositor.unplug(count % 100 == 0 ? "DP-1" : "DP-2");
        if (count % 100 == 0) {
            compositor.unplug("DP-2");
            compositor.plug("DP-1", 0, 4096);
        }
    }
    compositor.plug("DP-2", 1920);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1") && isCorrected("DP-2"); }));
    EXPECT_EQ(service->onlineDisplays(25).size(), 2U);
    EXPECT_EQ(service->mainDisplay(), first) << "the same display, whatever the compositor says";
}

TEST_F(WlrDisplays, CorrectsAgainWhatWasLostAndCameBackWithinTheQuietTime) {
    const auto takeEvents = [this] {
        while (loop.pollReadable(20ms) != 0) {
        }
    };
    compositor.plug("DP-1", 0);
    compositor.plug("DP-2", 1920);
    compositor.setTaken("DP-2", true);
    open();
    takeEvents();
    ASSERT_TRUE(isCorrected("DP-1"));
    loop.advance(WlrDisplayService::retryInterval - 1ms);

    // The retry for DP-2 has an output lent at once that had its gamma control taken just before.
    compositor.setTaken("DP-1", true);
    compositor.setTaken("DP-1", false);
    takeEvents();
    loop.advance(1ms);
    takeEvents();
    ASSERT_TRUE(compositor.isHeld("DP-1"));
    ASSERT_FALSE(isCorrected("DP-1"));
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); })) << "taken and lent again";

    compositor.unplug("DP-1");
    compositor.plug("DP-1", 0);
    takeEvents();
    ASSERT_TRUE(compositor.isHeld("DP-1")) << "a new output is asked for at once";
    ASSERT_FALSE(isCorrected("DP-1"));
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); })) << "unplugged and plugged in again";
}

TEST_F(WlrDisplays, LeavesADisplayToOthersWhileItIsNotCorrected) {
    compositor.plug("DP-1", 0);
    open();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    service->restoreSystemCalibration();
    EXPECT_TRUE(comesTrue([&] { return !compositor.isHeld("DP-1"); }));
    correct();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
}

TEST_F(WlrDisplays, HasTheCalibrationOfTheProfileThatTheColourServiceNames) {
    MutterDesk desk(false);
    ScratchFolder folder;
    const auto profile = buildIccWithFormula({{{.max = 0.5}, {.max = 0.5}, {.max = 0.5}}});
    std::ofstream(folder.path() / "profile", std::ios::binary)
        << std::string(profile.begin(), profile.end());
    desk.tell("desk.plug('DP-1', 0)");
    compositor.plug("DP-1", 0, 1024);
    open({.systemBus = desk.address()});
    GammaTable base;
    const auto brightest = [&] {
        EXPECT_EQ(service->getTransferTable(0, base), 256U);
        return base.channel(1)[255];
    };
    EXPECT_EQ(brightest(), 1.0F) << "nothing is waited for";
    desk.tell("desk.set_profile('DP-1', '" + (folder.path() / "profile").native() + "')");
    EXPECT_TRUE(comesTrue([&] { return brightest() < 0.51F; }));
    EXPECT_NEAR(brightest(), 0.5F, 1e-4F);
}

TEST_F(WlrDisplays, EndsInOrderWhenTheCompositorDies) {
    compositor.plug("DP-1", 0);
    open();
    compositor.die();
    EXPECT_TRUE(comesTrue([&] { return losses == 1; }));
    DisplayBatch batch(*service);
    correct();
    EXPECT_FALSE(batch.finish());
    loop.advance(60s);
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(log, std::vector<std::string>{"The Wayland compositor has gone."});
}

}  // namespace
}  // namespace tonquil
