// SPDX-License-Identifier: MIT
#include "platform/x11/X11RampJournal.h"

#include <gtest/gtest.h>

namespace tonquil {
namespace {

TEST(X11RampJournal, KeepsTheLastSystemRampOfEachCrtc) {
    // Two entries of each channel, two to a unit: red 1 2, green 3 4, blue 5 6, then 7 8 …
    const std::vector<std::uint32_t> systemRamps{62, 2, 0x00020001, 0x00040003, 0x00060005,
                                                 63, 2, 0x00010001, 0x00010001, 0x00010001,
                                                 62, 2, 0x00080007, 0x000A0009, 0x000C000B};
    const std::vector<std::uint32_t> corrections{62, 1, 2, 63, 3, 4, 62, 5, 6, 99};
    const auto histories = X11RampJournal::parse(corrections, systemRamps);
    ASSERT_EQ(histories.size(), 2U) << "the last unit is no whole entry";
    EXPECT_EQ(histories.at(62).systemRamp()->channel(0)[0], 7);
    EXPECT_EQ(histories.at(62).systemRamp()->channel(2)[1], 12);
    EXPECT_TRUE(histories.at(62).isCorrection(0x0000000100000002));
    EXPECT_EQ(histories.at(62).corrections().back(), 0x0000000500000006U);
    EXPECT_FALSE(histories.at(63).isCorrection(0x0000000100000002));
}

TEST(X11RampJournal, EndsAtABlockThatMakesNoSense) {
    const std::vector<std::uint32_t> good{62, 2, 1, 1, 1};
    for (const std::uint32_t size : {0U, 1U, 3U, 16'385U, 0xFFFFFFFFU}) {
        std::vector<std::uint32_t> units = good;
        units.insert(units.end(), {63, size, 5, 5, 5});
        const auto histories = X11RampJournal::parse({}, units);
        EXPECT_EQ(histories.size(), 1U) << size;
        EXPECT_TRUE(histories.contains(62));
    }
}

}  // namespace
}  // namespace tonquil
