// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "model/TQExtendedGammaCurve.h"
#include "tests/model/FakeScreen.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

float uniform(std::mt19937& random, float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(random);
}

/// A curve within the ranges of the panel.
std::shared_ptr<TQExtendedGammaCurve> randomCurve(std::mt19937& random) {
    const auto point = [&](float low, float high) {
        return KVGammaPoint::gammaPointWithRed(
            uniform(random, low, high), uniform(random, low, high), uniform(random, low, high));
    };
    return TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        uniform(random, 0, 0.5F), uniform(random, 0.5F, 2), uniform(random, 0.5F, 1),
        point(0, 0.5F), point(0.5F, 2), point(0.5F, 1), static_cast<std::int32_t>(random() % 2));
}

using Values = std::array<float, 3>;

KVGammaCurve::PointPointer point(const Values& v) {
    return KVGammaPoint::gammaPointWithRed(v[0], v[1], v[2]);
}

Values valuesOf(const KVGammaPoint& point) {
    return {point.redValue(), point.greenValue(), point.blueValue()};
}

void expectNear(const KVGammaPoint& actual, const Values& expected, float tolerance = 1e-6F) {
    for (std::size_t c = 0; c < 3; ++c) {
        EXPECT_NEAR(valuesOf(actual)[c], expected[c], tolerance);
    }
}

TEST(Flattening, FoldsMastersIn) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.5F, 1.2F, 0.8F, point({0.5F, 0, 1}), point({0.9F, 1, 2}), point({0.5F, 1, 0}), 0);
    // 1 - 0.5 * 0.5; 1.2 + 0.9 - 1; 0.8 * 0.5.
    expectNear(*curve->flatBlackPoint(), {0.75F, 0.5F, 1});
    expectNear(*curve->flatMiddlePoint(), {1.1F, 1.2F, 2.2F});
    expectNear(*curve->flatWhitePoint(), {0.4F, 0.8F, 0});
    EXPECT_EQ(curve->flatGammaCurve()->blendingMode(), 0);
}

TEST(Equilibration, SplitsWorkedExample) {
    const TQExtendedGammaCurve curve(point({0.1F, 0.2F, 0.3F}), point({0.9F, 1.0F, 1.4F}),
                                     point({0.8F, 0.9F, 1.0F}), 1);
    EXPECT_NEAR(curve.masterBlackCorrection(), 0.1F, 1e-6F);
    EXPECT_NEAR(curve.masterMiddleCorrection(), 1.1F, 1e-6F);
    EXPECT_EQ(curve.masterWhiteCorrection(), 1);
    expectNear(*curve.blackPoint(), {0, 0.111111F, 0.222222F});
    expectNear(*curve.middlePoint(), {0.8F, 0.9F, 1.3F});
    expectNear(*curve.whitePoint(), {0.8F, 0.9F, 1.0F});
    // Uses the lowest flat black, but divides the raw ones.
    TQExtendedGammaCurve lifted;
    lifted.setMasterBlackCorrection(0.5F);
    lifted._equilibrateMaster();
    EXPECT_EQ(lifted.masterBlackCorrection(), 0.5F);
    expectNear(*lifted.blackPoint(), {-1, -1, -1}, 0);
}

TEST(Equilibration, FlattensBackToRawPointsForAnyMasters) {
    std::mt19937 random(11);
    for (int round = 0; round < 2'000; ++round) {
        const auto curve = randomCurve(random);
        const Values black = valuesOf(*curve->blackPoint());
        const Values middle = valuesOf(*curve->middlePoint());
        const Values white = valuesOf(*curve->whitePoint());
        curve->_equilibrateMaster();
        // A few rounding errors of numbers up to 4.
        expectNear(*curve->flatBlackPoint(), black, 2e-6F);
        expectNear(*curve->flatMiddlePoint(), middle, 2e-6F);
        expectNear(*curve->flatWhitePoint(), white, 2e-6F);
        const auto [red, green, blue] = valuesOf(*curve->middlePoint());
        EXPECT_NEAR((red + green + blue) / 3, 1, 1e-6F);
        EXPECT_EQ(std::ranges::max(valuesOf(*curve->whitePoint())), 1);
    }
}

TEST(Retrieval, ReadsFormulaOnlyIfAbsolute) {
    FakeScreen screen;
    screen.formula = {.red = {0.1F, 0.8F, 0.9F}, .green = {0.2F, 0.9F, 1}, .blue = {0.3F, 1, 1.4F}};
    const auto old = point({7, 7, 7});
    KVGammaCurve curve(old, old, old, KVBlendingModeAbsolute);
    curve.retriveFromScreen(screen);
    EXPECT_EQ(old->redValue(), 7) << "the points are replaced, not changed";
    expectNear(*curve.middlePoint(), {0.9F, 1, 1.4F}, 0);
    TQExtendedGammaCurve extended;
    extended.setBlendingMode(KVBlendingModeAbsolute);
    extended.retriveFromScreen(screen);
    EXPECT_NEAR(extended.masterBlackCorrection(), 0.1F, 1e-6F) << "split into masters";
    EXPECT_EQ(TQExtendedGammaCurve::gammaCurveWithScreen(screen)->gammaCurveCompactArray(),
              TQExtendedGammaCurve().gammaCurveCompactArray())
        << "a new one is over the base table, and neutral";
}

// A dictionary maps every nonzero number to the base table; a compact array truncates, and -1 here
// means that it refuses anything but 0 or 1 after that.
TEST(BlendingMode, FollowsRuleOfEachStoredForm) {
    PropertyValue rows = PropertyValue::parse(R"([[0, 0, 0], [1, 1, 1], [2, 1, -1], [-1, 1, -1],
        [0.9, 0, 0], [-0.99999, 0, 0], [1.9, 1, 1], [true, 1, 1], [1.99999999, 1, -1],
        ["1", 0, 1], ["x", 0, 0], [1e300, 1, -1], [4294967296, 1, -1], [null, 0, 1]])");
    rows.push_back({std::numeric_limits<double>::infinity(), 1, -1});
    rows.push_back({std::numeric_limits<double>::quiet_NaN(), 0, -1});
    for (const PropertyValue& row : rows) {
        const PropertyValue& value = row[0];
        SCOPED_TRACE(value);
        EXPECT_EQ(KVGammaCurve::blendingModeFromDictionary({{"BlendingMode", value}}), row[1]);
        const auto curve =
            TQExtendedGammaCurve::gammaCurveWithCompactArray(PropertyValue::array({value}));
        EXPECT_EQ(curve ? curve->blendingMode() : -1, row[2]);
    }
    EXPECT_EQ(KVGammaCurve::blendingModeFromDictionary(nullptr), 0);
    EXPECT_FALSE(TQExtendedGammaCurve::gammaCurveWithCompactArray({{"0", 1}}));
}

TEST(PlainCurveDictionary, OmitsModeAndDefaultsMissingValues) {
    const KVGammaCurve written(point({0.1F, 0.2F, 0.3F}), nullptr, nullptr, 1);
    PropertyValue dictionary = written.gammaCurveDictionary();
    dictionary["WhitePoint"] = {{"Red", 0.5}, {"Green", 0.5}};
    dictionary["MiddlePoint"] = {{"Red", "0.1"}, {"Green", true}, {"Blue", 1}};
    const auto read = KVGammaCurve::gammaCurveWithDictionary(dictionary);
    EXPECT_EQ(read->blendingMode(), KVBlendingModeAbsolute);
    expectNear(*read->blackPoint(), {0.1F, 0.2F, 0.3F}, 0);
    expectNear(*read->whitePoint(), {1, 1, 1}, 0);  // A point needs all three.
    expectNear(*read->middlePoint(), {0.1F, 1, 1}, 0);
}

TEST(ExtendedCurveDictionary, WritesElevenEntriesOfTwoGenerations) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.5F, 1.2F, 0.8F, point({0.5F, 0, 0}), point({0.9F, 1, 1}), point({0.5F, 1, 1}), 1);
    const PropertyValue dictionary = curve->gammaCurveDictionary();
    EXPECT_EQ(dictionary.size(), 11U);
    EXPECT_TRUE(dictionary["BlendingMode"].is_number_unsigned());
    EXPECT_EQ(floatValue(dictionary["MasterCorrection"]), 1.2F);
    EXPECT_EQ(floatValue(dictionary["v4-GammaPointBlack"]["Red"]), 0.5F);
    EXPECT_EQ(floatValue(dictionary["BlackPoint"]["Red"]), 0.75F) << "flat";
    EXPECT_EQ(floatValue(dictionary["MiddlePoint"]["Red"]), 0.9F) << "not flat";
    EXPECT_EQ(floatValue(dictionary["WhitePoint"]["Red"]), 0.8F * 0.5F) << "flat";
}

std::array<std::uint32_t, 12> bitsOf(const TQExtendedGammaCurve& curve) {
    const PropertyValue array = curve.gammaCurveCompactArray();
    std::array<std::uint32_t, 12> bits{};
    for (std::size_t i = 0; i < bits.size(); ++i) {
        bits[i] = std::bit_cast<std::uint32_t>(floatValue(array[i + 1]).value());
    }
    return bits;
}

TEST(StoredForms, RoundTripBitExactly) {
    std::mt19937 random(3);
    for (int round = 0; round < 2'000; ++round) {
        const auto curve = randomCurve(random);
        const auto fromDictionary =
            TQExtendedGammaCurve::gammaCurveWithDictionary(curve->gammaCurveDictionary());
        ASSERT_EQ(bitsOf(*fromDictionary), bitsOf(*curve));
        ASSERT_EQ(fromDictionary->blendingMode(), curve->blendingMode());
        // Through JSON text, as a compact array really travels.
        const auto fromArray = TQExtendedGammaCurve::gammaCurveWithCompactArray(
            PropertyValue::parse(curve->gammaCurveCompactArray().dump()));
        ASSERT_EQ(bitsOf(*fromArray), bitsOf(*curve));
        ASSERT_EQ(fromArray->blendingMode(), curve->blendingMode());
    }
}

TEST(ExtendedCurveReader, FallsBackToOlderGenerations) {
    const PropertyValue oldest = {{"BlackPoint", {{"Red", 0.1}, {"Green", 0.2}, {"Blue", 0.3}}}};
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
    EXPECT_EQ(unsplit->masterWhiteCorrection(), 1);
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

TEST(ExtendedCurveReader, DefaultsUnreadableValuesToNeutral) {
    const PropertyValue whole = TQExtendedGammaCurve().gammaCurveDictionary();
    for (const PropertyValue& value :
         {PropertyValue(nullptr), PropertyValue("text"), PropertyValue(-1),
          PropertyValue::array({1, 2}), PropertyValue::binary({1, 2})}) {
        EXPECT_TRUE(TQExtendedGammaCurve::gammaCurveWithDictionary(value));
        for (const auto& [key, unused] : whole.items()) {
            PropertyValue dictionary = whole;
            dictionary[key] = value;
            const auto read = TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary);
            if (whole[key].is_object()) {
                EXPECT_EQ(bitsOf(*read), bitsOf(TQExtendedGammaCurve())) << key;
            }
        }
    }
}

TEST(CompactArray, UsesItsOwnOrderAndDefaultsMissingValues) {
    const PropertyValue whole = {0, 0.5, 1.5, 0.75, 0.1, 1.1, 0.9, 0.2, 1.2, 0.8, 0.3, 1.3, 0.7, 9};
    const PropertyValue neutral = TQExtendedGammaCurve().gammaCurveCompactArray();
    PropertyValue given = PropertyValue::array();
    for (std::size_t length = 0; length <= 14; ++length) {
        SCOPED_TRACE(length);
        const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(given);
        ASSERT_TRUE(curve);
        const PropertyValue written = curve->gammaCurveCompactArray();
        ASSERT_EQ(written.size(), 13U);
        for (std::size_t i = 0; i < 13; ++i) {
            EXPECT_EQ(floatValue(written[i]), floatValue(i < length ? whole[i] : neutral[i])) << i;
        }
        given.push_back(whole[length % 14]);
    }
    const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(whole);
    EXPECT_EQ(curve->blackPoint()->greenValue(), 0.2F);
    EXPECT_EQ(curve->middlePoint()->redValue(), 1.1F);
    EXPECT_EQ(curve->whitePoint()->blueValue(), 0.7F);
    const auto strange = TQExtendedGammaCurve::gammaCurveWithCompactArray(
        {PropertyValue::object(), "0.25", nullptr, true, PropertyValue::array({5})});
    EXPECT_EQ(strange->blendingMode(), 1);
    EXPECT_EQ(strange->masterBlackCorrection(), 0.25F);
    EXPECT_EQ(strange->masterMiddleCorrection(), 1);
}

}  // namespace
}  // namespace tonquil
