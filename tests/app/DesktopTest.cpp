// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint16_t toggleKey = 96;
constexpr std::uint16_t panelKey = 97;

class Desktop : public testing::Test {
 protected:
    void set(std::string_view key, PropertyValue value) {
        bench.preferences.setValue(key, std::move(value));
        bench.loop.runPosted();
    }
    void useHotKeys() {
        bench.preferences.stored = {
            {"UseHotKey", true},   {"UseHotKeyCode", 65536 + toggleKey}, {"UseHotKeyModifiers", 0},
            {"PanelHotKey", true}, {"PanelHotKeyCode", panelKey},        {"ShowAtLaunch", false}};
    }
    ControllerBench bench;
};

TEST_F(Desktop, HasEitherAStatusItemOrPlacesInTheTaskBar) {
    bench.preferences.stored = {{"ShowStatusItem", 2}};
    bench.launchAndSettle();
    const std::vector<std::pair<PropertyValue, Journal>> changes{
        {1, {"not in task bar", "status item", "status active"}},
        {true, {}},
        {0, {"in task bar", "no status item"}},
        {2, {}}};
    for (const auto& [value, expected] : changes) {
        bench.journal.clear();
        set("ShowStatusItem", value);
        std::erase_if(bench.journal,
                      [](const auto& line) { return line == "advanced" || line == "dark"; });
        EXPECT_EQ(bench.journal, expected) << value;
    }
    set("ShowStatusItem", 1);
    bench.journal.clear();
    bench.controller().toggleApplyCorrection();
    EXPECT_THAT(bench.journal, Contains("status inactive"));
}

TEST_F(Desktop, HotKeysAreThoseOfThePreferences) {
    useHotKeys();
    bench.launchAndSettle();
    EXPECT_EQ(bench.hotKeys.ids.size(), 2U);
    bench.hotKeys.press(toggleKey);
    EXPECT_TRUE(bench.controller().applyCorrection()) << "It acts when the keys go up.";
    bench.hotKeys.release(toggleKey);
    EXPECT_FALSE(bench.controller().applyCorrection());

    const int registrations = bench.hotKeys.registrations;
    bench.loop.runPosted();
    EXPECT_EQ(bench.hotKeys.registrations, registrations)
        << "A preference that is not about them must not cost a held key its release.";
    set("UseHotKey", false);
    EXPECT_FALSE(bench.hotKeys.ids.contains(toggleKey));
    EXPECT_TRUE(bench.hotKeys.ids.contains(panelKey));
    bench.controller().setHotKeysSuspended(true);
    EXPECT_THAT(bench.hotKeys.ids, IsEmpty());
    bench.controller().setHotKeysSuspended(false);
    EXPECT_TRUE(bench.hotKeys.ids.contains(panelKey));
    set("PanelHotKeyCode", 0);
    EXPECT_THAT(bench.hotKeys.ids, IsEmpty()) << "Code and modifiers 0 are none.";
    set("PanelHotKeyModifiers", 0x100000);
    EXPECT_TRUE(bench.hotKeys.ids.contains(0)) << "Code 0 is a key.";
}

TEST_F(Desktop, AHotKeyThatIsRefusedIsToldOfUntilItWorks) {
    useHotKeys();
    bench.hotKeys.refused = {toggleKey};
    bench.launchAndSettle();
    EXPECT_EQ(bench.windows.problems[HotKeyRole::ToggleCorrection], "Another program holds it.");
    EXPECT_EQ(bench.windows.problems[HotKeyRole::ShowPanel], "");
    bench.hotKeys.refused.clear();
    set("UseHotKeyCode", toggleKey);
    EXPECT_EQ(bench.windows.problems[HotKeyRole::ToggleCorrection], "");
}

// The slider begins 60 pixels into the panel and is 200 wide: at its middle value the knob is at
// 160, and 24 * 0.7 = 16.8 below its upper edge at 64.
TEST_F(Desktop, ThePanelComesWithItsKnobUnderThePointer) {
    useHotKeys();
    bench.launchAndSettle();
    bench.panel.master.maximum = 4;
    struct Row {
        Point pointer;
        double value;
        Point origin;
        Point movedTo;
    };
    const std::vector<Row> rows{
        {{500, 300}, 2, {340, 219}, {500, 300}}, {{500, 300}, 0, {433, 219}, {500, 300}},
        {{500, 300}, 4, {247, 219}, {500, 300}}, {{5, 5}, 2, {0, 0}, {160, 81}},
        {{995, 795}, 2, {680, 330}, {840, 411}}, {{1005, 300}, 2, {1000, 219}, {1160, 300}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pointer.x);
        bench.panel.place = {100, 100, 320, 470};
        bench.panel.isShown = false;
        bench.panel.master.value = row.value;
        bench.windowSystem.pointer = row.pointer;
        bench.hotKeys.press(panelKey);
        EXPECT_TRUE(bench.panel.isShown);
        EXPECT_EQ((Point{bench.panel.place.x, bench.panel.place.y}), row.origin);
        EXPECT_EQ(bench.windowSystem.pointer, row.movedTo);
        bench.loop.advance(milliseconds(401));
        bench.hotKeys.release(panelKey);
        EXPECT_FALSE(bench.panel.isShown);
        EXPECT_EQ(bench.panel.place.x, 100);
        EXPECT_EQ(bench.windowSystem.pointer, row.pointer);
    }
}

TEST_F(Desktop, ATapLeavesThePanelAndAMovedPointerStays) {
    useHotKeys();
    bench.launchAndSettle();
    const Rectangle before = bench.panel.place;
    bench.hotKeys.press(panelKey);
    bench.loop.advance(milliseconds(400));
    bench.hotKeys.release(panelKey);
    EXPECT_TRUE(bench.panel.isShown);
    EXPECT_NE(bench.panel.place, before);

    bench.hotKeys.press(panelKey);
    EXPECT_FALSE(bench.panel.isShown) << "Where it is shown, the key hides it.";
    const Rectangle tapped = bench.panel.place;
    bench.loop.advance(milliseconds(500));
    bench.hotKeys.release(panelKey);
    EXPECT_EQ(bench.panel.place, tapped);

    bench.hotKeys.press(panelKey);
    bench.windowSystem.pointer = {11, 22};
    bench.loop.advance(milliseconds(500));
    bench.hotKeys.release(panelKey);
    EXPECT_FALSE(bench.panel.isShown);
    EXPECT_EQ(bench.windowSystem.pointer, (Point{11, 22}));
}

TEST_F(Desktop, TheTargetsComeBackOnlyIfThePreferencesWereThereBeforeThem) {
    bench.launchAndSettle();
    bench.controller().openTargetWindow();
    bench.controller().openPreferences();
    EXPECT_EQ(bench.controller().restorableWindows(),
              (PropertyValue{{"Preferences", PropertyValue::object()}}));

    // The preferences are open, so the next program's target window can come back.
    bench.launchAndSettle();
    EXPECT_TRUE(bench.controller().restoreWindowWithIdentifier("Target", {{"kind", 1}}));
    EXPECT_EQ(bench.targets.shown.back(), "floating 1");
    EXPECT_EQ(bench.controller().restorableWindows()["Target"]["kind"], 1);
    EXPECT_FALSE(bench.controller().restoreWindowWithIdentifier("Other", {}));
}

TEST_F(Desktop, ARivalIsWarnedOfBeforeAnythingElse) {
    bench.programs.installed = InstalledProgram{.name = "Rival", .icon = {}};
    bench.alerts.button = 1;
    bench.launch();
    EXPECT_TRUE(bench.hasEnded);
    bench.controller().applicationWillTerminate();
    EXPECT_THAT(bench.journal, ElementsAre("about 234"));
    EXPECT_THAT(bench.preferences.stored, IsEmpty());
    bench.alerts.button = 0;
    bench.launch();
    bench.launch();
    EXPECT_EQ(bench.alerts.messages.size(), 2U);
}

}  // namespace
}  // namespace tonquil
