// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "app/Requests.h"
#include "colourfiles/ExportedTable.h"
#include "plist/PropertyListWriter.h"
#include "settings/Settings.h"
#include "tests/app/ControllerBench.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Files : public testing::Test {
 protected:
    Files() { bench.launchAndSettle(); }

    [[nodiscard]] std::filesystem::path fileWith(const std::string& bytes) const {
        static int count = 0;
        std::filesystem::path file = folder.path() / ("file" + std::to_string(++count));
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }
    [[nodiscard]] std::filesystem::path fileWith(const PropertyValue& value) const {
        return fileWith(writePropertyList(value).value());
    }
    void open(const std::filesystem::path& file) {
        bench.controller().openFile(file);
        bench.loop.runPosted();
    }
    /// A curve that its red black level identifies.
    [[nodiscard]] static PropertyValue curve(float red) {
        return TQExtendedGammaCurve(TQExtendedGammaCurve::Masters{},
                                    KVGammaPoint::gammaPointWithRed(red, 0, 0), nullptr, nullptr,
                                    KVBlendingModeBaseTable)
            .gammaCurveDictionary();
    }

    const ScratchFolder folder;
    ControllerBench bench;
};

TEST_F(Files, WithOneCurveApplyToDisplayUnderPanel) {
    open(fileWith(curve(0.25F)));
    EXPECT_EQ(bench.red(left), 0.25F);
    EXPECT_EQ(bench.red(right), 0);
    EXPECT_EQ(bench.panel.shown[PanelSlider::BlackRed], 0.25F);
    bench.controller().undo();
    EXPECT_EQ(bench.red(left), 0);
    // Opening the same values again creates no undo step.
    open(fileWith(curve(0)));
    EXPECT_FALSE(bench.panel.canUndo);
}

TEST_F(Files, WithoutDictionaryAreRawTablesWithIgnoredTail) {
    const auto list = writePropertyList(PropertyValue::array({std::string(768, 'x')})).value();
    const auto huge = fileWith(std::string(std::size_t{2} << 20U, '\x40'));
    for (const auto& file : {fileWith(std::string(768, '\x40')), fileWith(list), huge}) {
        SCOPED_TRACE(file);
        bench.edit(PanelSlider::BlackRed, 0.5F);
        open(file);
        EXPECT_EQ(bench.panel.shown, PanelValues{});
        bench.controller().undo();
        EXPECT_EQ(bench.red(left), 0.5F);
    }
    EXPECT_THAT(bench.dialogs.alerts, IsEmpty());
    EXPECT_EQ(bench.controller().recentFiles().size(), 3U);
}

TEST_F(Files, WithSeveralCurvesApplyByDisplayAndWaitForUnplugged) {
    const auto file = fileWith(PropertyValue{{"Format", 1},
                                             {"Screens",
                                              {{ControllerBench::referenceID(left), curve(0.25F)},
                                               {std::to_string(right), curve(0.5F)},
                                               {"9-9-9", curve(0.75F)},
                                               {"damaged", "text"}}}});
    open(file);
    EXPECT_EQ(bench.red(left), 0.25F);
    EXPECT_EQ(bench.red(right), 0.5F) << "Found by its old ID.";
    const PropertyValue stored = bench.preferences.stored["Screens"];
    EXPECT_EQ(stored["9-9-9"], curve(0.75F));
    EXPECT_FALSE(stored.contains("damaged"));
    EXPECT_THAT(bench.controller().recentFiles(), ElementsAre(file));
    EXPECT_THAT(bench.dialogs.alerts, IsEmpty());
    bench.controller().setApplyCorrection(false);
    const int restored = bench.firstEntry(left);
    open(file);
    EXPECT_GT(bench.firstEntry(left), restored) << "Applied even while the correction is off.";
}

TEST_F(Files, ForUnpluggedDisplaysAreReportedAndKept) {
    bench.desk.unplug(right);
    bench.edit(PanelSlider::BlackRed, 0.125F);
    open(fileWith(PropertyValue{
        {"Format", 1}, {"Screens", {{ControllerBench::referenceID(right), curve(0.5F)}}}}));
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("No Matching Screens"));
    EXPECT_EQ(bench.red(left), 0.125F);
    EXPECT_EQ(bench.red(right), 0.5F) << "It was here earlier in this run.";
    open(fileWith(PropertyValue{{"Format", 1}, {"Screens", {{"9-9-9", curve(0.25F)}}}}));
    bench.controller().undo();
    EXPECT_EQ(bench.red(right), 0) << "A file that matches nothing is no step.";
    bench.controller().redo();
    EXPECT_THAT(bench.controller().recentFiles(), IsEmpty());
    bench.desk.plug(ControllerBench::makeDisplay(right, 1000));
    bench.controller().applicationWillTerminate();
    bench.launchAndSettle();
    EXPECT_EQ(bench.red(right), 0.5F);
}

TEST_F(Files, OverrideRecoveredCurvesAfterCrash) {
    bench.movePanel(1100);
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.desk.unplug(right);
    ASSERT_TRUE(bench.desktop.recovery.contains(ControllerBench::referenceID(right)));
    open(fileWith(PropertyValue{
        {"Format", 1}, {"Screens", {{ControllerBench::referenceID(right), curve(0.5F)}}}}));
    bench.desk.plug(ControllerBench::makeDisplay(right, 1000));
    bench.launchAndSettle();  // The previous run crashed.
    EXPECT_EQ(bench.red(right), 0.5F);
}

TEST_F(Files, WithoutSettingsChangeNothing) {
    bench.edit(PanelSlider::BlackRed, 0.25F);
    PropertyValue many = {{"Format", 1}};
    for (int display = 0; display <= 256; ++display) {
        many["Screens"][std::to_string(display)] = PropertyValue::object();
    }
    for (const auto& file :
         {folder.path() / "missing", fileWith(std::string(767, 'x')), fileWith(many),
          fileWith("<?xml version=\"1.0\"?><plist><dict>" + std::string(1000, ' '))}) {
        SCOPED_TRACE(file);
        bench.dialogs.alerts.clear();
        open(file);
        EXPECT_EQ(bench.red(left), 0.25F);
        EXPECT_THAT(bench.dialogs.alerts, ElementsAre("The file was not opened"));
    }
    many["Screens"].erase("256");
    EXPECT_TRUE(succeeded(readSettingsFile(fileWith(many)))) << "Just few enough.";
}

TEST_F(Files, SaveInChosenFormat) {
    const auto file = fileWith(curve(0.25F));
    bench.dialogs.file = folder.path() / "one.tonquil";
    bench.dialogs.whileUp = [&] { open(file); };
    bench.controller().saveGamma();
    EXPECT_EQ(std::get<SingleDisplaySettings>(readSettingsFile(bench.dialogs.file).value()).curve,
              curve(0.25F))
        << "What was opened while the dialog was up.";

    bench.dialogs.file = folder.path() / "all.tonquil-screens";
    bench.dialogs.format = SettingsFormat::MultiDisplay;
    bench.controller().saveGamma();
    EXPECT_EQ(bench.preferences.stored["SaveFormat"], 1);
    const auto all = std::get<MultiDisplaySettings>(readSettingsFile(bench.dialogs.file).value());
    EXPECT_EQ(all.screens.size(), 4U) << "Each display under both of its IDs.";
    EXPECT_EQ(all.screens[ControllerBench::referenceID(left)], curve(0.25F));
    EXPECT_EQ(all.screens[std::to_string(left)], curve(0.25F));
}

TEST_F(Files, ReportFailedSaveUnlessOldFileRemains) {
    std::filesystem::create_directory(folder.path() / "folder");
    // An existing file is unchanged, so no alert is needed.
    for (const auto& [name, alerts] : {std::pair("no/such/folder", 1U), {"folder", 0U}}) {
        SCOPED_TRACE(name);
        bench.dialogs.alerts.clear();
        bench.log.clear();
        bench.dialogs.file = folder.path() / name;
        bench.controller().saveGamma();
        EXPECT_EQ(bench.dialogs.alerts.size(), alerts);
        EXPECT_EQ(bench.log.size(), 1U);
        EXPECT_THAT(bench.controller().recentFiles(), IsEmpty());
    }
}

TEST_F(Files, WithCalibrationStayOnDisplayUntilMadeEditable) {
    // An absolute curve with black at a quarter, and a step that no curve has.
    GammaTable table;
    const TQExtendedGammaCurve quarter({.black = 0.25F}, nullptr, nullptr, nullptr, 0);
    quarter.flatGammaCurve()->_applyGammaValues(table, 256);
    table.channel(2)[255] = 0;
    const auto text = exportedTable(ExportFormat::Cal, table, 256, {.name = "", .time = 0}).value();
    const int entry = 16384;
    open(fileWith(std::string(text.begin(), text.end())));
    EXPECT_EQ(bench.firstEntry(left), entry);
    EXPECT_EQ(bench.firstEntry(right), 0);
    EXPECT_TRUE(bench.controller().canMakeEditable());
    bench.loop.advance(std::chrono::milliseconds(500));
    bench.launchAndSettle();  // The previous run crashed.
    EXPECT_EQ(bench.firstEntry(left), entry);
    bench.dialogs.format = SettingsFormat::Cal;
    bench.dialogs.file = folder.path() / "again.cal";
    bench.controller().saveGamma();
    EXPECT_TRUE(haveSameBits(
        std::get<CalibrationSettings>(readSettingsFile(bench.dialogs.file).value()).table,
        std::get<CalibrationSettings>(readSettings(text).value()).table));

    bench.controller().makeEditable();
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("The table can be edited now"));
    EXPECT_NEAR(bench.panel.shown[PanelSlider::MasterBlack], 0.25F, 0.02F);
    EXPECT_FALSE(bench.controller().canMakeEditable());
    bench.controller().undo();
    EXPECT_TRUE(bench.controller().canMakeEditable());
    // The unused points of a table look like the neutral curve, but replacing it is an edit.
    bench.edit(PanelSlider::BlackRed, 0);
    EXPECT_EQ(bench.firstEntry(left), 0);
    bench.controller().undo();
    EXPECT_EQ(bench.firstEntry(left), entry);
}

TEST_F(Files, InFolderOfPresetsAreChosenByName) {
    bench.presetFolder = folder.path() / "presets";
    bench.launchAndSettle();
    bench.edit(PanelSlider::BlackRed, 0.25F);
    bench.dialogs.presetName = "night & day";
    bench.controller().savePreset();
    bench.edit(PanelSlider::BlackRed, 0.5F);
    bench.dialogs.presetName = "Evening";
    bench.controller().savePreset();
    std::ofstream(bench.presetFolder / "broken.icc") << std::string(100, 'x');
    bench.dialogs.presetName = "../outside";
    bench.controller().savePreset();
    EXPECT_THAT(bench.dialogs.alerts, ElementsAre("Saving failed"));
    const auto presets = bench.controller().presets();
    ASSERT_EQ(presets.size(), 3U);
    EXPECT_EQ(presets[0].name, "broken");
    EXPECT_NE(presets[0].problemKey, "");
    EXPECT_EQ(presets[1].name, "Evening");
    EXPECT_EQ(presets[2].name, "night & day");
    EXPECT_EQ(presets[2].problemKey, "");
    const std::vector<Request> request{{.kind = Request::Kind::Preset, .preset = "night & day"}};
    carryOut(requestsFromText(textFromRequests(request)).value(), bench.controller());
    bench.loop.runPosted();
    EXPECT_EQ(bench.red(left), 0.25F);
    EXPECT_THAT(bench.controller().recentFiles(), IsEmpty());
    // Replacing one leaves no second file of that name behind.
    bench.set("AffectAllScreens", true);
    bench.dialogs.presetName = "Evening";
    bench.controller().savePreset();
    EXPECT_EQ(bench.controller().presets().size(), 3U);
    // Nor does a name that is another preset's file.
    std::ofstream(bench.presetFolder / "night & day.cal") << "CAL";
    bench.set("AffectAllScreens", false);
    for (const char* const name : {"Evening.tonquil-screens", "night & day", "night & day.cal"}) {
        bench.dialogs.presetName = name;
        bench.controller().savePreset();
    }
    EXPECT_EQ(std::ranges::count(bench.dialogs.alerts, "Saving failed"), 4);
    EXPECT_EQ(bench.controller().presets().size(), 4U);
    bench.controller().openPreset("Morning");
    EXPECT_EQ(bench.dialogs.alerts.back(), "The file was not opened");
}

/// Two displays that only differ in their connectors.
class Twins : public Files {
 protected:
    Twins() {
        plug(left);
        plug(right);
    }
    void plug(DisplayID display) {
        auto twin = ControllerBench::makeDisplay(display, display == left ? 0 : 1000);
        twin.identity = {};
        bench.desk.plug(twin);
    }
    void start(const PropertyValue& screens) {
        bench.preferences.stored = {{"Screens", screens}};
        bench.launchAndSettle();
    }
    void restart() {
        bench.controller().applicationWillTerminate();
        bench.launchAndSettle();
    }
    void editAndCrash(DisplayID display, float red) {
        bench.movePanel(display == left ? 100 : 1100);
        bench.edit(PanelSlider::BlackRed, red);
        bench.loop.advance(std::chrono::milliseconds(500));
        bench.launchAndSettle();
    }
    [[nodiscard]] std::pair<float, float> reds() { return {bench.red(left), bench.red(right)}; }

    const std::string id = "0.000000x0.000000-0-0";
};

TEST_F(Twins, KeepCurvesByConnector) {
    start({{id, curve(0.75F)}});
    restart();
    EXPECT_EQ(reds(), std::pair(0.75F, 0.75F)) << "Stored when there was one, and for both.";
    EXPECT_EQ(bench.preferences.stored["Screens"][id], curve(0.75F));
    editAndCrash(left, 0.25F);
    editAndCrash(right, 0.5F);
    bench.desk.unplug(left);
    plug(left);
    EXPECT_EQ(reds(), std::pair(0.25F, 0.5F));

    // The remaining twin keeps its screen, and its edit is still there when both are back.
    bench.desk.unplug(right);
    restart();
    EXPECT_EQ(bench.red(left), 0.25F);
    editAndCrash(left, 0.125F);
    plug(right);
    restart();
    EXPECT_EQ(reds(), std::pair(0.125F, 0.5F));

    // A saved file has both; a file with only the shared ID applies to both, even to an unplugged
    // one.
    bench.dialogs.file = folder.path() / "twins";
    bench.dialogs.format = SettingsFormat::MultiDisplay;
    bench.controller().saveGamma();
    bench.desk.unplug(right);
    restart();
    open(fileWith(PropertyValue{{"Format", 1}, {"Screens", {{id, curve(0.0625F)}}}}));
    plug(right);
    restart();
    EXPECT_EQ(reds(), std::pair(0.0625F, 0.0625F));
    open(bench.dialogs.file);
    EXPECT_EQ(reds(), std::pair(0.125F, 0.5F));
}

TEST_F(Twins, PluggedInOneByOneShareCurveAndLoseNothing) {
    bench.desk.unplug(right);
    start({{id + "@DP-1", curve(0.25F)}, {id + "@DP-2", curve(0.5F)}});
    bench.desk.unplug(left);
    plug(right);
    plug(left);
    EXPECT_EQ(reds(), std::pair(0.25F, 0.5F)) << "Each came while the other was away.";

    bench.desk.unplug(right);
    restart();
    plug(right);
    EXPECT_EQ(bench.firstEntry(left), bench.firstEntry(right));
    restart();
    EXPECT_EQ(reds(), std::pair(0.25F, 0.5F));
    bench.desk.unplug(right);
    restart();
    plug(right);
    editAndCrash(left, 0.75F);
    EXPECT_EQ(reds(), std::pair(0.75F, 0.75F)) << "Edited together.";

    bench.desk.unplug(right);
    restart();
    plug(right);
    bench.set("AffectAllScreens", true);
    const int before = bench.firstEntry(left);
    bench.edit(PanelSlider::BlackRed, 0.125F);
    const int edited = bench.firstEntry(left);
    for (int count = 0; count < 2; ++count) {
        bench.controller().undo();
        EXPECT_EQ(bench.firstEntry(left), before);
        bench.controller().redo();
        EXPECT_EQ(bench.firstEntry(left), edited) << "A shared screen is in a step twice.";
    }
    for (const char* const connector : {"DP-1", "DP-2"}) {
        HandedCurves handed;
        handed[connector] = std::make_shared<TQExtendedGammaCurve>();
        EXPECT_TRUE(bench.controller().takeCurves(handed)) << connector;
    }
}

}  // namespace
}  // namespace tonquil
