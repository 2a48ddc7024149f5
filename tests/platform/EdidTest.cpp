// SPDX-License-Identifier: MIT
#include "platform/edid/Edid.h"

#include <gtest/gtest.h>

#include "tests/support/EdidBuilder.h"

namespace tonquil {
namespace {

TEST(Edid, TellsVendorProductAndSerialNumber) {
    const auto edid = parseEdid(buildEdid(
        {.manufacturer = "DEL", .product = 0xA0B1, .serial = 0x12345678, .name = "DELL U2720Q"}));
    ASSERT_TRUE(edid);
    // D, E, L are 4, 5 and 12 in five bits each: 0 00100 00101 01100.
    EXPECT_EQ(edid->vendorNumber, 0x10ACU);
    EXPECT_EQ(edid->modelNumber, 0xA0B1U);
    EXPECT_EQ(edid->serialNumber, 0x12345678U);
    EXPECT_EQ(edid->productName, "DELL U2720Q");
}

TEST(Edid, TakesTheSerialTextWhereTheNumberIsAFiller) {
    // FNV-1a of the text, computed apart: offset 0x811C9DC5, prime 0x01000193.
    constexpr std::uint32_t hashOfABC123 = 0x45854FE5U;
    struct Row {
        std::uint32_t serial;
        std::optional<std::string> text;
        std::uint32_t expected;
    };
    const std::vector<Row> rows{{0, "ABC123", hashOfABC123},
                                {0x01010101U, "ABC123", hashOfABC123},
                                {0xFFFFFFFFU, "ABC123", hashOfABC123},
                                {0x01010102U, "ABC123", 0x01010102U},
                                {0, std::nullopt, 0},
                                {0x01010101U, std::nullopt, 0},
                                {0xFFFFFFFFU, "   ", 0}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.serial);
        EXPECT_EQ(
            parseEdid(buildEdid({.serial = row.serial, .serialText = row.text}))->serialNumber,
            row.expected);
    }
}

TEST(Edid, NeedsAWholeBlockWithItsHeader) {
    auto bytes = buildEdid({.serial = 5});
    EXPECT_FALSE(parseEdid(std::span(bytes).first(127)));
    EXPECT_FALSE(parseEdid({}));
    bytes[127] ^= 0xFFU;
    EXPECT_TRUE(parseEdid(bytes)) << "the checksum is not asked for";
    bytes[7] = 1;
    EXPECT_FALSE(parseEdid(bytes));
}

}  // namespace
}  // namespace tonquil
