// SPDX-License-Identifier: MIT
#include "screens/ScreenRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/ReferenceID.h"
#include "tests/screens/Desk.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<DisplayID> idsOf(const ScreenRegistry::Screens& screens) {
    std::vector<DisplayID> ids;
    for (const auto& screen : screens) {
        ids.push_back(screen->directDisplayID());
    }
    return ids;
}

TEST(ScreenRegistry, FindsNothingBeforeTheFirstUpdateAndListsOnDemand) {
    Desk desk(threeDisplays);
    EXPECT_EQ(desk.registry.screenWithReferenceID("1-7-9"), nullptr);
    EXPECT_EQ(desk.registry._sightedScreenWithDirectDisplayID(11), nullptr);
    EXPECT_THAT(desk.registry.sightedScreens(), IsEmpty());
    EXPECT_THAT(idsOf(desk.registry.screens()), ElementsAre(11, 12, 13));
    EXPECT_EQ(desk.registry.screenWithReferenceID("1-7-9"), desk.registry.screens()[0]);
    EXPECT_EQ(desk.registry.screenWithReferenceID("1-7-9 "), nullptr);
    EXPECT_EQ(desk.registry.screenWithReferenceID("11"), nullptr) << "an old-style ID";
}

TEST(ScreenRegistry, GivesADisplayThatComesBackItsScreen) {
    Desk desk(threeDisplays);
    const auto before = desk.registry.screens();
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

TEST(ScreenRegistry, TellsTwinsApartOnlyWhenBothAreThereFromTheStart) {
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
    const auto& screens = late.registry.screens();
    ASSERT_EQ(screens.size(), 2U);
    EXPECT_EQ(screens[0], screens[1]);
    EXPECT_EQ(screens[0]->directDisplayID(), 2U) << "the later in the service's order";
    EXPECT_EQ(late.registry.sightedScreens().size(), 1U);
    late.registry.updateScreenList();
    EXPECT_EQ(late.registry.screens()[0]->directDisplayID(), 2U) << "re-pointed for each in turn";
}

TEST(ScreenRegistry, ListsNoMoreThan25Displays) {
    std::string json = "[";
    for (int i = 0; i < 30; ++i) {
        json += std::string(i == 0 ? "" : ",") + R"({"rampSize": 2, "serial": )" +
                std::to_string(i + 1) + "}";
    }
    Desk desk(json + "]");
    EXPECT_EQ(desk.registry.screens().size(), 25U);
    EXPECT_EQ(desk.registry.screens()[24]->referenceID(), "25-0-0");
    Desk none("[]");
    EXPECT_THAT(none.registry.screens(), IsEmpty());
}

TEST(ScreenRegistry, LooksUpPointsAndRectanglesBottomUp) {
    // The main display is 1080 high; display 13 lies below it and so at negative heights.
    Desk desk(threeDisplays);
    struct Row {
        Point point;
        std::vector<DisplayID> ids;
    };
    const std::vector<Row> rows{{{0, 1080}, {11}},   {{0, 0.5}, {11}},  {{1919, 1}, {11}},
                                {{1920, 100}, {12}}, {{1920, 56}, {}},  {{1920, 57}, {12}},
                                {{5, 0}, {13}},      {{5, -767}, {13}}, {{5, -768}, {}},
                                {{-1, 5}, {}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.point.x << ", " << row.point.y);
        EXPECT_EQ(idsOf(desk.registry.screensWithPoint(row.point)), row.ids);
    }
    EXPECT_THAT(idsOf(desk.registry.screensWithRect({1920, 56, 1280, 1024})), ElementsAre(12));
    EXPECT_THAT(idsOf(desk.registry.screensWithRect({0, -768, 1024, 768})), ElementsAre(13));
    EXPECT_THAT(desk.registry.screensWithRect({0, -768, 1024, 767}), IsEmpty());
    EXPECT_THAT(desk.registry.screensWithRect({}), IsEmpty());
}

TEST(ScreenRegistry, LooksUpContainedAndIntersectingRectanglesTopDown) {
    Desk desk(threeDisplays);
    EXPECT_THAT(idsOf(desk.registry.screensContainingRect({1920, 0, 1280, 1024})), ElementsAre(12));
    EXPECT_THAT(desk.registry.screensContainingRect({1900, 0, 100, 100}), IsEmpty());
    EXPECT_THAT(desk.registry.screensContainingRect({5, 5, 0, 0}), IsEmpty());
    EXPECT_THAT(desk.registry.screensIntersectingRect({3200, 0, 5, 5}), IsEmpty());
    EXPECT_THAT(desk.registry.screensIntersectingRect({1930, 1024, 5, 5}), IsEmpty());
    EXPECT_THAT(idsOf(desk.registry.screensIntersectingRect({1900, 1000, 100, 100})),
                ElementsAre(11, 12));
    EXPECT_THAT(idsOf(desk.registry.screensIntersectingRect({1000, 1079, 30, 2})),
                ElementsAre(11, 13));
}

TEST(ScreenRegistry, FindsTheScreenOfAPlatformScreen) {
    Desk desk(threeDisplays);
    const auto second = desk.registry.screens()[1];
    ASSERT_TRUE(second->nsscreen());
    EXPECT_EQ(second->nsscreen()->frame(), (Rectangle{1920, 56, 1280, 1024}));
    EXPECT_EQ(second->nsscreen(), second->nsscreen()) << "the first one found is kept";
    // The centre of the frame is taken as it is, and so is 568 of 1024 here.
    EXPECT_EQ(desk.registry.screenWithScreen(second->nsscreen().get()), second);
    EXPECT_EQ(desk.registry.screenWithScreen(nullptr), desk.registry.screens()[0])
        << "the empty frame has its centre at the origin";

    SimulatedDisplay late = desk.display(12);
    desk.desk.unplug(12);
    EXPECT_TRUE(second->nsscreen()->frame().isEmpty());
    Desk empty("[]");
    EXPECT_EQ(empty.registry.screenWithScreen(nullptr), nullptr);
    KVScreen gone(empty.service, 5);
    EXPECT_EQ(gone.nsscreen(), nullptr);
    late.id = 5;
    empty.desk.plug(late);
    EXPECT_TRUE(gone.nsscreen()) << "it is looked for again";
}

TEST(ScreenRegistry, ReadsTheBaseOfADisplayThatCouldNotBeReadBefore) {
    Desk desk(R"([{"id": 1}, {"id": 2, "rampSize": 0}])");
    EXPECT_EQ(desk.registry.screens()[1]->baseGamma().sampleCount, 0U);
    desk.desk.setForeignRamp(2, HardwareRamp::straight(256));
    desk.registry.updateScreenList();
    EXPECT_EQ(desk.registry.screens()[1]->baseGamma().sampleCount, 256U);
    desk.desk.setForeignRamp(2, HardwareRamp(256));
    desk.registry.updateScreenList();
    EXPECT_EQ(desk.registry.screens()[1]->baseGamma().table.channel(0)[255], 1.0F)
        << "a base that is there is read again only on request";
}

TEST(ScreenRegistry, DoesNotKeepAScreenMadeForAnUnknownDisplay) {
    Desk desk(threeDisplays);
    const auto first = desk.registry.screens()[0];
    EXPECT_EQ(desk.registry.screenWithDirectDisplayID(11), first);
    const auto unknown = desk.registry.screenWithDirectDisplayID(77);
    ASSERT_TRUE(unknown);
    EXPECT_NE(unknown, desk.registry.screenWithDirectDisplayID(77));
    EXPECT_EQ(desk.registry.sightedScreens().size(), 3U);
    EXPECT_EQ(unknown->baseGamma().sampleCount, 0U);
    EXPECT_EQ(KVScreen(desk.service).directDisplayID(), 11U) << "the main display";
}

TEST(ReconfigurationCallbacks, MayEndTheirOwnRegistration) {
    Desk desk(threeDisplays);
    int calls = 0;
    int others = 0;
    std::unique_ptr<DisplayService::Subscription> own;
    own = desk.service.registerReconfigurationCallback([&](DisplayID, ReconfigurationFlags) {
        ++calls;
        own.reset();
    });
    const auto other = desk.service.registerReconfigurationCallback(
        [&](DisplayID, ReconfigurationFlags) { ++others; });
    desk.desk.unplug(12);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(others, 2);
}

TEST(ReferenceID, UsesTheSerialNumberWhereThereIsOne) {
    struct Row {
        DisplayIdentity identity;
        const char* text;
        bool isLocal;
    };
    const std::vector<Row> rows{
        {{1, 7, 9, true, 300, 200}, "1-7-9", false},
        {{4294967294U, 7, 9, false, 300, 200}, "4294967294-7-9", false},
        {{0, 7, 9, true, 300, 200}, "builtin-7-9", true},
        {{4294967295U, 7, 9, true, 300, 200}, "builtin-7-9", true},
        {{0, 4, 9, false, 600, 340}, "600.000000x340.000000-4-9", true},
        {{4294967295U, 4294967295U, 9, false, 0, 1.25}, "0.000000x1.250000-4294967295-9", true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const ReferenceID reference = referenceIDFor(row.identity);
        EXPECT_EQ(reference.text, row.text);
        EXPECT_EQ(reference.isLocallyUnique, row.isLocal);
    }
}

}  // namespace
}  // namespace tonquil
