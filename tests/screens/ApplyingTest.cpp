// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "model/TQExtendedGammaCurve.h"
#include "tests/screens/Desk.h"

namespace tonquil {
namespace {

std::shared_ptr<TQExtendedGammaCurve> absoluteCurve(float white) {
    return TQExtendedGammaCurve::gammaCurveWithMasterBlack(0, 1, white, nullptr, nullptr, nullptr,
                                                           KVBlendingModeAbsolute);
}

PropertyValue dictionaryOf(float white) {
    return absoluteCurve(white)->gammaCurveDictionary();
}

/// Half of full white at the middle entry, times the curve's white: slot 128 of 256.
std::uint16_t middleEntry(float white) {
    return static_cast<std::uint16_t>(std::lround(static_cast<double>(white) / 2 * 65535));
}

TEST(Applying, WaitsForAutoApplyUnlessAsked) {
    Desk desk(threeDisplays);
    KVScreen& screen = *desk.registry.screens()[0];
    const HardwareRamp before = desk.ramp(11);
    screen.applyGammaCurve();
    EXPECT_EQ(desk.desk.rampWrites, 0U) << "there is no curve";
    screen.setGammaCurve(absoluteCurve(0.5F));
    EXPECT_EQ(desk.ramp(11), before);
    screen.activateAutoApplyGamma();
    EXPECT_EQ(desk.ramp(11).channel(0)[128], middleEntry(0.5F));
    screen.setGammaCurve(absoluteCurve(0.25F));
    EXPECT_EQ(desk.ramp(11).channel(2)[128], middleEntry(0.25F));
    screen.deactivateAutoApplyGamma();
    screen.setGammaCurve(absoluteCurve(1));
    EXPECT_EQ(desk.ramp(11).channel(2)[128], middleEntry(0.25F));
    screen.setGammaCurve(nullptr);
    screen.activateAutoApplyGamma();
    EXPECT_EQ(desk.ramp(11).channel(2)[128], middleEntry(0.25F)) << "no curve changes nothing";
}

TEST(Applying, LaysEveryCurveOverTheSameBase) {
    Desk desk(threeDisplays);
    HardwareRamp calibration = HardwareRamp::straight(256);
    std::ranges::for_each(calibration.channel(2),
                          [](auto& entry) { entry = static_cast<std::uint16_t>(entry * 3 / 4); });
    desk.desk.setForeignRamp(11, calibration);
    KVScreen& screen = *desk.registry.screens()[0];
    GammaTable base;
    EXPECT_EQ(screen.getBaseGamma(base), 256U);
    screen.activateAutoApplyGamma();
    screen.retriveExtendedGammaCurve();
    const HardwareRamp once = desk.ramp(11);
    screen.applyGammaCurve();
    screen.readBaseGamma();
    screen.applyGammaCurve();
    EXPECT_EQ(desk.ramp(11), once);
    GammaTable again;
    static_cast<void>(screen.getBaseGamma(again));
    EXPECT_TRUE(haveSameBits(base, again)) << "a correction never becomes the base";
}

TEST(Applying, ToAShortRampComputesForItsLength) {
    Desk desk(R"([{"rampSize": 64}])");
    KVScreen& screen = *desk.registry.screens()[0];
    EXPECT_EQ(screen.baseGamma().sampleCount, 64U);
    EXPECT_EQ(screen.baseGamma().table.channel(0)[64], 0.0F);
    screen.setGammaCurve(absoluteCurve(0.5F));
    screen.applyGammaCurve();
    // Slot 32 of 64 is half of the input.
    EXPECT_EQ(desk.ramp(1).channel(1)[32], middleEntry(0.5F));
    EXPECT_GT(desk.ramp(1).channel(1)[63], desk.ramp(1).channel(1)[62]);
}

TEST(Adoption, ByOneScreenTakesTheFirstOfItsTwoIDs) {
    Desk desk(threeDisplays);
    KVScreen& screen = *desk.registry.screens()[0];
    const auto initial = absoluteCurve(0.125F);
    screen.adoptGammaCurveDictionary({{"2-7-9", dictionaryOf(0.5F)}}, nullptr);
    EXPECT_EQ(screen.gammaCurve(), nullptr) << "not its own, and no initial curve";
    screen.adoptGammaCurveDictionary(PropertyValue::object(), initial);
    EXPECT_EQ(screen.gammaCurve(), initial) << "the very curve, not a copy";
    screen.adoptGammaCurveDictionary({{"11", dictionaryOf(0.5F)}}, initial);
    EXPECT_EQ(screen.gammaCurve()->masterWhiteCorrection(), 0.5F) << "its old-style ID";
    // Keys are in the order of their text, and "1-7-9" comes before "11".
    screen.adoptGammaCurveDictionary({{"11", dictionaryOf(0.5F)}, {"1-7-9", dictionaryOf(0.75F)}},
                                     initial);
    EXPECT_EQ(screen.gammaCurve()->masterWhiteCorrection(), 0.75F);
    screen.adoptGammaCurveDictionary(nullptr, nullptr);
    EXPECT_EQ(screen.gammaCurve()->masterWhiteCorrection(), 0.75F);
}

TEST(Adoption, ByAllScreensServesTheRestWithOneSharedCurve) {
    Desk desk(threeDisplays);
    const auto& screens = desk.registry.screens();
    for (const auto& screen : screens) {
        screen->activateAutoApplyGamma();
    }
    const auto initial = absoluteCurve(0.125F);
    desk.registry.adoptGammaCurveDictionary(
        {{"1-7-9", dictionaryOf(0.5F)}, {"12", dictionaryOf(0.75F)}, {"gone", nullptr}}, initial);
    EXPECT_EQ(screens[0]->gammaCurve()->masterWhiteCorrection(), 0.5F);
    EXPECT_EQ(screens[1]->gammaCurve(), initial) << "old-style IDs are not looked for here";
    EXPECT_EQ(screens[2]->gammaCurve(), initial);
    EXPECT_EQ(desk.ramp(11).channel(0)[128], middleEntry(0.5F)) << "applied at once";
    EXPECT_EQ(desk.ramp(13).channel(0)[128], middleEntry(0.125F));

    desk.registry.adoptGammaCurveDictionary(PropertyValue::object(), nullptr);
    EXPECT_EQ(screens[0]->gammaCurve()->masterWhiteCorrection(), 0.5F) << "nothing to serve with";
    desk.registry.adoptGammaCurveDictionary({{"1-7-9", "no curve"}}, nullptr);
    EXPECT_EQ(screens[0]->gammaCurve()->masterWhiteCorrection(), 1) << "all defaults";
}

TEST(AllScreensDictionary, KeepsTheEntriesOfDisplaysThatAreNotThere) {
    Desk desk(threeDisplays);
    const auto& screens = desk.registry.screens();
    screens[0]->setGammaCurve(absoluteCurve(0.5F));
    screens[2]->setGammaCurve(absoluteCurve(0.25F));
    const PropertyValue stored = {
        {"1-7-9", dictionaryOf(1)}, {"11", dictionaryOf(0.75F)}, {"elsewhere", "kept as it is"}};
    const PropertyValue extended = desk.registry.gammaCurveDictionaryExtendingDictionary(stored);
    EXPECT_EQ(extended, (PropertyValue{{"1-7-9", dictionaryOf(0.5F)},
                                       {"11", dictionaryOf(0.75F)},
                                       {"600.000000x340.000000-4-9", dictionaryOf(0.25F)},
                                       {"elsewhere", "kept as it is"}}));
    EXPECT_EQ(desk.registry.gammaCurveDictionary().size(), 2U) << "one screen has no curve";
}

}  // namespace
}  // namespace tonquil
