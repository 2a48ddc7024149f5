// SPDX-License-Identifier: MIT
#include "platform/ramp/HardwareRamp.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <set>

#include "platform/ramp/RampHistory.h"

namespace tonquil {
namespace {

TEST(HardwareRamp, RoundTrips256EntriesExactly) {
    for (std::uint32_t first = 0; first < 65'536; first += 256) {
        HardwareRamp ramp(256);
        for (std::uint32_t i = 0; i < 256; ++i) {
            ramp.channel(first / 256 % 3)[i] = static_cast<std::uint16_t>(first + i);
        }
        GammaTable table;
        ASSERT_EQ(ramp.getTable(table), 256U);
        HardwareRamp again(256);
        again.setTable(table);
        ASSERT_EQ(again, ramp) << first;
    }
}

TEST(HardwareRamp, ResamplesEndToEnd) {
    GammaTable table;
    for (std::size_t i = 0; i < 256; ++i) {
        table.channel(0)[i] = static_cast<float>(i) / 255.0F;
        table.channel(1)[i] = i < 128 ? 0.25F : 0.75F;
    }
    for (const std::uint32_t size : {2U, 3U, 128U, 1'024U, 4'096U}) {
        SCOPED_TRACE(size);
        HardwareRamp ramp(size);
        ramp.setTable(table);
        EXPECT_EQ(ramp.channel(0).back(), 65535);
        EXPECT_EQ(ramp.channel(1).front(), 16384);
        EXPECT_EQ(ramp.channel(1).back(), 49151);
        GammaTable back;
        const std::uint32_t samples = std::min(size, 256U);
        ASSERT_EQ(ramp.getTable(back), samples);
        // A linear ramp stays linear: the level is i / (size - 1), within one rounding of the
        // table's singles and one of the entry.
        for (std::uint32_t i = 0; i < size; ++i) {
            ASSERT_NEAR(ramp.channel(0)[i], 65535.0 * i / (size - 1.0), 0.51) << i;
        }
        for (std::uint32_t i = 0; i < samples; ++i) {
            ASSERT_NEAR(back.channel(0)[i], i / (samples - 1.0), 1.0 / 65535) << i;
        }
    }
}

TEST(HardwareRamp, ClampsLevelsBeforeInterpolating) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    GammaTable wild;
    GammaTable clamped;
    for (std::size_t i = 0; i < 256; ++i) {
        const std::array levels{0.5F, infinity, infinity - infinity, -infinity, 3.0F, -2.0F};
        wild.levels[i] = levels.at(i % 6);
        clamped.levels[i] = std::array{0.5F, 1.0F, 0.0F, 0.0F, 1.0F, 0.0F}.at(i % 6);
    }
    for (const std::uint32_t size : {256U, 1'024U}) {
        HardwareRamp ramp(size);
        ramp.setTable(wild);
        HardwareRamp expected(size);
        expected.setTable(clamped);
        EXPECT_EQ(ramp, expected);
    }
}

TEST(HardwareRamp, CopiesTableComputedForShortRamp) {
    GammaTable computed;
    for (std::size_t i = 0; i < 64; ++i) {
        computed.channel(0)[i] = static_cast<float>(i + 1) / 64.0F;
    }
    HardwareRamp ramp(64);
    ramp.setTable(computed);
    EXPECT_EQ(ramp.channel(0)[63], 65535);
    EXPECT_EQ(ramp.channel(0)[31], 32768);
    computed.channel(1)[255] = 1;
    ramp.setTable(computed);
    EXPECT_EQ(ramp.channel(0)[63], 0) << "slot 255 of a whole table";
    EXPECT_EQ(ramp.channel(1)[63], 65535);
}

TEST(HardwareRamp, FingerprintDependsOnEveryEntryAndSize) {
    HardwareRamp changed = HardwareRamp::straight(1'023);
    std::set<std::uint64_t> seen{HardwareRamp(4).fingerprint(), HardwareRamp(8).fingerprint()};
    for (std::uint16_t& entry : changed.entries()) {
        entry ^= 1U;
        EXPECT_TRUE(seen.insert(changed.fingerprint()).second);
    }
    EXPECT_EQ(seen.size(), 2 + 3 * 1'023U);
}

TEST(RampHistory, ForgetsOldestCorrectionsExceptHoldersLast) {
    RampHistory history;
    history.addCorrection({.fingerprint = 1, .holder = 1});
    for (std::uint64_t i = 2; i <= RampHistory::mostCorrections + 1; ++i) {
        history.addCorrection({.fingerprint = i, .holder = 2});
    }
    EXPECT_TRUE(history.isCorrection(1));
    EXPECT_FALSE(history.isCorrection(2));
    EXPECT_TRUE(history.isCorrection(3));
    history.setSystemRamp(HardwareRamp::straight(1'024));
    EXPECT_EQ(history.underCorrection(256).size(), 256U) << "another ramp's note is no use";
}

}  // namespace
}  // namespace tonquil
