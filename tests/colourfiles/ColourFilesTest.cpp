// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "colourfiles/ExportedTable.h"
#include "settings/Settings.h"
#include "tests/support/IccBuilder.h"

namespace tonquil {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Levels that 16 bits hold exactly.
GammaTable someTable() {
    GammaTable table;
    std::mt19937 random(7);
    for (float& level : table.levels) {
        level = static_cast<float>(random() % 65536) / 65535.0F;
    }
    return table;
}

Bytes bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

/// The level of a slot as an entry; nothing if the file is refused with a sentence.
std::optional<int> entry(const Bytes& file, std::size_t channel, std::size_t slot) {
    const auto settings = readSettings(file);
    if (!settings) {
        EXPECT_FALSE(settings.error().sentence.empty());
        return std::nullopt;
    }
    const auto& table = std::get<CalibrationSettings>(*settings).table;
    return static_cast<int>(std::lround(table.channel(channel)[slot] * 65535));
}

/// A profile whose `vcgt` tag has these contents; its place is taken from a larger one.
Bytes profileWithTag(const Bytes& contents) {
    Bytes profile = buildIccWithTable(Ramp{.red = std::vector<std::uint16_t>(256),
                                           .green = std::vector<std::uint16_t>(256),
                                           .blue = std::vector<std::uint16_t>(256)});
    const std::string name = "vcgt";
    const auto inDirectory = std::search(profile.begin(), profile.end(), name.begin(), name.end());
    const auto tag = std::search(inDirectory + 4, profile.end(), name.begin(), name.end());
    std::copy(contents.begin(), contents.end(), tag + 8);
    // Name, offset and size of 32 bits each.
    const auto size = contents.size() + 8;
    inDirectory[10] = static_cast<std::uint8_t>(size >> 8U);
    inDirectory[11] = static_cast<std::uint8_t>(size & 0xFFU);
    return profile;
}

TEST(ColourFiles, ExportedAreReadBackToTheBit) {
    const GammaTable table = someTable();
    const DescribedDisplay display{.name = "DP-1 \"Zo\xC3\xAB\"", .time = 1'700'000'000};
    for (const auto format : {ExportFormat::Icc, ExportFormat::Cal}) {
        const Bytes file = exportedTable(format, table, 256, display).value();
        const auto read = std::get<CalibrationSettings>(readSettings(file).value()).table;
        EXPECT_TRUE(haveSameBits(read, table));
        EXPECT_EQ(exportedTable(format, read, 256, display).value(), file);
        EXPECT_NE(std::string(file.begin(), file.end()).find("DP-1 ?Zo???, 2023-11-14"),
                  std::string::npos);
    }
    EXPECT_FALSE(exportedTable(ExportFormat::Cal, table, 1, display));
    // Of a raw table, 255 is the highest byte, and a display's own slots are spread over all 256.
    GammaTable two;
    two.channel(0)[1] = 1;
    const Bytes raw = exportedTable(ExportFormat::Table, two, 2, display).value();
    EXPECT_EQ(raw.size(), 768U);
    EXPECT_EQ(raw[128], 129) << "128 of 255";
    EXPECT_EQ(raw[255], 255);
}

TEST(ColourFiles, OfEveryFormOfTagAreRead) {
    // Kind 0, 1 channel, 3 samples of 8 bits.
    const Bytes single = profileWithTag({0, 0, 0, 0, 0, 1, 0, 3, 0, 1, 0, 51, 255});
    EXPECT_EQ(entry(single, 2, 255), 65535);
    EXPECT_EQ(entry(single, 2, 51), std::lround(65535 * 0.2 * 0.4));
    const Bytes formula = buildIccWithFormula({{{2, 0.25, 0.75}, {1, 0, 1}, {1, 0.5, 0.5}}});
    EXPECT_NEAR(entry(formula, 0, 51).value(), 65535 * (0.25 + 0.5 * 0.04), 1);
    EXPECT_NEAR(entry(formula, 2, 0).value(), 32768, 1);
    for (const Bytes& damaged : {Bytes{0, 0, 0, 0, 0, 1, 0, 4, 0, 1, 0, 51, 255},
                                 Bytes{0, 0, 0, 0, 0, 2, 0, 1, 0, 1, 0, 51, 255},
                                 Bytes{0, 0, 0, 0, 0, 1, 0, 1, 0, 1, 0, 51, 255},
                                 Bytes{0, 0, 0, 0, 0, 1, 0, 1, 0, 3, 0, 51, 255},
                                 Bytes{0, 0, 0, 2, 0, 1, 0, 3, 0, 1, 0, 51, 255},
                                 Bytes{0, 0, 0, 1, 0, 1, 0, 0}, Bytes(40), Bytes{}}) {
        EXPECT_EQ(entry(profileWithTag(damaged), 0, 0), std::nullopt);
    }
    EXPECT_EQ(entry(buildIccWithoutCalibration(), 0, 0), std::nullopt);
}

TEST(ColourFiles, CutOffAnywhereAreRefusedOrWhole) {
    const GammaTable table = someTable();
    for (const auto format : {ExportFormat::Icc, ExportFormat::Cal}) {
        const Bytes file = exportedTable(format, table, 256, {}).value();
        std::size_t whole = 0;
        // Before that it does not say what it is.
        for (std::size_t size = 40; size < file.size(); ++size) {
            const auto read = readSettings({file.begin(), file.begin() + static_cast<long>(size)});
            if (read) {
                ++whole;
                EXPECT_TRUE(haveSameBits(std::get<CalibrationSettings>(*read).table, table));
            }
        }
        EXPECT_LE(whole, 1U) << "only the last line end may be missing";
    }
}

TEST(ColourFiles, OfTextAreReadByTheirFieldNames) {
    const auto file = [](const std::string& colours, const std::string& sets) {
        return bytesOf("CAL  \n# BEGIN_DATA\nDESCRIPTOR \"BEGIN_DATA\"\nCOLOR_REP \"" + colours +
                       "\"\nBEGIN_DATA_FORMAT\nRGB_B ID RGB_I RGB_G RGB_R END_DATA_FORMAT\r\n" +
                       "NUMBER_OF_SETS 3\nBEGIN_DATA\n" + sets + " END_DATA\nCAL garbage");
    };
    const std::string good = "1 a 0 .5 0 \n 1 b 0.4999 0.5 2e-1\t1 c 1.0 0.5 1.25";
    EXPECT_EQ(entry(file("RGB", good), 2, 100), 65535);
    EXPECT_EQ(entry(file("RGB", good), 0, 51), std::lround(65535 * 0.2 * 0.4));
    EXPECT_EQ(entry(file("RGB", good), 0, 255), 65535) << "held to full level";
    EXPECT_EQ(entry(file("CMYK", good), 0, 0), std::nullopt);
    for (const char* bad : {"1 a 0 0 0 1 b 1 1 1", "1 a 0 0 0 1 b .5 0 x 1 c 1 1 1",
                            "1 a 0 0 0 1 b .5 0 nan 1 c 1 1 1", "1 a 0 0 0 1 b .8 0 0 1 c 1 1 1",
                            "1 a 0 0 0 1 b .5 0 0 1 c 1 1 1 1", "1 a 0 0 0 1 b .5 0 0 1 c 1 1"}) {
        EXPECT_EQ(entry(file("RGB", bad), 0, 0), std::nullopt) << bad;
    }
}

}  // namespace
}  // namespace tonquil
