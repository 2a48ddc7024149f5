// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>

#include "model/TQExtendedGammaCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

TEST(CompactArray, TakesItsOwnOrderAndDefaultsForWhatIsMissing) {
    const PropertyValue whole = {0, 0.5, 1.5, 0.75, 0.1, 1.1, 0.9, 0.2, 1.2, 0.8, 0.3, 1.3, 0.7};
    const PropertyValue neutral = TQExtendedGammaCurve().gammaCurveCompactArray();
    for (std::size_t length = 0; length <= 20; ++length) {
        SCOPED_TRACE(length);
        PropertyValue array = PropertyValue::array();
        for (std::size_t i = 0; i < length; ++i) {
            array.push_back(i < whole.size() ? whole[i] : PropertyValue(99));
        }
        const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(array);
        ASSERT_TRUE(curve);
        const PropertyValue written = curve->gammaCurveCompactArray();
        ASSERT_EQ(written.size(), 13U);
        for (std::size_t i = 0; i < 13; ++i) {
            EXPECT_EQ(floatValue(written[i]), floatValue(i < length ? whole[i] : neutral[i])) << i;
        }
    }
    const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(whole);
    EXPECT_EQ(curve->blackPoint()->greenValue(), 0.2F);
    EXPECT_EQ(curve->middlePoint()->redValue(), 1.1F);
    EXPECT_EQ(curve->whitePoint()->blueValue(), 0.7F);
}

TEST(CompactArray, RefusesModesThatDoNotTruncateToZeroOrOne) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<PropertyValue, int>> rows{
        {0, 0},         {1, 1},           {1.9, 1},
        {-0.5, 0},      {-0.99999, 0},    {true, 1},
        {"1", 1},       {"x", 0},         {2, -1},
        {-1, -1},       {1.99999999, -1}, {1e300, -1},
        {infinity, -1}, {-infinity, -1},  {std::numeric_limits<double>::quiet_NaN(), -1}};
    for (const auto& [mode, expected] : rows) {
        SCOPED_TRACE(mode);
        const auto curve =
            TQExtendedGammaCurve::gammaCurveWithCompactArray(PropertyValue::array({mode}));
        EXPECT_EQ(curve ? curve->blendingMode() : -1, expected);
    }
    EXPECT_FALSE(TQExtendedGammaCurve::gammaCurveWithCompactArray(nullptr));
    EXPECT_FALSE(TQExtendedGammaCurve::gammaCurveWithCompactArray({{"0", 1}}));
}

TEST(CompactArray, PassesOverElementsWithoutANumber) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(
        {PropertyValue::object(), "0.25", nullptr, true, PropertyValue::array({5})});
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->blendingMode(), 1);
    EXPECT_EQ(curve->masterBlackCorrection(), 0.25F);
    EXPECT_EQ(curve->masterMiddleCorrection(), 1);
    EXPECT_EQ(curve->masterWhiteCorrection(), 1);
    EXPECT_EQ(curve->blackPoint()->redValue(), 0);
}

}  // namespace
}  // namespace tonquil
