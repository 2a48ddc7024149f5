// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/edid/Edid.h"
#include "platform/x11/displays/X11RampJournal.h"
#include "tests/support/EdidBuilder.h"

namespace tonquil {
namespace {

TEST(Edid, UsesSerialTextWhenNumberIsFiller) {
    // FNV-1a of the text, computed independently: offset 0x811C9DC5, prime 0x01000193.
    constexpr std::uint32_t hashOfABC123 = 0x45854FE5U;
    const std::vector<std::tuple<std::uint32_t, std::optional<std::string>, std::uint32_t>> rows{
        {0, "ABC123", hashOfABC123},           {0x01010101U, "ABC123", hashOfABC123},
        {0xFFFFFFFFU, "ABC123", hashOfABC123}, {0x01010102U, "ABC123", 0x01010102U},
        {0x01010101U, std::nullopt, 0},        {0xFFFFFFFFU, "   ", 0}};
    for (const auto& [serial, text, expected] : rows) {
        const auto edid = parseEdid(buildEdid({.serial = serial, .serialText = text}));
        EXPECT_EQ(edid->serialNumber, expected) << serial;
    }
}

TEST(Edid, RequiresCompleteBlockWithHeader) {
    auto bytes = buildEdid({.product = 0xA0B1, .serial = 5});
    EXPECT_FALSE(parseEdid(std::span(bytes).first(127)));
    bytes[127] ^= 0xFFU;
    ASSERT_TRUE(parseEdid(bytes)) << "the checksum is not asked for";
    EXPECT_EQ(parseEdid(bytes)->modelNumber, 0xA0B1U);
    EXPECT_NEAR(parseEdid(bytes)->primaries.value().red.x, 0.64, 0.001) << "sRGB's";
    EXPECT_NEAR(parseEdid(bytes)->primaries.value().white.y, 0.329, 0.001);
    std::fill(bytes.begin() + 25, bytes.begin() + 35, 0);
    EXPECT_FALSE(parseEdid(bytes)->primaries);
    bytes[7] = 1;
    EXPECT_FALSE(parseEdid(bytes));
}

TEST(X11RampJournal, SkipsForeignData) {
    const HardwareRamp line = HardwareRamp::straight(3);
    std::vector<std::uint32_t> corrections{7};
    std::vector<std::uint32_t> systemRamps;
    const auto append = [](auto& units, const auto& more) {
        units.insert(units.end(), more.begin(), more.end());
    };
    append(corrections, X11RampJournal::correctionBlock(62, {.fingerprint = 5, .holder = 1}));
    append(systemRamps, X11RampJournal::systemRampBlock(62, HardwareRamp(2)));
    EXPECT_FALSE(X11RampJournal::parse({}, systemRamps).areSystemRampsDamaged);
    systemRamps.back() = 1;
    append(systemRamps, X11RampJournal::systemRampBlock(63, HardwareRamp(4)));
    append(systemRamps, X11RampJournal::systemRampBlock(63, line));
    const auto contents = X11RampJournal::parse(corrections, systemRamps);
    EXPECT_TRUE(contents.areCorrectionsDamaged);
    EXPECT_TRUE(contents.areSystemRampsDamaged);
    EXPECT_TRUE(contents.histories.at(62).has({.fingerprint = 5, .holder = 1}));
    EXPECT_FALSE(contents.histories.at(62).systemRamp()) << "its entries are not what was written";
    EXPECT_EQ(contents.histories.at(63).systemRamp(), line) << "the last one counts";
}

}  // namespace
}  // namespace tonquil
