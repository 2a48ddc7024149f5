// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "model/TQExtendedGammaCurve.h"
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "screens/ReferenceID.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A simulated desk and its registry.
struct Desk {
    explicit Desk(const std::string& json) : desk(readSimulatedDesk(json).value()) {}

    SimulatedDesk desk;
    SimulatedDisplayService service{desk};
    ScreenRegistry registry{service};

    [[nodiscard]] SimulatedDisplay display(DisplayID id) { return *desk.find(id); }
    [[nodiscard]] HardwareRamp ramp(DisplayID id) { return desk.find(id)->ramp; }
};

/// Two displays with serial numbers and one without.
inline constexpr const char* threeDisplays = R"([
    {"id": 11, "serial": 1, "model": 7, "vendor": 9, "bounds": [0, 0, 1920, 1080]},
    {"id": 12, "serial": 2, "model": 7, "vendor": 9, "bounds": [1920, 0, 1280, 1024]},
    {"id": 13, "model": 4, "vendor": 9, "millimetres": [600, 340],
     "bounds": [0, 1080, 1024, 768]}])";

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

float whiteOf(const KVScreen& screen) {
    return screen.gammaCurve()->masterWhiteCorrection();
}

TEST(Applying, WaitsForAutoApplyOrExplicitCall) {
    Desk desk(threeDisplays);
    KVScreen& screen = *desk.registry.screens()[0];
    screen.applyGammaCurve();
    screen.setGammaCurve(absoluteCurve(0.5F));
    EXPECT_EQ(desk.desk.rampWrites, 0U) << "no curve, then one that nobody asked for";
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

TEST(Applying, ToShortRampUsesItsLength) {
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

TEST(Adoption, ByOneScreenUsesFirstMatchingID) {
    Desk desk(threeDisplays);
    KVScreen& screen = *desk.registry.screens()[0];
    const auto initial = absoluteCurve(0.125F);
    screen.adoptGammaCurveDictionary({{"2-7-9", dictionaryOf(0.5F)}}, nullptr);
    EXPECT_EQ(screen.gammaCurve(), nullptr) << "not its own, and no initial curve";
    screen.adoptGammaCurveDictionary(PropertyValue::object(), initial);
    EXPECT_EQ(screen.gammaCurve(), initial);
    screen.adoptGammaCurveDictionary({{"11", dictionaryOf(0.5F)}}, initial);
    EXPECT_EQ(whiteOf(screen), 0.5F) << "its old-style ID";
    // Keys are sorted as text, and "1-7-9" comes before "11".
    screen.adoptGammaCurveDictionary({{"11", dictionaryOf(0.5F)}, {"1-7-9", dictionaryOf(0.75F)}},
                                     initial);
    EXPECT_EQ(whiteOf(screen), 0.75F);
}

TEST(Adoption, ByAllScreensGivesTheRestTheInitialCurve) {
    Desk desk(threeDisplays);
    const auto& screens = desk.registry.screens();
    screens[0]->activateAutoApplyGamma();
    const auto initial = absoluteCurve(0.125F);
    desk.registry.adoptGammaCurveDictionary(
        {{"1-7-9", dictionaryOf(0.5F)}, {"12", dictionaryOf(0.75F)}, {"gone", nullptr}}, initial);
    EXPECT_EQ(desk.ramp(11).channel(0)[128], middleEntry(0.5F)) << "applied at once";
    EXPECT_EQ(screens[1]->gammaCurve(), initial) << "old-style IDs are not looked for here";
    EXPECT_EQ(screens[2]->gammaCurve(), initial);
    desk.registry.adoptGammaCurveDictionary(PropertyValue::object(), nullptr);
    EXPECT_EQ(whiteOf(*screens[0]), 0.5F) << "nothing to serve with";
    desk.registry.adoptGammaCurveDictionary({{"1-7-9", "no curve"}}, nullptr);
    EXPECT_EQ(whiteOf(*screens[0]), 1) << "all defaults";

    // The stored dictionary also has entries of displays that are not attached.
    const PropertyValue stored = {{"1-7-9", dictionaryOf(0.5F)}, {"elsewhere", "kept as it is"}};
    screens[1]->setGammaCurve(nullptr);
    EXPECT_EQ(desk.registry.gammaCurveDictionaryExtendingDictionary(stored),
              (PropertyValue{{"1-7-9", dictionaryOf(1)},
                             {"600.000000x340.000000-4-9", dictionaryOf(0.125F)},
                             {"elsewhere", "kept as it is"}}));
}

using Ids = std::vector<DisplayID>;

Ids idsOf(const ScreenRegistry::Screens& screens) {
    Ids ids(screens.size());
    std::ranges::transform(screens, ids.begin(), &KVScreen::directDisplayID);
    return ids;
}

TEST(ScreenRegistry, ReusesScreenOfReturningDisplay) {
    Desk desk(threeDisplays);
    EXPECT_EQ(desk.registry.screenWithReferenceID("1-7-9"), nullptr) << "nothing is listed yet";
    const auto before = desk.registry.screens();
    EXPECT_EQ(desk.registry.screenWithReferenceID("1-7-9"), before[0]);
    EXPECT_EQ(desk.registry.screenWithReferenceID("11"), nullptr) << "an old-style ID";
    SimulatedDisplay second = desk.display(12);

    desk.desk.unplug(12);
    desk.registry.updateScreenList();
    EXPECT_THAT(idsOf(desk.registry.screens()), ElementsAre(11, 13));
    EXPECT_EQ(desk.registry.sightedScreens().size(), 3U);

    desk.desk.plug(second);
    desk.registry.updateScreenList();
    EXPECT_EQ(desk.registry.screens()[2], before[1]) << "by its display ID";

    desk.desk.unplug(12);
    second.id = 99;
    desk.desk.plug(second);
    desk.registry.updateScreenList();
    EXPECT_EQ(desk.registry.screens()[2], before[1]) << "by its reference ID, from the last list";
    EXPECT_EQ(before[1]->directDisplayID(), 99U);

    desk.desk.unplug(99);
    desk.registry.updateScreenList();
    second.id = 100;
    desk.desk.plug(second);
    desk.registry.updateScreenList();
    EXPECT_NE(desk.registry.screens()[2], before[1]) << "it was not in the last list";
}

TEST(ScreenRegistry, SharesScreenWithTwinPluggedInLater) {
    constexpr const char* twins = R"([{"id": 1, "model": 4, "vendor": 9},
                                      {"id": 2, "model": 4, "vendor": 9}])";
    Desk both(twins);
    EXPECT_NE(both.registry.screens()[0], both.registry.screens()[1]);

    Desk late(twins);
    const SimulatedDisplay second = late.display(2);
    late.desk.unplug(2);
    late.registry.updateScreenList();
    late.desk.plug(second);
    late.registry.updateScreenList();
    EXPECT_THAT(idsOf(late.registry.screens()), ElementsAre(2, 2)) << "one screen, the later's";
    late.registry.updateScreenList();
    EXPECT_THAT(idsOf(late.registry.screens()), ElementsAre(2, 2)) << "re-pointed for each in turn";
    late.registry.screens()[0]->setGammaCurve(absoluteCurve(0.5F));
    late.registry.screens()[0]->activateAutoApplyGamma();
    for (const DisplayID each : {1U, 2U}) {
        EXPECT_EQ(late.ramp(each).channel(0)[128], middleEntry(0.5F)) << each;
    }
    EXPECT_THAT(idsOf(late.registry.screensWithRect({0, 0, 1920, 1080})), ElementsAre(2))
        << "found where either display is";
}

// The main display is 1080 high. Points and equal rectangles are measured from its lower edge, so
// display 13 below it has negative y; the other look-ups measure from the upper edge.
TEST(ScreenRegistry, FindsScreensByPosition) {
    Desk desk(threeDisplays);
    ScreenRegistry& registry = desk.registry;
    const std::vector<std::pair<Point, Ids>> points{{{0, 1080}, {11}},
                                                    {{1920, 56}, {}},
                                                    {{1920, 57}, {12}},
                                                    {{5, -767}, {13}},
                                                    {{5, -768}, {}}};
    for (const auto& [point, ids] : points) {
        EXPECT_EQ(idsOf(registry.screensWithPoint(point)), ids) << point.x << ", " << point.y;
    }
    EXPECT_THAT(idsOf(registry.screensWithRect({1920, 56, 1280, 1024})), ElementsAre(12));
    EXPECT_THAT(registry.screensWithRect({0, -768, 1024, 767}), IsEmpty());
    EXPECT_THAT(idsOf(registry.screensContainingRect({1920, 0, 1280, 1024})), ElementsAre(12));
    EXPECT_THAT(registry.screensContainingRect({1900, 0, 100, 100}), IsEmpty());
    EXPECT_THAT(idsOf(registry.screensIntersectingRect({1900, 1000, 100, 100})),
                ElementsAre(11, 12));
    const auto second = registry.screens()[1];
    EXPECT_EQ(second->nsscreen()->frame(), (Rectangle{1920, 56, 1280, 1024}));
    EXPECT_EQ(registry.screenWithScreen(second->nsscreen().get()), second);
}

TEST(ScreenRegistry, RetriesReadingAMissingBase) {
    Desk desk(R"([{"id": 1}, {"id": 2, "rampSize": 0}])");
    const auto second = desk.registry.screens()[1];
    EXPECT_EQ(second->baseGamma().sampleCount, 0U);
    desk.desk.setForeignRamp(2, HardwareRamp::straight(256));
    desk.registry.updateScreenList();
    EXPECT_EQ(second->baseGamma().sampleCount, 256U);
    desk.desk.setForeignRamp(2, HardwareRamp(256));
    desk.registry.updateScreenList();
    EXPECT_EQ(second->baseGamma().table.channel(0)[255], 1.0F)
        << "a base that is there is read again only on request";
    desk.desk.unplug(2);
    second->readBaseGamma();
    EXPECT_EQ(second->baseGamma().sampleCount, 256U) << "a display that is gone keeps its base";
    const auto unknown = desk.registry.screenWithDirectDisplayID(77);
    EXPECT_EQ(unknown->baseGamma().sampleCount, 0U);
    EXPECT_EQ(desk.registry.sightedScreens().size(), 2U) << "a screen for no display is not kept";
}

TEST(ReconfigurationCallbacks, MayUnregisterThemselves) {
    Desk desk(threeDisplays);
    std::string calls;
    std::unique_ptr<DisplayService::Subscription> own;
    own = desk.service.registerReconfigurationCallback([&](auto, auto) {
        calls += "own ";
        own.reset();
    });
    const auto other =
        desk.service.registerReconfigurationCallback([&](auto, auto) { calls += "other "; });
    desk.desk.unplug(12);
    EXPECT_EQ(calls, "own other other ");
}

TEST(ReferenceID, UsesSerialNumberIfPresent) {
    const std::vector<std::pair<DisplayIdentity, const char*>> rows{
        {{4294967294U, 7, 9, true, 300, 200}, "4294967294-7-9"},
        {{0, 7, 9, true, 300, 200}, "builtin-7-9"},
        {{4294967295U, 7, 9, true, 300, 200}, "builtin-7-9"},
        {{4294967295U, 4, 9, false, 0, 1.25}, "0.000000x1.250000-4-9"}};
    for (const auto& [identity, text] : rows) {
        EXPECT_EQ(referenceIDFor(identity).text, text);
        EXPECT_EQ(referenceIDFor(identity).isLocallyUnique, text[0] != '4');
    }
}

}  // namespace
}  // namespace tonquil
