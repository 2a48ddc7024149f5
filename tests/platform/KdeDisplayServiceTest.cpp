// SPDX-License-Identifier: MIT
#include "platform/kde/KdeDisplayService.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <set>

#include "tests/platform/KeptDisplays.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/KdeCompositor.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

class KdeDisplays : public KeptDisplays<KdeDisplayService, KdeCompositor> {
 protected:
    KdeDisplays() {
        compositor.plug("DP-1", 0, 1, 1.1);
        compositor.choose("DP-1", theirs);
        open({.state = folder.path() / "new" / "state"});
        EXPECT_TRUE(comesTrue([this] { return isCorrected("DP-1"); }));
    }
    KdeCompositor::Choice profileWith(std::uint16_t entry) {
        const std::vector<std::uint16_t> entries(256, entry);
        const auto bytes = buildIccWithTable({entries, entries, entries});
        const std::string path = folder.path() / (std::to_string(entry) + ".icc");
        std::ofstream(path, std::ios::binary) << std::string(bytes.begin(), bytes.end());
        return {path, 1};
    }
    long base() {
        GammaTable read;
        EXPECT_EQ(service->getTransferTable(0, read), 256U);
        return std::lround(read.channel(1)[128] * 65535);
    }

    ScratchFolder folder;
    KdeCompositor::Choice theirs = profileWith(1000);
};

TEST_F(KdeDisplays, LaysTheCorrectionOverWhateverThePersonChoosesAndGivesThatBack) {
    EXPECT_EQ(service->bounds(0), (Rectangle{0, 0, 1745, 982}));
    const KdeCompositor::Choice ours = compositor.choice("DP-1");
    const KdeCompositor::Choice later = profileWith(3000);
    const std::vector<std::pair<KdeCompositor::Choice, long>> rows{
        {profileWith(2000), 2000}, {{ours.first, 0}, 32896},  {later, 3000}, {later, 3000},
        {{"", 0}, 32896},          {{later.first, 2}, 32896}, {later, 3000}};
    for (const auto& [choice, calibration] : rows) {
        SCOPED_TRACE(choice.first + std::to_string(choice.second));
        compositor.choose("DP-1", choice);
        EXPECT_TRUE(comesTrue(
            [&, &wanted = calibration] { return base() == wanted && isCorrected("DP-1"); }));
    }
    service->restoreSystemCalibration();
    EXPECT_TRUE(comesTrue([&] { return compositor.choice("DP-1") == later; }));
    EXPECT_EQ(compositor.ramp("DP-1").channel(0)[0], 3000);
    compositor.choose("DP-1", theirs);
    EXPECT_TRUE(comesTrue([&] { return base() == 1000 && compositor.choice("DP-1") == ours; }));
}

TEST_F(KdeDisplays, KeepsTheColoursThatTheMonitorReportsWherePeopleWantThose) {
    std::set<std::string> profiles;
    for (const std::uint32_t source : {0U, 2U}) {
        compositor.choose("DP-1", theirs);
        EXPECT_TRUE(comesTrue([&] { return base() == 1000; }));
        compositor.choose("DP-1", {"", source});
        EXPECT_TRUE(comesTrue([&] { return base() == 32896 && isCorrected("DP-1"); }));
        std::ifstream ours(compositor.choice("DP-1").first, std::ios::binary);
        profiles.emplace(std::istreambuf_iterator<char>(ours), std::istreambuf_iterator<char>());
    }
    EXPECT_EQ(profiles.size(), 2U);
}

TEST_F(KdeDisplays, LeavesToOthersWhatTheyCorrectWhileItDoesNot) {
    service->restoreSystemCalibration();
    EXPECT_TRUE(comesTrue([&] { return compositor.choice("DP-1") == theirs; }));
    subscription.reset();
    const auto other = KdeDisplayService::open(compositor.socket().c_str(),
                                               {.state = folder.path() / "new" / "state"})
                           .value();
    other->setTransferTable(0, table);
    const int before = compositor.changes();
    const auto end = loop.now() + 5s;
    EXPECT_TRUE(comesTrue([&] { return loop.now() > end; }));
    EXPECT_TRUE(isCorrected("DP-1"));
    EXPECT_EQ(compositor.changes(), before);
}

TEST_F(KdeDisplays, KeepsThePersonsChoiceThroughAStartThatCannotReadIt) {
    namespace fs = std::filesystem;
    const fs::path note = fs::path(compositor.choice("DP-1").first).replace_extension(".plist");
    const fs::path aside = folder.path() / "aside";
    for (const bool isCorrectedAgain : {true, false}) {
        service.reset();
        fs::rename(note, aside);
        fs::create_symlink(note, note);
        open({.state = note.parent_path()});
        if (!isCorrectedAgain) {
            subscription.reset();
            service->restoreSystemCalibration();
        }
        EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
        fs::rename(aside, note);
        EXPECT_TRUE(comesTrue([&] { return !isObstructed(); }));
        EXPECT_EQ(base(), 1000);
        EXPECT_EQ(compositor.choice("DP-1") != theirs, isCorrectedAgain);
    }
}

TEST_F(KdeDisplays, SendsAtMost15ChangesASecondAndTheLastOneAlways) {
    const auto slide = [&](std::chrono::milliseconds time) {
        for (auto end = loop.now() + time; loop.now() < end; loop.advance(5ms)) {
            table.levels[0] += 0.001F;
            correct();
            loop.pollReadable(1ms);
        }
    };
    const int before = compositor.changes();
    slide(1000ms);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    EXPECT_GT(compositor.changes(), before + 2);
    EXPECT_LE(compositor.changes(), before + 16) << "15, and the last after the second";
    slide(100ms);
    service.reset();
    EXPECT_TRUE(isCorrected("DP-1")) << "the last before the end";
}

TEST_F(KdeDisplays, TriesARefusedChangeAgainAndTellsWhyThereIsNone) {
    compositor.refuse(1);
    table.levels.fill(0.5F);
    correct();
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    EXPECT_TRUE(log.empty());
    compositor.setHdr("DP-1", true);
    compositor.refuse(1'000'000);
    table.levels.fill(0.75F);
    correct();
    EXPECT_TRUE(comesTrue([&] { return isObstructed(); }));
    EXPECT_NE(service->description(0).obstacle.find("HDR"), std::string::npos);
    loop.advance(60s);
    EXPECT_EQ(log.size(), 1U);
    compositor.refuse(0);
    compositor.setHdr("DP-1", false);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1") && !isObstructed(); }));
}

TEST_F(KdeDisplays, GivesADisplayThatWasAwayWhatIsWantedNow) {
    // Before the change arrives.
    table.levels.fill(0.5F);
    compositor.stopAtChange();
    correct();
    ASSERT_TRUE(comesTrue([&] { return compositor.isStopped(); }));
    compositor.goOn(false);
    compositor.unplug("DP-1");
    compositor.plug("DP-1", 0, 1, 1.1);
    EXPECT_TRUE(comesTrue([&] { return isCorrected("DP-1"); }));
    compositor.unplug("DP-1");
    EXPECT_TRUE(comesTrue([&] { return service->onlineDisplays(25).empty(); }));
    loop.advance(KdeDisplayService::quietTime);
    subscription.reset();
    service->restoreSystemCalibration();
    compositor.plug("DP-1", 0, 1, 1.1);
    EXPECT_TRUE(comesTrue([&] { return compositor.choice("DP-1") == theirs; }));
    compositor.die();
    EXPECT_TRUE(comesTrue([&] { return losses == 1; }));
    EXPECT_EQ(log, std::vector<std::string>{"The Wayland compositor has gone."});
}

}  // namespace
}  // namespace tonquil
