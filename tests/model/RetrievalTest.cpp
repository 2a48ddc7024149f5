// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <vector>

#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/model/FakeScreen.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

TEST(Retrieval, ReadsTheFormulaOnlyWhenTheCurveIsAbsolute) {
    FakeScreen screen;
    screen.formula = {.red = {0.1F, 0.9F, 2.2F}, .green = {0.2F, 0.8F, 1.8F}, .blue = {0, 1, 1}};
    for (const std::int32_t mode : {0, 1, 5, -1}) {
        SCOPED_TRACE(mode);
        const auto point = KVGammaPoint::gammaPointWithRed(7, 7, 7);
        KVGammaCurve curve(point, point, point, mode);
        curve.retriveFromScreen(screen);
        EXPECT_EQ(curve.blendingMode(), mode);
        EXPECT_NE(curve.blackPoint(), point) << "the points are replaced, not changed";
        EXPECT_EQ(point->redValue(), 7);
        EXPECT_EQ(curve.blackPoint()->redValue(), mode == 0 ? 0.1F : 0);
        EXPECT_EQ(curve.whitePoint()->greenValue(), mode == 0 ? 0.8F : 1);
        EXPECT_EQ(curve.middlePoint()->redValue(), mode == 0 ? 2.2F : 1);
    }
}

TEST(Retrieval, OfAnAbsoluteExtendedCurveSplitsTheFormulaIntoMasters) {
    FakeScreen screen;
    screen.formula = {.red = {0.1F, 0.8F, 0.9F}, .green = {0.2F, 0.9F, 1}, .blue = {0.3F, 1, 1.4F}};
    EXPECT_EQ(TQExtendedGammaCurve::gammaCurveWithScreen(screen)->gammaCurveCompactArray(),
              TQExtendedGammaCurve().gammaCurveCompactArray())
        << "a new one is neutral";
    TQExtendedGammaCurve curve;
    curve.setBlendingMode(KVBlendingModeAbsolute);
    curve.retriveFromScreen(screen);
    EXPECT_NEAR(curve.masterBlackCorrection(), 0.1F, 1e-6F);
    EXPECT_NEAR(curve.masterMiddleCorrection(), 1.1F, 1e-6F);
    EXPECT_NEAR(curve.flatBlackPoint()->blueValue(), 0.3F, 1e-6F);
}

TEST(FormulaPath, SetsMinimumMaximumAndExponentPerChannel) {
    FakeScreen screen;
    const KVGammaCurve curve(KVGammaPoint::gammaPointWithRed(0.1F, 0.2F, 0.3F),
                             KVGammaPoint::gammaPointWithRed(1.1F, 1.2F, 1.3F),
                             KVGammaPoint::gammaPointWithRed(0.7F, 0.8F, 0.9F), 1);
    curve._oldApplyToScreen(screen);
    EXPECT_EQ(screen.formula, (TransferFormula{.red = {0.1F, 0.7F, 1.1F},
                                               .green = {0.2F, 0.8F, 1.2F},
                                               .blue = {0.3F, 0.9F, 1.3F}}));
}

TEST(TableCurve, TakesTheFirst768BytesAsLevelsOf256) {
    std::vector<std::uint8_t> bytes(1'000, 0x80);
    bytes[0] = 0;
    bytes[256] = 255;
    bytes[767] = 1;
    FakeScreen screen;
    screen.base.table.levels.fill(0.9F);
    for (const std::size_t size : {std::size_t{768}, std::size_t{1'000}}) {
        const auto curve = KVTableGammaCurve::tableGammaCurveWithData(std::span(bytes).first(size));
        ASSERT_TRUE(curve);
        curve->applyToScreen(screen);
        EXPECT_EQ(screen.shown.channel(0)[0], 0.0F);
        EXPECT_EQ(screen.shown.channel(1)[0], 0.99609375F);
        EXPECT_EQ(screen.shown.channel(2)[255], 0.00390625F);
        EXPECT_EQ(screen.shown.channel(2)[254], 0.5F);
    }
    EXPECT_FALSE(KVTableGammaCurve::tableGammaCurveWithData(std::span(bytes).first(767)));
    EXPECT_FALSE(KVTableGammaCurve::tableGammaCurveWithData({}));
}

}  // namespace
}  // namespace tonquil
