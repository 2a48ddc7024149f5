// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/model/RandomCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

using Point = KVGammaCurve::PointPointer;

Point point(float red, float green, float blue) {
    return KVGammaPoint::gammaPointWithRed(red, green, blue);
}

void expectNear(const KVGammaPoint& actual, float red, float green, float blue, float tolerance) {
    EXPECT_NEAR(actual.redValue(), red, tolerance);
    EXPECT_NEAR(actual.greenValue(), green, tolerance);
    EXPECT_NEAR(actual.blueValue(), blue, tolerance);
}

TEST(Flattening, FoldsTheMastersIn) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.5F, 1.2F, 0.8F, point(0.5F, 0, 1), point(0.9F, 1, 2), point(0.5F, 1, 0), 0);
    // 1 - 0.5 * 0.5; 1.2 + 0.9 - 1; 0.8 * 0.5.
    expectNear(*curve->flatBlackPoint(), 0.75F, 0.5F, 1, 1e-6F);
    expectNear(*curve->flatMiddlePoint(), 1.1F, 1.2F, 2.2F, 1e-6F);
    expectNear(*curve->flatWhitePoint(), 0.4F, 0.8F, 0, 1e-6F);
    EXPECT_EQ(curve->flatGammaCurve()->blendingMode(), 0);
    EXPECT_EQ(curve->flatGammaCurve()->masterMiddleCorrection(), 1) << "a plain curve has none";
}

TEST(Equilibration, SplitsTheWorkedExample) {
    const TQExtendedGammaCurve curve(point(0.1F, 0.2F, 0.3F), point(0.9F, 1.0F, 1.4F),
                                     point(0.8F, 0.9F, 1.0F), 1);
    EXPECT_NEAR(curve.masterBlackCorrection(), 0.1F, 1e-6F);
    EXPECT_NEAR(curve.masterMiddleCorrection(), 1.1F, 1e-6F);
    EXPECT_EQ(curve.masterWhiteCorrection(), 1);
    expectNear(*curve.blackPoint(), 0, 0.111111F, 0.222222F, 1e-6F);
    expectNear(*curve.middlePoint(), 0.8F, 0.9F, 1.3F, 1e-6F);
    expectNear(*curve.whitePoint(), 0.8F, 0.9F, 1.0F, 1e-6F);
}

TEST(Equilibration, TakesTheLeastFlatBlackButDividesTheRawOnes) {
    TQExtendedGammaCurve curve;
    curve.setMasterBlackCorrection(0.5F);
    curve._equilibrateMaster();
    EXPECT_EQ(curve.masterBlackCorrection(), 0.5F);
    expectNear(*curve.blackPoint(), -1, -1, -1, 0);
    expectNear(*curve.flatBlackPoint(), 0, 0, 0, 0);
}

TEST(Equilibration, PassesOverWhatIsNotANumberAndDividesUnguarded) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const TQExtendedGammaCurve curve(point(nan, 0.3F, 0.2F), nullptr, point(nan, 0.25F, 0.5F), 1);
    EXPECT_NEAR(curve.masterBlackCorrection(), 0.2F, 1e-6F);
    EXPECT_EQ(curve.masterWhiteCorrection(), 0.5F);
    EXPECT_EQ(curve.whitePoint()->greenValue(), 0.5F);

    const TQExtendedGammaCurve dark(nullptr, nullptr, point(0, 0, 0), 1);
    EXPECT_EQ(dark.masterWhiteCorrection(), 0);
    EXPECT_TRUE(std::isnan(dark.whitePoint()->blueValue()));
    const TQExtendedGammaCurve lit(point(1, 1, 1), nullptr, nullptr, 1);
    EXPECT_TRUE(std::isnan(lit.blackPoint()->blueValue()));
}

TEST(Equilibration, FlattensBackToTheRawPointsWhateverTheMastersWere) {
    std::mt19937 random(11);
    for (int round = 0; round < 2'000; ++round) {
        const auto curve = randomCurve(random);
        const KVGammaPoint black = *curve->blackPoint();
        const KVGammaPoint middle = *curve->middlePoint();
        const KVGammaPoint white = *curve->whitePoint();
        curve->_equilibrateMaster();
        // A few roundings of numbers up to 4.
        const auto expectSame = [](const KVGammaPoint& flat, const KVGammaPoint& raw) {
            expectNear(flat, raw.redValue(), raw.greenValue(), raw.blueValue(), 2e-6F);
        };
        expectSame(*curve->flatBlackPoint(), black);
        expectSame(*curve->flatMiddlePoint(), middle);
        expectSame(*curve->flatWhitePoint(), white);
        const KVGammaPoint& rest = *curve->middlePoint();
        EXPECT_NEAR((rest.redValue() + rest.greenValue() + rest.blueValue()) / 3, 1, 1e-6F);
        EXPECT_EQ(
            std::fmax(std::fmax(curve->whitePoint()->redValue(), curve->whitePoint()->greenValue()),
                      curve->whitePoint()->blueValue()),
            1);
    }
}

}  // namespace
}  // namespace tonquil
