// SPDX-License-Identifier: MIT
#include "model/TableComputation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <limits>
#include <new>
#include <random>
#include <string>

#include "model/CurveFit.h"
#include "model/KVTableGammaCurve.h"
#include "model/StoredCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/model/FakeScreen.h"
#include "tests/model/PlainFormula.h"
#include "values/PropertyValue.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// Counts every allocation of the test program.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tonquil {
namespace {

TEST(TableComputation, MatchesValuesComputedByHand) {
    // From the formula by hand: black + (white - black) * (slot / 256) ^ middle.
    const std::vector<std::tuple<ChannelCurve, std::uint32_t, float>> rows{
        {{0, 1, 1}, 255, 0.99609375F},
        {{0.1F, 1, 0.9F}, 0, 0.1F},
        {{0.1F, 1, 0.9F}, 255, 0.896875F},
        {{0, 2.2F, 1}, 128, 0.217638F},
        {{0.8F, 1, 0.2F}, 128, 0.5F}};
    GammaTable table;
    for (const auto& [channel, slot, level] : rows) {
        computeTransferTable(
            {.channels = {channel, channel, channel}, .blendingMode = KVBlendingModeAbsolute},
            table, 256);
        for (std::size_t c = 0; c < 3; ++c) {
            EXPECT_NEAR(table.channel(c)[slot], level, 1e-6F);
        }
    }
    for (std::size_t i = 0; i < 256; ++i) {
        table.channel(1)[i] = static_cast<float>(i) / 255.0F;
    }
    computeTransferTable({}, table, 256);
    EXPECT_EQ(table.channel(1)[0], 0.0F);
    // Position 255/256: (1 - 255/256) of slot 1, whose level is 1/255, and 255/256 of slot 0.
    EXPECT_NEAR(table.channel(1)[1], (1.0F - 0.99609375F) / 255.0F, 1e-9F);
}

float randomBetween(std::mt19937& random, float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(random);
}

/// Normal curves, and some bad ones: out of range, huge, infinite, NaN, with exponents equal
/// between channels or not.
CurveValues randomCurveValues(std::mt19937& random) {
    using Limits = std::numeric_limits<float>;
    constexpr float infinity = Limits::infinity();
    constexpr std::array strange{infinity, -infinity, Limits::quiet_NaN(),  Limits::max(), -1.0F,
                                 -0.0F,    0.0F,      Limits::denorm_min(), 1e9F,          2.0F};
    CurveValues curve;
    curve.blendingMode = random() % 16 == 0 ? 7 : static_cast<std::int32_t>(random() % 2);
    const bool shareExponent = random() % 3 == 0;
    const bool isWild = random() % 4 == 0;
    for (ChannelCurve& channel : curve.channels) {
        channel = {randomBetween(random, 0, 0.5F), randomBetween(random, 0.2F, 4),
                   randomBetween(random, 0.5F, 1)};
        if (shareExponent) {
            channel.middle = curve.channels[0].middle;
        }
        if (random() % 8 == 0) {
            channel.middle = 1;
        }
        if (isWild) {
            channel.black += randomBetween(random, -1, 1);
            channel.white += randomBetween(random, -1, 1);
            *std::array{&channel.black, &channel.middle, &channel.white}[random() % 3] =
                strange[random() % strange.size()];
        }
    }
    return curve;
}

TEST(TableComputation, MatchesPlainFormulaBitExactly) {
    std::mt19937 random(20'231);
    // Ten thousand unless the environment asks for more.
    const char* count = std::getenv("TONQUIL_RANDOM_CURVES");
    for (int round = 0; round < (count == nullptr ? 10'000 : std::atoi(count)); ++round) {
        const CurveValues curve = randomCurveValues(random);
        const std::uint32_t n = round % 5 == 0 ? static_cast<std::uint32_t>(random() % 257) : 256;
        GammaTable table;
        for (float& level : table.levels) {
            level = static_cast<float>(random() % 65'536) / 65'535.0F;
        }
        GammaTable expected = table;
        computeByPlainFormula(curve, expected, n);
        computeTransferTable(curve, table, n);
        for (std::size_t i = 0; i < table.levels.size(); ++i) {
            // NaN has many representations; only that it is NaN counts.
            ASSERT_TRUE(table.levels[i] == expected.levels[i] ||
                        (std::isnan(table.levels[i]) && std::isnan(expected.levels[i])))
                << "round " << round << ", slot " << i << ", mode " << curve.blendingMode;
        }
    }
}

TEST(ComputedTable, RecomputesWhenAnyInputChanges) {
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
        change();
        curve.applyToScreen(screen);
        GammaTable expected = screen.base.table;
        curve.flatGammaCurve()->_applyGammaValues(expected, screen.base.sampleCount);
        EXPECT_TRUE(haveSameBits(screen.shown, expected)) << what;
    }
}

TEST(Applying, AllocatesNothing) {
    FakeScreen screen;
    screen.base.sampleCount = 256;
    TQExtendedGammaCurve extended;
    const std::size_t before = allocations;
    extended.applyToScreen(screen);
    extended.blackPoint()->setRedValue(0.2F);
    extended.applyToScreen(screen);
    EXPECT_EQ(allocations, before);
    static_cast<void>(extended.flatGammaCurve());
    EXPECT_GT(allocations, before) << "the counter counts";
}

TEST(TableCurve, ReadsFirst768BytesAsLevelsOf256) {
    std::vector<std::uint8_t> bytes(769, 0x80);
    bytes[256] = 255;
    bytes[767] = 1;
    FakeScreen screen;
    const auto curve = KVTableGammaCurve::tableGammaCurveWithData(bytes);
    ASSERT_TRUE(curve);
    curve->applyToScreen(screen);
    EXPECT_EQ(screen.shown.channel(0)[0], 0.5F);
    EXPECT_EQ(screen.shown.channel(1)[0], 0.99609375F);
    EXPECT_EQ(screen.shown.channel(2)[255], 0.00390625F);
    EXPECT_FALSE(KVTableGammaCurve::tableGammaCurveWithData(std::span(bytes).first(767)));
}

TEST(CurveFit, GivesCurveBackThatMadeTable) {
    const std::array rows{ChannelCurve{.black = 0.1F, .middle = 2.2F, .white = 0.9F},
                          ChannelCurve{.black = 0, .middle = 0.3F, .white = 1},
                          ChannelCurve{.black = 0.8F, .middle = 20, .white = 0.2F},
                          ChannelCurve{.black = 0, .middle = 1, .white = 0},
                          ChannelCurve{.black = 1, .middle = 1, .white = 1}};
    for (const ChannelCurve& row : rows) {
        SCOPED_TRACE(row.middle);
        GammaTable table;
        computeTransferTable({.channels = {row, row, row}, .blendingMode = 0}, table, 256);
        const CurveFit fit = fitCurve(table);
        EXPECT_LT(fit.largestDifference, 2e-5F);
        EXPECT_NEAR(fit.curve->flatBlackPoint()->redValue(), row.black, 1e-4F);
        EXPECT_NEAR(fit.curve->flatMiddlePoint()->greenValue(), row.middle, 1e-3F);
        EXPECT_NEAR(fit.curve->flatWhitePoint()->blueValue(), row.white, 1e-4F);
    }
    GammaTable step;
    std::ranges::fill(step.channel(1).last(128), 1.0F);
    EXPECT_NEAR(fitCurve(step).largestDifference, 0.5F, 0.2F);
}

TEST(TableCurve, SurvivesStoringToTheEntry) {
    GammaTable table;
    for (std::size_t i = 0; i < table.levels.size(); ++i) {
        table.levels.at(i) = static_cast<float>(i * 85) / 65535.0F;
    }
    PropertyValue stored = KVTableGammaCurve(table).gammaCurveDictionary();
    const auto read = std::dynamic_pointer_cast<KVTableGammaCurve>(curveWithDictionary(stored));
    ASSERT_TRUE(read);
    EXPECT_TRUE(haveSameBits(read->table(), table));
    stored["Table"] = PropertyValue::binary({1, 2});
    EXPECT_TRUE(std::dynamic_pointer_cast<TQExtendedGammaCurve>(curveWithDictionary(stored)));
}

}  // namespace
}  // namespace tonquil
