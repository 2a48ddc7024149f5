// SPDX-License-Identifier: MIT
#include "model/TableComputation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <string>

#include "tests/model/FakeScreen.h"
#include "tests/model/PlainFormula.h"
#include "tests/model/RandomCurve.h"

namespace tonquil {
namespace {

/// Ten thousand unless the environment asks for a longer run.
int randomCurveCount() {
    const char* count = std::getenv("TONQUIL_RANDOM_CURVES");
    return count == nullptr ? 10'000 : std::atoi(count);
}

TEST(TableComputation, GivesTheWorkedValues) {
    struct Row {
        ChannelCurve channel;
        std::uint32_t slot;
        float level;
    };
    // From the formula by hand: black + (white - black) * (slot / 256) ^ middle.
    const std::vector<Row> rows{{{0, 1, 1}, 0, 0.0F},
                                {{0, 1, 1}, 255, 0.99609375F},
                                {{0.1F, 1, 0.9F}, 0, 0.1F},
                                {{0.1F, 1, 0.9F}, 128, 0.5F},
                                {{0.1F, 1, 0.9F}, 255, 0.896875F},
                                {{0, 2.2F, 1}, 128, 0.217638F},
                                {{0.5F, 1, 0.5F}, 77, 0.5F},
                                {{0.8F, 1, 0.2F}, 128, 0.5F}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.level);
        GammaTable table;
        computeTransferTable({.channels = {row.channel, row.channel, row.channel},
                              .blendingMode = KVBlendingModeAbsolute},
                             table, 256);
        for (std::size_t c = 0; c < 3; ++c) {
            EXPECT_NEAR(table.channel(c)[row.slot], row.level, 1e-6F);
        }
    }
    GammaTable table;
    for (std::size_t i = 0; i < 256; ++i) {
        table.channel(1)[i] = static_cast<float>(i) / 255.0F;
    }
    computeTransferTable({}, table, 256);
    EXPECT_EQ(table.channel(1)[0], 0.0F);
    // Position 255/256: (1 - 255/256) of slot 1, whose level is 1/255, and 255/256 of slot 0.
    EXPECT_NEAR(table.channel(1)[1], (1.0F - 0.99609375F) / 255.0F, 1e-9F);
}

TEST(TableComputation, EqualsThePlainFormulaToTheBit) {
    std::mt19937 random(20'231);
    for (int round = 0; round < randomCurveCount(); ++round) {
        const CurveValues curve = randomCurveValues(random);
        const std::uint32_t n = round % 5 == 0 ? static_cast<std::uint32_t>(random() % 257) : 256;
        GammaTable base;
        for (float& level : base.levels) {
            level = static_cast<float>(random() % 65'536) / 65'535.0F;
        }
        GammaTable expected = base;
        computeByPlainFormula(curve, expected, n);
        computeTransferTable(curve, base, n);
        for (std::size_t i = 0; i < base.levels.size(); ++i) {
            // A not-a-number has no one representation; that it is one is what counts.
            if (std::isnan(expected.levels[i])) {
                ASSERT_TRUE(std::isnan(base.levels[i]));
                continue;
            }
            ASSERT_EQ(base.levels[i], expected.levels[i])
                << "round " << round << ", slot " << i << ", mode " << curve.blendingMode;
        }
    }
}

TEST(ComputedTable, NoticesEveryChangeOfWhatItWasComputedFrom) {
    FakeScreen screen;
    screen.base.sampleCount = 256;
    for (std::size_t i = 0; i < 768; ++i) {
        screen.base.table.levels[i] = static_cast<float>(i % 256) / 255.0F;
    }
    TQExtendedGammaCurve curve;
    const std::vector<std::pair<std::string, std::function<void()>>> changes{
        {"nothing", [] {}},
        {"a point", [&] { curve.middlePoint()->setGreenValue(1.5F); }},
        {"a master", [&] { curve.setMasterWhiteCorrection(0.5F); }},
        {"a value that only differs in sign", [&] { curve.blackPoint()->setRedValue(-0.0F); }},
        {"the base", [&] { screen.base.table.channel(2)[9] = 0.75F; }},
        {"the sample count", [&] { screen.base.sampleCount = 200; }},
        {"the mode", [&] { curve.setBlendingMode(KVBlendingModeAbsolute); }},
        {"the base under an absolute curve", [&] { screen.base.table.channel(0)[255] = 0.125F; }}};
    for (const auto& [what, change] : changes) {
        SCOPED_TRACE(what);
        change();
        curve.applyToScreen(screen);
        GammaTable expected = screen.base.table;
        curve.flatGammaCurve()->_applyGammaValues(expected, screen.base.sampleCount);
        EXPECT_TRUE(haveSameBits(screen.shown, expected));
    }
}

}  // namespace
}  // namespace tonquil
