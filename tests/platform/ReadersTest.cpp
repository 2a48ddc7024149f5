// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/edid/Edid.h"
#include "platform/x11/displays/X11RampJournal.h"
#include "tests/support/EdidBuilder.h"

namespace tonquil {
namespace {

TEST(Edid, TakesTheSerialTextWhereTheNumberIsAFiller) {
    // FNV-1a of the text, computed apart: offset 0x811C9DC5, prime 0x01000193.
    constexpr std::uint32_t hashOfABC123 = 0x45854FE5U;
    struct Row {
        std::uint32_t serial;
        std::optional<std::string> text;
        std::uint32_t expected;
    };
    for (const Row& row : {Row{0, "ABC123", hashOfABC123},
                           {0x01010101U, "ABC123", hashOfABC123},
                           {0xFFFFFFFFU, "ABC123", hashOfABC123},
                           {0x01010102U, "ABC123", 0x01010102U},
                           {0x01010101U, std::nullopt, 0},
                           {0xFFFFFFFFU, "   ", 0}}) {
        SCOPED_TRACE(row.serial);
        EXPECT_EQ(
            parseEdid(buildEdid({.serial = row.serial, .serialText = row.text}))->serialNumber,
            row.expected);
    }
}

TEST(Edid, NeedsAWholeBlockWithItsHeader) {
    auto bytes = buildEdid({.product = 0xA0B1, .serial = 5});
    EXPECT_FALSE(parseEdid(std::span(bytes).first(127)));
    bytes[127] ^= 0xFFU;
    ASSERT_TRUE(parseEdid(bytes)) << "the checksum is not asked for";
    EXPECT_EQ(parseEdid(bytes)->modelNumber, 0xA0B1U);
    bytes[7] = 1;
    EXPECT_FALSE(parseEdid(bytes));
}

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
    for (const std::uint32_t size : {0U, 1U, 3U, 16'385U, 0xFFFFFFFFU}) {
        const auto histories =
            X11RampJournal::parse({}, std::vector{62U, 2U, 1U, 1U, 1U, 63U, size, 5U, 5U, 5U});
        EXPECT_EQ(histories.size(), 1U) << size;
        EXPECT_TRUE(histories.contains(62));
    }
}

}  // namespace
}  // namespace tonquil
