// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Requests.h"
#include "app/desktop/LoginItem.h"
#include "app/desktop/TextFormat.h"
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
    void launchWithHotKeys() {
        bench.preferences.stored = {
            {"UseHotKey", true},   {"UseHotKeyCode", 65536 + toggleKey}, {"UseHotKeyModifiers", 0},
            {"PanelHotKey", true}, {"PanelHotKeyCode", panelKey},        {"ShowAtLaunch", false}};
        bench.launchAndSettle();
    }
    ControllerBench bench;
};

TEST_F(Desktop, HasEitherAStatusItemOrAPlaceInTheTaskBar) {
    bench.preferences.stored = {{"ShowStatusItem", 2}};
    bench.launchAndSettle();
    const std::vector<std::pair<PropertyValue, Journal>> changes{
        {1, {"advanced", "dark", "not in task bar", "status item", "status active"}},
        {true, {"advanced", "dark"}},
        {0, {"advanced", "dark", "in task bar", "no status item"}}};
    for (const auto& [value, expected] : changes) {
        bench.journal.clear();
        bench.set("ShowStatusItem", value);
        EXPECT_EQ(bench.journal, expected) << value;
    }
    bench.set("ShowStatusItem", 1);
    bench.controller().toggleApplyCorrection();
    EXPECT_THAT(bench.journal, Contains("status inactive"));
}

TEST_F(Desktop, HotKeysFollowThePreferences) {
    bench.hotKeys.refused = {toggleKey};
    launchWithHotKeys();
    EXPECT_EQ(bench.desktop.problems[HotKeyRole::ToggleCorrection], "Another program holds it.");
    EXPECT_EQ(bench.desktop.problems[HotKeyRole::ShowPanel], "");
    bench.hotKeys.refused.clear();
    bench.set("UseHotKeyCode", toggleKey);
    EXPECT_EQ(bench.desktop.problems[HotKeyRole::ToggleCorrection], "");
    EXPECT_EQ(bench.hotKeys.ids.size(), 2U);

    const int registrations = bench.hotKeys.registrations;
    bench.hotKeys.press(toggleKey);
    EXPECT_TRUE(bench.controller().applyCorrection()) << "It acts when the keys go up.";
    bench.hotKeys.release(toggleKey);
    EXPECT_FALSE(bench.controller().applyCorrection());
    bench.loop.runPosted();
    EXPECT_EQ(bench.hotKeys.registrations, registrations)
        << "A preference that is not about them must not cost a held key its release.";
    bench.set("UseHotKey", false);
    EXPECT_FALSE(bench.hotKeys.ids.contains(toggleKey));
    EXPECT_TRUE(bench.hotKeys.ids.contains(panelKey));
    bench.controller().setHotKeysSuspended(true);
    EXPECT_THAT(bench.hotKeys.ids, IsEmpty());
    bench.controller().setHotKeysSuspended(false);
    EXPECT_TRUE(bench.hotKeys.ids.contains(panelKey));
    bench.set("PanelHotKeyCode", 0);
    EXPECT_THAT(bench.hotKeys.ids, IsEmpty()) << "Code and modifiers 0 are none.";
    bench.set("PanelHotKeyModifiers", 0x100000);
    EXPECT_TRUE(bench.hotKeys.ids.contains(0)) << "Code 0 is a key.";
}

// The slider begins 60 pixels into the panel and is 200 wide: at its middle value the knob is at
// 160, and 24 * 0.7 = 16.8 below its upper edge at 64.
TEST_F(Desktop, HoldingTheKeyShowsThePanelWithItsKnobUnderThePointer) {
    launchWithHotKeys();
    bench.panel.master.maximum = 4;
    struct Row {
        Point pointer;
        double value;
        Point origin;
        Point movedTo;
    };
    const std::vector<Row> rows{{{500, 300}, 0, {433, 219}, {500, 300}},
                                {{500, 300}, 4, {247, 219}, {500, 300}},
                                {{5, 5}, 2, {0, 0}, {160, 81}},
                                {{995, 795}, 2, {680, 330}, {840, 411}},
                                {{1005, 300}, 2, {1000, 219}, {1160, 300}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.pointer.x << " at " << row.value);
        bench.panel.place = {100, 100, 320, 470};
        bench.panel.isShown = false;
        bench.panel.master.value = row.value;
        bench.desktop.pointer = row.pointer;
        bench.hotKeys.press(panelKey);
        EXPECT_TRUE(bench.panel.isShown);
        EXPECT_EQ((Point{bench.panel.place.x, bench.panel.place.y}), row.origin);
        EXPECT_EQ(bench.desktop.pointer, row.movedTo);
        bench.hotKeys.time += milliseconds(401);
        bench.hotKeys.release(panelKey);
        EXPECT_FALSE(bench.panel.isShown);
        EXPECT_EQ(bench.panel.place.x, 100);
        EXPECT_EQ(bench.desktop.pointer, row.pointer);
    }
}

TEST_F(Desktop, ATapLeavesThePanelAndAMovedPointerStays) {
    launchWithHotKeys();
    const Rectangle before = bench.panel.place;
    bench.hotKeys.press(panelKey);
    bench.hotKeys.time += milliseconds(400);
    bench.loop.advance(milliseconds(2000));  // Showing the panel takes a busy machine long.
    bench.hotKeys.release(panelKey);
    EXPECT_TRUE(bench.panel.isShown);
    EXPECT_NE(bench.panel.place, before);

    bench.hotKeys.press(panelKey);
    EXPECT_FALSE(bench.panel.isShown) << "Where it is shown, the key hides it.";
    const Rectangle tapped = bench.panel.place;
    bench.hotKeys.time += milliseconds(500);
    bench.hotKeys.release(panelKey);
    EXPECT_EQ(bench.panel.place, tapped);

    bench.hotKeys.press(panelKey);
    bench.desktop.pointer = {11, 22};
    bench.hotKeys.time += milliseconds(500);
    bench.hotKeys.release(panelKey);
    EXPECT_FALSE(bench.panel.isShown);
    EXPECT_EQ(bench.desktop.pointer, (Point{11, 22}));
}

TEST_F(Desktop, TargetsComeBackOnlyIfThePreferencesWereOpenBeforeThem) {
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

TEST_F(Desktop, WarnsOfARivalBeforeAnythingElseUntilThePersonContinues) {
    bench.desktop.installed = "gammastep.desktop";
    bench.alerts.answer = 1;
    bench.launch();
    EXPECT_TRUE(bench.hasEnded);
    bench.controller().applicationWillTerminate();
    EXPECT_THAT(bench.journal, ElementsAre("about 234"));
    EXPECT_THAT(bench.preferences.stored, IsEmpty());
    bench.alerts.answer = 0;
    bench.hasEnded = false;
    bench.launch();
    bench.launch();
    EXPECT_FALSE(bench.hasEnded);
    ASSERT_EQ(bench.alerts.shown.size(), 2U);
    const Alert& alert = bench.alerts.shown.back();
    EXPECT_EQ(formattedText(alert.informativeText, alert.informativeArguments),
              "[Tonquil installed, might interfer Dusk.]");
}

TEST(TextFormat, PutsArgumentsInTheirPlaces) {
    const std::vector<std::string> two = {"a", "%@"};
    EXPECT_EQ(formattedText("%@ (%@), 100 %%", two), "a (%@), 100 %");
    EXPECT_EQ(formattedText("%2$@ before %1$@", two), "%@ before a");
    constexpr const char* unknown = "%3$@ %0$@ %99999999999999999999$@ %1$ %1 %d %";
    EXPECT_EQ(formattedText(unknown, two), unknown);
}

TEST(LoginItem, IsReliableWhereProgramsAreInstalled) {
    for (const char* const folder : {"/usr/local/bin", "/opt/tonquil/bin", "/home/kim/.local/bin",
                                     "/home/kim/Applications", "/media/disk/Applications"}) {
        EXPECT_TRUE(isInstalledReliably(std::string(folder) + "/tonquil", "/home/kim")) << folder;
    }
    for (const char* const folder :
         {"/usrlocal", "/usr/../srv", "/home/lee/.local/bin", "/home/kim/tonquil/build/bin"}) {
        EXPECT_FALSE(isInstalledReliably(std::string(folder) + "/tonquil", "/home/kim")) << folder;
    }
    EXPECT_FALSE(isInstalledReliably(".local/bin/tonquil", ""));
}

TEST(CommandLine, IsReadAndPassedOn) {
    const std::vector<const char*> arguments{"--on",         "-session",      "10ab",
                                             "--show-panel", "/a\n100%nfile", "--targets=grayscale",
                                             "--display",    "101-0-0"};
    const Request on{.kind = Request::Kind::On};
    const Request showPanel{.kind = Request::Kind::ShowPanel};
    const Request cover{
        .kind = Request::Kind::Targets, .target = TargetKind::Grayscale, .referenceID = "101-0-0"};
    const Request open{.kind = Request::Kind::Open, .file = "/a\n100%nfile"};
    const auto line = readCommandLine(arguments);
    ASSERT_TRUE(line);
    EXPECT_THAT(line->requests, ElementsAre(on, showPanel, open, cover));
    EXPECT_THAT(requestsFromText(textFromRequests(line->requests)).value(),
                ElementsAre(on, showPanel, open, cover));
    EXPECT_THAT(readCommandLine({})->requests, ElementsAre(Request{}));
    for (const char* const refused : {"--of", "--", "--display"}) {
        EXPECT_FALSE(readCommandLine(std::vector{refused, "101-0-0"})) << refused;
    }
    EXPECT_FALSE(requestsFromText("on\n\n"));
}

TEST(Requests, AreCarriedOutInTheirOrder) {
    ControllerBench bench;
    bench.launchAndSettle();
    carryOut({{Request::Kind::Off}, {Request::Kind::Toggle}, {Request::Kind::Toggle}},
             bench.controller());
    EXPECT_FALSE(bench.controller().applyCorrection());
    carryOut({{Request::Kind::On}, {Request::Kind::Quit}}, bench.controller());
    EXPECT_TRUE(bench.controller().applyCorrection());
    EXPECT_TRUE(bench.hasEnded);

    carryOut({{.kind = Request::Kind::Targets},
              {.kind = Request::Kind::Targets, .target = TargetKind::Grayscale},
              {.kind = Request::Kind::Targets, .referenceID = "102-0-0"},
              {.kind = Request::Kind::Targets, .referenceID = "9"}},
             bench.controller());
    EXPECT_THAT(bench.targets.shown, ElementsAre("floating", "floating 1", "display 2 0"));
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("No such display"));
}

}  // namespace
}  // namespace tonquil
