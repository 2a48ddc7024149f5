// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <limits>

#include "tests/model/RandomCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

PropertyValue point(double red, double green, double blue) {
    return {{"Red", red}, {"Green", green}, {"Blue", blue}};
}

TEST(BlendingModeReader, MapsEveryNumberButZeroToTheBaseTable) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<PropertyValue, std::int32_t>> rows{
        {0, 0},        {1, 1},     {2, 1},          {7, 1},
        {-1, 1},       {0.9, 0},   {-0.9, 0},       {1.5, 1},
        {true, 1},     {false, 0}, {"1", 0},        {nullptr, 0},
        {infinity, 1}, {1e300, 1}, {4294967296, 1}, {PropertyValue::array({1}), 0}};
    for (const auto& [value, mode] : rows) {
        SCOPED_TRACE(value);
        EXPECT_EQ(KVGammaCurve::blendingModeFromDictionary({{"BlendingMode", value}}), mode);
    }
    EXPECT_EQ(KVGammaCurve::blendingModeFromDictionary(PropertyValue::object()), 0);
    EXPECT_EQ(KVGammaCurve::blendingModeFromDictionary(nullptr), 0);
}

TEST(PlainCurveDictionary, LosesTheModeAndTakesDefaultsForWhatIsMissing) {
    const KVGammaCurve written(KVGammaPoint::gammaPointWithRed(0.1F, 0.2F, 0.3F), nullptr, nullptr,
                               KVBlendingModeBaseTable);
    PropertyValue dictionary = written.gammaCurveDictionary();
    EXPECT_EQ(dictionary.size(), 3U);
    dictionary["WhitePoint"] = {{"Red", 0.5}, {"Green", 0.5}};
    dictionary["MiddlePoint"] = {{"Red", "0.1"}, {"Green", true}, {"Blue", 1}};
    const auto read = KVGammaCurve::gammaCurveWithDictionary(dictionary);
    EXPECT_EQ(read->blendingMode(), KVBlendingModeAbsolute);
    EXPECT_EQ(read->blackPoint()->greenValue(), 0.2F);
    EXPECT_EQ(read->whitePoint()->redValue(), 1) << "a point needs all three";
    EXPECT_EQ(read->middlePoint()->redValue(), 0.1F) << "text that is a number";
}

TEST(ExtendedCurveDictionary, IsWrittenWithElevenEntriesOfTwoGenerations) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.5F, 1.2F, 0.8F, KVGammaPoint::gammaPointWithRed(0.5F, 0, 0),
        KVGammaPoint::gammaPointWithRed(0.9F, 1, 1), KVGammaPoint::gammaPointWithRed(0.5F, 1, 1),
        1);
    const PropertyValue dictionary = curve->gammaCurveDictionary();
    EXPECT_EQ(dictionary.size(), 11U);
    EXPECT_TRUE(dictionary["BlendingMode"].is_number_unsigned());
    EXPECT_EQ(floatValue(dictionary["MasterCorrection"]), 1.2F);
    EXPECT_EQ(floatValue(dictionary["v4-GammaPointBlack"]["Red"]), 0.5F);
    EXPECT_EQ(floatValue(dictionary["BlackPoint"]["Red"]), 0.75F) << "flat";
    EXPECT_EQ(floatValue(dictionary["MiddlePoint"]["Red"]), 0.9F) << "not flat";
    EXPECT_EQ(floatValue(dictionary["WhitePoint"]["Red"]), 0.8F * 0.5F) << "flat";
}

std::array<float, 12> valuesOf(const TQExtendedGammaCurve& curve) {
    const PropertyValue array = curve.gammaCurveCompactArray();
    std::array<float, 12> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = floatValue(array[i + 1]).value();
    }
    return values;
}

std::array<std::uint32_t, 12> bitsOf(const TQExtendedGammaCurve& curve) {
    return std::bit_cast<std::array<std::uint32_t, 12>>(valuesOf(curve));
}

TEST(StoredForms, GiveBackTheSameBits) {
    std::mt19937 random(3);
    for (int round = 0; round < 2'000; ++round) {
        const auto curve = randomCurve(random);
        const auto fromDictionary =
            TQExtendedGammaCurve::gammaCurveWithDictionary(curve->gammaCurveDictionary());
        ASSERT_EQ(bitsOf(*fromDictionary), bitsOf(*curve));
        ASSERT_EQ(fromDictionary->blendingMode(), curve->blendingMode());
        // The way over JSON text is the one that the compact array takes.
        const auto fromArray = TQExtendedGammaCurve::gammaCurveWithCompactArray(
            PropertyValue::parse(curve->gammaCurveCompactArray().dump()));
        ASSERT_EQ(bitsOf(*fromArray), bitsOf(*curve));
        ASSERT_EQ(fromArray->blendingMode(), curve->blendingMode());
    }
}

TEST(ExtendedCurveReader, FallsThroughTheGenerations) {
    const PropertyValue oldest = {{"BlackPoint", point(0.1, 0.2, 0.3)}};
    const auto split = TQExtendedGammaCurve::gammaCurveWithDictionary(oldest);
    EXPECT_NEAR(split->masterBlackCorrection(), 0.1F, 1e-6F);
    EXPECT_NEAR(split->blackPoint()->blueValue(), 0.222222F, 1e-6F);
    EXPECT_EQ(split->masterMiddleCorrection(), 1);
    EXPECT_EQ(split->blendingMode(), 0);

    PropertyValue single = oldest;
    single["MasterCorrection"] = 1.5;
    const auto unsplit = TQExtendedGammaCurve::gammaCurveWithDictionary(single);
    EXPECT_EQ(unsplit->masterBlackCorrection(), 0);
    EXPECT_EQ(unsplit->masterMiddleCorrection(), 1.5F);
    EXPECT_EQ(unsplit->blackPoint()->redValue(), 0.1F);

    PropertyValue current = single;
    current["v4-MasterBlack"] = 0.25;
    current["v4-MasterMiddle"] = true;
    current["v4-MasterWhite"] = "0.5";
    EXPECT_EQ(TQExtendedGammaCurve::gammaCurveWithDictionary(current)->masterBlackCorrection(), 0)
        << "a master given as text is no number, so the earlier generation counts";
    current["v4-MasterWhite"] = 0.5;
    const auto newest = TQExtendedGammaCurve::gammaCurveWithDictionary(current);
    EXPECT_EQ(newest->masterBlackCorrection(), 0.25F);
    EXPECT_EQ(newest->masterMiddleCorrection(), 1);
    EXPECT_EQ(newest->blackPoint()->redValue(), 0) << "its own points are missing";
}

TEST(ExtendedCurveReader, SurvivesEveryWrongType) {
    const std::vector<PropertyValue> strange{nullptr,
                                             true,
                                             "text",
                                             -1,
                                             std::numeric_limits<double>::quiet_NaN(),
                                             -std::numeric_limits<double>::infinity(),
                                             1e300,
                                             PropertyValue::array({1, 2}),
                                             PropertyValue::object(),
                                             PropertyValue::binary({1, 2})};
    const PropertyValue whole = TQExtendedGammaCurve().gammaCurveDictionary();
    for (const PropertyValue& value : strange) {
        EXPECT_TRUE(TQExtendedGammaCurve::gammaCurveWithDictionary(value));
        for (const auto& [key, unused] : whole.items()) {
            PropertyValue dictionary = whole;
            dictionary[key] = value;
            EXPECT_TRUE(TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary)) << key;
            if (dictionary[key] != whole[key] && whole[key].is_object()) {
                // A point that cannot be read is neutral, as it was in the whole dictionary.
                const auto read = TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary);
                EXPECT_EQ(valuesOf(*read), valuesOf(TQExtendedGammaCurve())) << key;
            }
        }
    }
}

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
