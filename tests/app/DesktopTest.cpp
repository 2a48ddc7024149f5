// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Requests.h"
#include "foundation/TextFormat.h"
#include "tests/app/ControllerBench.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
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

TEST_F(Desktop, RegistersHotKeysFromPreferences) {
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

// Where the knob ends up on a real desktop is covered by the tests of the whole program.
TEST_F(Desktop, TapKeepsPanelAndHoldRestoresEverything) {
    launchWithHotKeys();
    const Rectangle before = bench.panel.place;
    bench.hotKeys.press(panelKey);
    bench.hotKeys.time += milliseconds(400);
    bench.loop.advance(milliseconds(2000));  // Showing the panel is slow on a busy machine.
    bench.hotKeys.release(panelKey);
    EXPECT_TRUE(bench.panel.isShown);
    EXPECT_NE(bench.panel.place, before);
    bench.hotKeys.press(panelKey);
    EXPECT_FALSE(bench.panel.isShown) << "Where it is shown, the key hides it.";
    bench.hotKeys.release(panelKey);

    bench.panel.place = before;
    for (const bool isMoved : {false, true}) {
        bench.desktop.pointer = {5, 5};
        bench.hotKeys.press(panelKey);
        EXPECT_NE(bench.desktop.pointer, (Point{5, 5})) << "The knob stays on the display.";
        bench.desktop.pointer = isMoved ? Point{11, 22} : *bench.desktop.pointer;
        bench.hotKeys.time += milliseconds(401);
        bench.hotKeys.release(panelKey);
        EXPECT_FALSE(bench.panel.isShown);
        EXPECT_EQ(bench.panel.place, before);
        EXPECT_EQ(bench.desktop.pointer, isMoved ? (Point{11, 22}) : (Point{5, 5}));
    }
    // Where nothing tells the pointer's place, the panel comes and goes where it is.
    bench.desktop.pointer.reset();
    bench.hotKeys.press(panelKey);
    EXPECT_TRUE(bench.panel.isShown);
    bench.hotKeys.time += milliseconds(401);
    bench.hotKeys.release(panelKey);
    EXPECT_FALSE(bench.panel.isShown);
    EXPECT_EQ(bench.panel.place, before);
    EXPECT_EQ(bench.desktop.pointer, std::nullopt);
}

TEST_F(Desktop, WarnsOfRivalFirstUntilUserContinues) {
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
    EXPECT_EQ(bench.alerts.shown.size(), 2U);
}

TEST(TextFormat, FillsPlaceholdersWithArguments) {
    const std::vector<std::string> two = {"a", "%@"};
    EXPECT_EQ(formattedText("%@ (%@), 100 %%", two), "a (%@), 100 %");
    EXPECT_EQ(formattedText("%2$@ before %1$@", two), "%@ before a");
    EXPECT_EQ(formattedText("%3$@ %0$@ %1$ %", two), "%3$@ %0$@ %1$ %");
}

TEST(CommandLine, ParsesAndSerialisesRequests) {
    const std::vector<const char*> arguments{
        "--on",      "-session", "10ab", "--show-panel", "/a\n100%nfile", "--targets=grayscale",
        "--display", "101-0-0",  "--",   "--on"};
    const Request on{.kind = Request::Kind::On};
    const Request showPanel{.kind = Request::Kind::ShowPanel};
    const Request cover{
        .kind = Request::Kind::Targets, .target = TargetKind::Grayscale, .referenceID = "101-0-0"};
    const Request open{.kind = Request::Kind::Open, .file = "/a\n100%nfile"};
    const auto line = readCommandLine(arguments);
    ASSERT_TRUE(line);
    const Request dashed{.kind = Request::Kind::Open,
                         .file = std::filesystem::current_path() / "--on"};
    EXPECT_THAT(line->requests, ElementsAre(on, showPanel, open, cover, dashed));
    EXPECT_EQ(requestsFromText(textFromRequests(line->requests)).value(), line->requests);
    EXPECT_THAT(readCommandLine({})->requests, ElementsAre(Request{}));
    for (const char* const refused : {"--of", "-", "--display"}) {
        EXPECT_FALSE(readCommandLine(std::vector{refused, "101-0-0"})) << refused;
    }
    EXPECT_FALSE(requestsFromText("on\n\n"));
}

TEST_F(Desktop, AsksForKeysThatWereNeverRecordedWhereDesktopGivesThem) {
    bench.hotKeys.isDesktop = true;
    bench.preferences.stored = {{"UseHotKey", true}, {"PanelHotKey", true}};
    bench.launchAndSettle();
    EXPECT_EQ(bench.hotKeys.ids.size(), 2U);
}

TEST(Requests, RunInOrder) {
    ControllerBench bench;
    bench.launchAndSettle();
    carryOut({{Request::Kind::Off},
              {Request::Kind::Toggle},
              {Request::Kind::Toggle},
              {.kind = Request::Kind::Targets, .referenceID = "102-0-0"},
              {.kind = Request::Kind::Targets, .referenceID = "9"}},
             bench.controller());
    EXPECT_FALSE(bench.controller().applyCorrection());
    EXPECT_THAT(bench.targets.shown, ElementsAre("display 2 0"));
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("No such display"));
}

}  // namespace
}  // namespace tonquil
